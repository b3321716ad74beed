// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfTables.h"

#include "DxfStyle.h"

#include <QString>

#include <utility>

DxfLayer& DxfTables::GetLayer(const std::string& name)
{
    const std::wstring decoded = DecodeName(name, m_codePage);
    const std::wstring shown = decoded.empty() ? L"0" : decoded;
    const std::wstring key = QString::fromStdWString(shown).toCaseFolded().toStdWString();
    const auto [place, isNew] = m_places.emplace(key, m_layers.size());
    if (isNew)
    {
        DxfLayer added;
        added.layer.id = static_cast<int>(m_layers.size());
        added.layer.name = shown;
        m_layers.push_back(added);
    }
    return m_layers[place->second];
}

std::vector<Layer> DxfTables::GetLayers() const
{
    std::vector<Layer> layers;
    for (const DxfLayer& known : m_layers)
        layers.push_back(known.layer);
    return layers;
}

void DxfTables::AddDash(double length)
{
    constexpr std::size_t MostDashes = 100;
    if (m_dashes.size() < MostDashes)
        m_dashes.push_back(length);
}

void DxfTables::AddLineType(const std::string& name)
{
    m_lineTypes[InUpperCase(name)] = std::exchange(m_dashes, {});
}

int DxfTables::StyleOf(const std::string& lineType) const
{
    const auto found = m_lineTypes.find(InUpperCase(lineType));
    return NearestStyle(lineType,
                        found != m_lineTypes.end() ? found->second : std::vector<double>());
}

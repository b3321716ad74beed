// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "Model/Layer.h"

#include <map>
#include <string>
#include <vector>

/// A layer of a DXF file, and how its entities are drawn.
struct DxfLayer
{
    Layer layer;
    std::string lineType = "CONTINUOUS";
    int lineWeight = -1; ///< Below 0 for the default.
};

/// The layers and line types of a DXF file.
class DxfTables final
{
public:
    /// Names of layers are read in this code page, such as ANSI_936, unless they are UTF-8.
    explicit DxfTables(const std::string& codePage) : m_codePage(codePage) {}

    /// The layer of that name in the file, regardless of case. It is added if there is none; layer
    /// 0 is the base layer. Valid until the next call.
    DxfLayer& GetLayer(const std::string& name);

    /// By ascending id, the base layer first.
    std::vector<Layer> GetLayers() const;

    /// A dash of the line type that is added next.
    void AddDash(double length);
    void AddLineType(const std::string& name);

    /// The index into LineStyles() for a line type of the file.
    int StyleOf(const std::string& lineType) const;

private:
    const std::string m_codePage;
    std::vector<DxfLayer> m_layers = {DxfLayer()};
    std::map<std::wstring, std::size_t> m_places = {{L"0", 0}};
    std::map<std::string, std::vector<double>> m_lineTypes; ///< By name in upper case.
    std::vector<double> m_dashes;                           ///< Of the next line type.
};

// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfReport.h"

#include <nlohmann/json.hpp>

#include <ostream>

using Json = nlohmann::ordered_json;

namespace
{

/// Types come from the file and may have any bytes.
void WriteLine(std::ostream& stream, const Json& json)
{
    stream << json.dump(-1, ' ', true, Json::error_handler_t::replace) << '\n';
}

}

void DxfReport::AddSkipped(const std::string& type, const std::string& reason)
{
    ++m_skipped[{type, reason}];
}

void DxfReport::Write(std::ostream& stream) const
{
    for (const auto& [type, count] : m_imported)
        WriteLine(stream, {{"kind", "imported"}, {"type", type}, {"count", count}});
    for (const auto& [reason, count] : CountSkipped())
        WriteLine(stream, {{"kind", "skipped"},
                           {"type", reason.first},
                           {"reason", reason.second},
                           {"count", count}});
    for (const auto& [what, count] : m_approximated)
        WriteLine(stream, {{"kind", "approximated"}, {"what", what}, {"count", count}});
    if (m_isTruncated)
        WriteLine(stream, {{"kind", "truncated"}});
}

std::map<DxfReport::Reason, std::size_t> DxfReport::CountSkipped() const
{
    std::map<std::string, std::size_t> known = m_imported;
    for (const auto& [reason, count] : m_skipped)
        known[reason.first] += count;
    std::map<Reason, std::size_t> skipped = m_skipped;
    for (const auto& [type, count] : m_seen)
    {
        if (count > known[type])
            skipped[{type, "unsupported"}] += count - known[type];
    }
    return skipped;
}

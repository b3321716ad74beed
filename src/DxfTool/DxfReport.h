// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <iosfwd>
#include <map>
#include <string>
#include <utility>

/// What became of the entities of a DXF file.
class DxfReport final
{
public:
    DxfReport() = default;

    /// Of a file with that many entities of each type.
    explicit DxfReport(std::map<std::string, std::size_t> seen) : m_seen(std::move(seen)) {}

    void AddImported(const std::string& type) { ++m_imported[type]; }
    void AddSkipped(const std::string& type, const std::string& reason);

    /// Something about an entity or layer has been replaced by the nearest that there is.
    void AddApproximated(const std::string& what) { ++m_approximated[what]; }

    void SetTruncated() { m_isTruncated = true; }

    /// Writes one JSON object per line: `{"kind":"imported","type":"LINE","count":3}`,
    /// `{"kind":"skipped","type":"TEXT","reason":"unsupported","count":2}`,
    /// `{"kind":"approximated","what":"colour","count":1}` and `{"kind":"truncated"}`. Entities
    /// that were seen but neither imported nor skipped count as unsupported.
    void Write(std::ostream& stream) const;

private:
    using Reason = std::pair<std::string, std::string>;

    std::map<Reason, std::size_t> CountSkipped() const;

    std::map<std::string, std::size_t> m_seen;
    std::map<std::string, std::size_t> m_imported;
    std::map<Reason, std::size_t> m_skipped;
    std::map<std::string, std::size_t> m_approximated;
    bool m_isTruncated = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfReader.h"

#include "DxfCollector.h"
#include "DxfOutline.h"

#include <dxflib/dl_dxf.h>

#include <sstream>

namespace
{

/// The bytes without what the library cannot digest: at a line longer than its buffer it would read
/// forever. Only texts, which are not imported, have such lines.
std::string MakeDigestible(const std::string& bytes)
{
    constexpr std::size_t LongestLine = 1000;
    std::string result;
    result.reserve(bytes.size());
    std::size_t length = 0;
    for (const char byte : bytes)
    {
        length = byte == '\n' ? 0 : length + 1;
        if (length <= LongestLine)
            result += byte;
    }
    return result;
}

}

DxfReading ReadDxf(const std::string& bytes, const DxfReadOptions& options)
{
    DxfReading refused;
    refused.outcome = DxfReading::Outcome::NotDxf;
    const DxfOutline outline = ScanDxf(bytes);
    if (!outline.isTextDxf)
        return refused;
    const DxfUnit* pNamed = FindDxfUnit(outline.unitCode);
    const DxfUnit* pUnit = pNamed != nullptr ? pNamed : options.pUnit;
    refused.outcome = DxfReading::Outcome::NoUnit;
    if (pUnit == nullptr)
        return refused;

    DxfCollector collector(options, *pUnit, outline);
    refused.outcome = DxfReading::Outcome::TooMany;
    try
    {
        std::istringstream stream(MakeDigestible(bytes));
        DL_Dxf().in(stream, &collector);
    }
    catch (const TooManyEntities&)
    {
        return refused;
    }
    return collector.Take();
}

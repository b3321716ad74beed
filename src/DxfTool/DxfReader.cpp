// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfReader.h"

#include "DxfCollector.h"
#include "DxfOutline.h"

#include <dxflib/dl_dxf.h>

#include <sstream>

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
        std::istringstream stream(bytes);
        DL_Dxf().in(stream, &collector);
    }
    catch (const TooManyEntities&)
    {
        return refused;
    }
    return collector.Take();
}

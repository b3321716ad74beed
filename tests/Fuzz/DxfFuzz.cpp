// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfReader.h"
#include "DxfWriter.h"

#include "Model/DocumentFile.h"
#include "Model/SketchContent.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <sstream>
#include <string>

namespace
{

DxfReading ReadFuzzedDxf(const std::string& bytes)
{
    DxfReadOptions options;
    options.pUnit = FindDxfUnit("mm");
    options.greatestCount = 10000;
    return ReadDxf(bytes, options);
}

}

/// Reads a DXF file. What is read must be a valid drawing, which can be kept as a drawing file, and
/// have as many entities once written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t size)
{
    DxfReading first;
    try
    {
        first = ReadFuzzedDxf(std::string(reinterpret_cast<const char*>(pData), size));
    }
    catch (const std::exception&)
    {
        return 0;
    }
    if (first.outcome != DxfReading::Outcome::Done)
        return 0;
    if (!IsValid(first.content))
        std::abort();
    const DocumentReading kept = DocumentFile::FromText(DocumentFile::ToText(first.content));
    if (kept.outcome != DocumentReading::Outcome::Whole)
        std::abort();
    std::ostringstream written;
    WriteDxf(first.content, written);
    if (ReadFuzzedDxf(written.str()).content.entities.size() != first.content.entities.size())
        std::abort();
    return 0;
}

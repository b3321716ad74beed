// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfTool.h"

#include "DxfReader.h"
#include "DxfWriter.h"
#include "Platform/MemoryLimit.h"

#include "Model/DocumentFile.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <istream>
#include <iterator>
#include <new>
#include <optional>
#include <ostream>
#include <sstream>

namespace
{

constexpr char ToolUsage[] =
    "usage: vesk-dxf export < DRAWING.vsk > FILE.dxf\n"
    "       vesk-dxf import [--unit mm|cm|m|in|ft] < FILE.dxf > DRAWING.vsk\n"
    "options: --max-entities N, --max-memory MEGABYTES";

/// The program's arguments.
struct ToolArguments
{
    bool isImport = false;
    DxfReadOptions read;
    std::size_t megabytes = 0; ///< 0 for no limit.
};

DxfExit Fail(DxfExit code, const std::string& text, std::ostream& messages)
{
    const nlohmann::ordered_json json = {{"kind", "error"}, {"text", text}};
    messages << json.dump(-1, ' ', true, nlohmann::json::error_handler_t::replace) << std::endl;
    return code;
}

bool ReadCount(const std::string& text, std::size_t& count)
{
    constexpr std::size_t GreatestCount = 1000000000;
    const char* const pEnd = text.data() + text.size();
    const auto result = std::from_chars(text.data(), pEnd, count);
    return result.ec == std::errc() && result.ptr == pEnd && count > 0 && count <= GreatestCount;
}

bool ReadOption(const std::string& name, const std::string& value, ToolArguments& arguments)
{
    if (name == "--max-entities")
        return ReadCount(value, arguments.read.greatestCount);
    if (name == "--max-memory")
        return ReadCount(value, arguments.megabytes);
    if (name != "--unit" || !arguments.isImport)
        return false;
    arguments.read.pUnit = FindDxfUnit(value);
    return arguments.read.pUnit != nullptr;
}

std::optional<ToolArguments> ReadArguments(const std::vector<std::string>& texts)
{
    if (texts.size() % 2 == 0 || (texts.front() != "import" && texts.front() != "export"))
        return std::nullopt;
    ToolArguments arguments;
    arguments.isImport = texts.front() == "import";
    for (std::size_t i = 1; i < texts.size(); i += 2)
    {
        if (!ReadOption(texts[i], texts[i + 1], arguments))
            return std::nullopt;
    }
    return arguments;
}

std::string ReadAll(std::istream& input)
{
    return {std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
}

DxfExit WriteAll(const std::string& bytes, std::ostream& output, std::ostream& messages)
{
    output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    output.flush();
    return output ? DxfExit::Done : Fail(DxfExit::Unwritten, "cannot write", messages);
}

DxfExit Export(const DxfReadOptions& options, std::istream& input, std::ostream& output,
               std::ostream& messages)
{
    const DocumentReading document = DocumentFile::FromText(ReadAll(input));
    if (document.outcome != DocumentReading::Outcome::Whole)
        return Fail(DxfExit::Unusable, document.error, messages);
    if (document.content.entities.size() > options.greatestCount)
        return Fail(DxfExit::TooLarge, "too many entities", messages);
    std::ostringstream dxf;
    WriteDxf(document.content, dxf);
    return WriteAll(dxf.str(), output, messages);
}

DxfExit Import(DxfReadOptions options, std::istream& input, std::ostream& output,
               std::ostream& messages)
{
    options.progress = [&messages](double share) {
        messages << nlohmann::json({{"kind", "progress"}, {"share", share}}).dump() << std::endl;
    };
    const DxfReading reading = ReadDxf(ReadAll(input), options);
    switch (reading.outcome)
    {
    case DxfReading::Outcome::NotDxf:
        return Fail(DxfExit::Unusable, "not a text DXF file", messages);
    case DxfReading::Outcome::NoUnit:
        return Fail(DxfExit::NoUnit, "the file names no unit; use --unit", messages);
    case DxfReading::Outcome::TooMany:
        return Fail(DxfExit::TooLarge, "too many entities", messages);
    case DxfReading::Outcome::Done:
        break;
    }
    reading.report.Write(messages);
    return WriteAll(DocumentFile::ToText(reading.content), output, messages);
}

}

DxfExit RunDxfTool(const std::vector<std::string>& arguments, std::istream& input,
                   std::ostream& output, std::ostream& messages)
{
    if (arguments == std::vector<std::string>{"--help"})
        return WriteAll(std::string(ToolUsage) + '\n', output, messages);
    const std::optional<ToolArguments> read = ReadArguments(arguments);
    if (!read.has_value())
        return Fail(DxfExit::Usage, ToolUsage, messages);
    if (read->megabytes > 0 && !LimitMemory(read->megabytes))
        return Fail(DxfExit::Usage, "cannot limit the memory", messages);
    try
    {
        return read->isImport ? Import(read->read, input, output, messages)
                              : Export(read->read, input, output, messages);
    }
    catch (const std::bad_alloc&)
    {
        return Fail(DxfExit::TooLarge, "not enough memory", messages);
    }
    catch (const std::exception& failure)
    {
        // The library throws when it is led astray, by a length that is negative for example.
        return Fail(DxfExit::Unusable, failure.what(), messages);
    }
}

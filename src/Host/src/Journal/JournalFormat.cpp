#include "Journal/JournalFormat.h"

#include "Dimension/InputField.h"
#include "Foundation/Text.h"
#include "Journal/JournalReader.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cmath>

namespace vesk
{

namespace
{

using Json = nlohmann::ordered_json;

/// A number that is not finite becomes null.
Json ToJson(double value)
{
    return std::isfinite(value) ? Json(value) : Json();
}

Json ToJson(const CommandParameterValue& value)
{
    struct Visitor
    {
        Json operator()(bool is) const { return is; }
        Json operator()(int integer) const { return integer; }
        Json operator()(double real) const { return ToJson(real); }
        Json operator()(const std::wstring& text) const { return ToUtf8(text); }
    };
    return std::visit(Visitor(), value.Get());
}

/// Adds the content of a record to a line.
class Writer
{
public:
    explicit Writer(Json& line) : m_line(line) {}

    void operator()(const CommandRecord& record) const
    {
        m_line["kind"] = "command";
        m_line["id"] = ToUtf8(record.commandId);
        for (const auto& [name, value] : record.parameters.GetAll())
            m_line["parameters"][ToUtf8(name)] = ToJson(value);
    }

    void operator()(const PointRecord& record) const
    {
        m_line["kind"] = "point";
        m_line["point"] = {ToJson(record.point.x()), ToJson(record.point.y()),
                           ToJson(record.point.z())};
        if (record.entity.has_value())
            m_line["entity"] = *record.entity;
    }

    void operator()(const ValueRecord& record) const
    {
        m_line["kind"] = "value";
        m_line["field"] = JournalNameOf(record.field);
        m_line["text"] = ToUtf8(record.text);
        m_line["value"] = ToJson(record.value);
    }

    void operator()(const SelectionRecord& record) const
    {
        m_line["kind"] = "selection";
        m_line["entities"] = record.entities;
    }

    void operator()(const PropertyRecord& record) const
    {
        m_line["kind"] = "property";
        m_line["object"] = ToUtf8(record.object);
        m_line["property"] = ToUtf8(record.property);
        m_line["value"] = ToUtf8(record.value);
    }

    void operator()(const UndoRecord& record) const
    {
        m_line["kind"] = "undo";
        m_line["entity"] = record.entity;
    }

    void operator()(const RedoRecord& record) const
    {
        m_line["kind"] = "redo";
        m_line["entity"] = record.entity;
    }

    void operator()(const MarkRecord& record) const
    {
        m_line["kind"] = "mark";
        m_line["digest"] = record.digest;
        if (record.time.has_value())
            m_line["t"] = *record.time;
    }

    void operator()(const CloseRecord&) const { m_line["kind"] = "close"; }

    void operator()(const HeaderRecord& record) const
    {
        m_line["kind"] = "journal";
        m_line["version"] = record.version;
        m_line["program"] = ToUtf8(record.program);
        m_line["time"] = ToUtf8(record.time);
    }

    void operator()(const EndRecord& record) const
    {
        m_line["kind"] = "end";
        m_line["result"] = record.isRefused ? "refused" : "done";
    }

private:
    Json& m_line;
};

}

std::string JournalFormat::ToLine(const JournalRecord& record)
{
    Json line;
    line["n"] = record.number;
    std::visit(Writer(line), record.what);
    return line.dump();
}

bool JournalFormat::FromLine(const std::string& line, JournalRecord& record, std::string& error)
{
    JournalReader reader(line);
    if (!reader.Read())
    {
        error = reader.GetError();
        return false;
    }
    record = reader.GetRecord();
    return true;
}

}

#include "Journal/JournalFormat.h"

#include "Dimension/InputField.h"
#include "Foundation/JsonText.h"
#include "Foundation/Text.h"
#include "Journal/JournalReader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace vesk
{

namespace
{

/// Appends the content of a record to a line, after its number. The keys are in the texts as they
/// are in the file.
class Writer
{
public:
    explicit Writer(std::string& line) : m_line(line) {}

    void operator()(const CommandRecord& record) const
    {
        Append(R"(,"kind":"command","id":)", record.commandId);
        if (!record.parameters.IsEmpty())
            Append(R"(,"parameters":)", record.parameters);
    }

    void operator()(const PointRecord& record) const
    {
        Append(R"(,"kind":"point","point":)", record.point);
        if (record.entity.has_value())
            Append(R"(,"entity":)", *record.entity);
    }

    void operator()(const ValueRecord& record) const
    {
        Append(R"(,"kind":"value","field":)", std::string_view(JournalNameOf(record.field)));
        Append(R"(,"text":)", record.text);
        Append(R"(,"value":)", record.value);
    }

    void operator()(const SelectionRecord& record) const
    {
        Append(R"(,"kind":"selection","entities":)", record.entities);
    }

    void operator()(const PropertyRecord& record) const
    {
        Append(R"(,"kind":"property","object":)", record.object);
        Append(R"(,"property":)", record.property);
        Append(R"(,"value":)", record.value);
    }

    void operator()(const UndoRecord& record) const
    {
        Append(R"(,"kind":"undo","entity":)", record.entity);
    }

    void operator()(const RedoRecord& record) const
    {
        Append(R"(,"kind":"redo","entity":)", record.entity);
    }

    void operator()(const MarkRecord& record) const
    {
        Append(R"(,"kind":"mark","digest":)", std::string_view(record.digest));
        if (record.time.has_value())
            Append(R"(,"t":)", *record.time);
    }

    void operator()(const CloseRecord&) const { m_line += R"(,"kind":"close")"; }

    void operator()(const HeaderRecord& record) const
    {
        Append(R"(,"kind":"journal","version":)", record.version);
        Append(R"(,"program":)", record.program);
        Append(R"(,"time":)", record.time);
    }

    void operator()(const EndRecord& record) const
    {
        m_line += R"(,"kind":"end","result":)";
        m_line += record.isRefused ? R"("refused")" : R"("done")";
    }

private:
    template <class Value>
    void Append(std::string_view key, const Value& value) const
    {
        m_line += key;
        Append(value);
    }

    void Append(bool is) const { m_line += is ? "true" : "false"; }
    void Append(int number) const { JsonText::AppendNumber(m_line, number); }
    void Append(double number) const { JsonText::AppendNumber(m_line, number); }
    void Append(std::string_view text) const { JsonText::AppendString(m_line, text); }
    void Append(const std::wstring& text) const { JsonText::AppendString(m_line, text); }

    void Append(const Vector3d& point) const
    {
        const double coordinates[] = {point.x(), point.y(), point.z()};
        AppendList(coordinates);
    }

    void Append(const std::vector<int>& numbers) const { AppendList(numbers); }

    template <class List>
    void AppendList(const List& list) const
    {
        m_line += '[';
        for (const auto& value : list)
        {
            if (m_line.back() != '[')
                m_line += ',';
            Append(value);
        }
        m_line += ']';
    }

    /// Names with invalid characters may become the same; the last of them counts.
    void Append(const CommandParameters& parameters) const
    {
        std::vector<std::pair<std::string, const CommandParameterValue*>> members;
        for (const auto& [name, value] : parameters.GetAll())
        {
            const std::string key = ToUtf8(name);
            const auto found = std::find_if(members.begin(), members.end(),
                                            [&](const auto& other) { return other.first == key; });
            if (found != members.end())
                found->second = &value;
            else
                members.emplace_back(key, &value);
        }
        m_line += '{';
        for (const auto& [key, pValue] : members)
        {
            if (m_line.back() != '{')
                m_line += ',';
            Append(std::string_view(key));
            m_line += ':';
            std::visit([this](const auto& value) { Append(value); }, pValue->Get());
        }
        m_line += '}';
    }

    std::string& m_line;
};

}

std::string JournalFormat::ToLine(const JournalRecord& record)
{
    std::string line;
    AppendLine(record, line);
    return line;
}

void JournalFormat::AppendLine(const JournalRecord& record, std::string& text)
{
    text += "{\"n\":";
    JsonText::AppendNumber(text, record.number);
    std::visit(Writer(text), record.what);
    text += '}';
}

bool JournalFormat::FromLine(const std::string& line, JournalRecord& record, std::string& error)
{
    JournalReader reader(line);
    if (!reader.Read())
    {
        error = reader.GetError();
        return false;
    }
    record = std::move(reader.GetRecord());
    return true;
}

}

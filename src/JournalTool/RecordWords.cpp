#include "JournalReports.h"

#include "Dimension/InputField.h"
#include "Foundation/Text.h"

#include <iomanip>
#include <limits>
#include <locale>
#include <sstream>

using namespace vesk;

namespace
{

std::string NumberText(double value)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::setprecision(std::numeric_limits<double>::digits10) << value;
    return text.str();
}

/// In one line, whatever it contains.
std::string Quoted(const std::wstring& text)
{
    std::string quoted;
    for (const char character : ToUtf8(text))
        quoted += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
    return '"' + quoted + '"';
}

/// Tells a record in words.
struct Words
{
    std::string operator()(const HeaderRecord& record) const
    {
        return "journal of version " + std::to_string(record.version) + ", by " +
               Quoted(record.program) + " at " + ToUtf8(record.time);
    }

    std::string operator()(const CommandRecord& record) const
    {
        std::string words = "command " + ToUtf8(record.commandId);
        for (const auto& [name, value] : record.parameters.GetAll())
            words += ' ' + ToUtf8(name) + '=' + std::visit(*this, value.Get());
        return words;
    }

    std::string operator()(const PointRecord& record) const
    {
        const std::string words = "point " + NumberText(record.point.x()) + ", " +
                                  NumberText(record.point.y()) + ", " +
                                  NumberText(record.point.z());
        return record.entity.has_value() ? words + " on entity " + std::to_string(*record.entity)
                                         : words;
    }

    std::string operator()(const ValueRecord& record) const
    {
        return std::string(JournalNameOf(record.field)) + ' ' + Quoted(record.text) + " = " +
               NumberText(record.value);
    }

    std::string operator()(const SelectionRecord& record) const
    {
        std::string words = record.entities.empty() ? "selects nothing" : "selects";
        for (const int entity : record.entities)
            words += ' ' + std::to_string(entity);
        return words;
    }

    std::string operator()(const PropertyRecord& record) const
    {
        return ToUtf8(record.property) + " of " + ToUtf8(record.object) + " = " +
               Quoted(record.value);
    }

    std::string operator()(const UndoRecord& record) const
    {
        return "undo of entity " + std::to_string(record.entity);
    }

    std::string operator()(const RedoRecord& record) const
    {
        return "redo of entity " + std::to_string(record.entity);
    }

    std::string operator()(const MarkRecord& record) const
    {
        const std::string words = "drawing " + record.digest;
        return record.time.has_value() ? words + " at " + std::to_string(*record.time) + " ms"
                                       : words;
    }

    std::string operator()(const CloseRecord&) const { return "end of the program"; }

    std::string operator()(const EndRecord& record) const
    {
        return record.isRefused ? "refused" : "done";
    }

    std::string operator()(bool is) const { return is ? "true" : "false"; }
    std::string operator()(int integer) const { return std::to_string(integer); }
    std::string operator()(double real) const { return NumberText(real); }
    std::string operator()(const std::wstring& text) const { return Quoted(text); }
};

}

std::string Describe(const JournalRecord& record)
{
    return std::to_string(record.number) + ": " + std::visit(Words(), record.what);
}

#pragma once

#include "Journal/JournalFormat.h"
#include "Support/FileBytes.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

/// Journals for tests, record by record.
class Records final
{
public:
    Records& Header() { return Add(0, vesk::HeaderRecord()); }
    Records& Command(int number, const std::wstring& id)
    {
        return Add(number, vesk::CommandRecord{id, {}});
    }
    /// The command that saves the drawing with that digest.
    Records& Save(int number, const std::string& digest)
    {
        vesk::CommandParameters parameters;
        const std::wstring text(digest.begin(), digest.end());
        parameters.Add(L"digest", vesk::CommandParameterValue(text));
        return Add(number, vesk::CommandRecord{L"Sketcher.SaveDrawing", parameters});
    }
    Records& Point(int number) { return Add(number, vesk::PointRecord()); }
    Records& Undo(int number) { return Add(number, vesk::UndoRecord()); }
    Records& Property(int number) { return Add(number, vesk::PropertyRecord()); }
    Records& Select(int number) { return Add(number, vesk::SelectionRecord()); }
    Records& Mark(int number, const std::string& digest)
    {
        return Add(number, vesk::MarkRecord{digest, {}});
    }
    Records& End(int command) { return Add(command, vesk::EndRecord{command, false}); }
    Records& Refuse(int command) { return Add(command, vesk::EndRecord{command, true}); }
    Records& Close(int number) { return Add(number, vesk::CloseRecord()); }

    const std::vector<vesk::JournalRecord>& Get() const { return m_records; }

    QByteArray ToText() const
    {
        QByteArray text;
        for (const vesk::JournalRecord& record : m_records)
            text += QByteArray::fromStdString(vesk::JournalFormat::ToLine(record)) + '\n';
        return text;
    }

    /// The numbers of records, negative for an end record.
    static std::vector<int> NumbersOf(const std::vector<vesk::JournalRecord>& records)
    {
        std::vector<int> numbers;
        for (const vesk::JournalRecord& record : records)
            numbers.push_back(std::holds_alternative<vesk::EndRecord>(record.what) ? -record.number
                                                                                   : record.number);
        return numbers;
    }

private:
    Records& Add(int number, decltype(vesk::JournalRecord::what) what)
    {
        m_records.push_back({number, std::move(what)});
        return *this;
    }

    std::vector<vesk::JournalRecord> m_records;
};

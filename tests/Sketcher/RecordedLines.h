#pragma once

#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"

#include <QString>
#include <QStringList>

/// Collects the lines that are written to the journal while it lives.
class RecordedLines final : public vesk::IJournalObserver
{
public:
    RecordedLines() { vesk::JournalManager::GetInstance().AddObserver(this); }
    ~RecordedLines() override { vesk::JournalManager::GetInstance().RemoveObserver(this); }
    RecordedLines(const RecordedLines&) = delete;
    RecordedLines& operator=(const RecordedLines&) = delete;

    void OnRecord(const vesk::JournalRecord& record) override
    {
        // The number depends on what was recorded before, which this test does not check.
        const QString line = QString::fromStdString(vesk::JournalFormat::ToLine(record));
        m_lines.push_back(QLatin1Char('{') + line.mid(line.indexOf(QLatin1Char(',')) + 1));
    }

    void OnUiObject(const vesk::IJournalUiObject&, int) override {}

    const QStringList& Get() const { return m_lines; }

private:
    QStringList m_lines;
};

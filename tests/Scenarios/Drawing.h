#pragma once

#include "Journal/JournalRecord.h"
#include "Support/DrawnLine.h"
#include "Support/FileBytes.h"

#include <QString>
#include <QVector>

#include <array>
#include <cstddef>
#include <vector>

using vesk::DrawnLine;
using vesk::ReadBytes;
using vesk::ReadLines;

/// An entity of a model file; fields its kind does not have are empty.
struct DrawnEntity
{
    using Point = std::array<double, 3>;

    QString type;
    Point start{};
    Point end{};
    Point centre{};
    double radius = 0.0;
    Point normal{};
    std::vector<Point> corners;
};

/// All entities of a model file; empty if it cannot be read.
std::vector<DrawnEntity> ReadEntities(const QString& path);

/// The records of a journal; the test fails if a line is malformed.
std::vector<vesk::JournalRecord> ReadJournal(const QString& path);

/// The records of one kind, in order.
template <class Record>
std::vector<Record> RecordsOf(const std::vector<vesk::JournalRecord>& records)
{
    std::vector<Record> found;
    for (const vesk::JournalRecord& record : records)
    {
        if (const auto* pRecord = std::get_if<Record>(&record.what))
            found.push_back(*pRecord);
    }
    return found;
}

/// The lines of a journal that tell what the user did: without header, marks and close, and
/// numbered without gaps. The test fails if a line is malformed.
QByteArray ReadActs(const QString& path);

/// Replaces a file; the test fails if it cannot be written.
void WriteFile(const QString& path, const QByteArray& content);

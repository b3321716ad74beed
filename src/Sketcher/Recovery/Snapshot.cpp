#include "Recovery/Snapshot.h"

#include "Model/DocumentFile.h"

#include "Foundation/FileRewriting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <new>
#include <utility>
#include <vector>

namespace
{

QString PathOf(const QString& journal, int record)
{
    return QStringLiteral("%1.%2.vsk").arg(journal, QString::number(record));
}

/// The record numbers of all snapshots, the newest first.
std::vector<int> FindAll(const QString& journal)
{
    const QFileInfo info(journal);
    const QString start = info.fileName() + QLatin1Char('.');
    const QString end = QStringLiteral(".vsk");
    std::vector<int> records;
    for (const QString& name : info.dir().entryList(QDir::Files))
    {
        if (!name.startsWith(start) || !name.endsWith(end))
            continue;
        bool isNumber = false;
        const int record =
            name.mid(start.size(), name.size() - start.size() - end.size()).toInt(&isNumber);
        if (isNumber)
            records.push_back(record);
    }
    std::sort(records.begin(), records.end(), std::greater<>());
    return records;
}

/// Returns false if it cannot be written or there is not enough memory.
bool WriteSnapshot(const QString& path, const SketchContent& content)
{
    try
    {
        return vesk::RewriteFile(path.toStdString(), DocumentFile::ToText(content));
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}

/// Returns false if it is not whole or there is not enough memory.
bool ReadSnapshot(const QString& path, Snapshot& snapshot)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    try
    {
        snapshot.bytes = file.readAll();
        DocumentReading reading = DocumentFile::FromText(
            {snapshot.bytes.constData(), static_cast<std::size_t>(snapshot.bytes.size())});
        snapshot.digest = std::move(reading.digest);
        snapshot.content = std::move(reading.content);
        return reading.outcome == DocumentReading::Outcome::Whole;
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
}

}

bool Snapshot::Write(const QString& journal, int record, const SketchContent& content)
{
    if (!WriteSnapshot(PathOf(journal, record), content))
        return false;
    for (const int other : FindAll(journal))
    {
        if (other < record)
            QFile::remove(PathOf(journal, other));
    }
    return true;
}

std::optional<Snapshot> Snapshot::FindNewest(const QString& journal)
{
    for (const int record : FindAll(journal))
    {
        Snapshot snapshot{record, {}, {}, {}};
        if (ReadSnapshot(PathOf(journal, record), snapshot))
            return snapshot;
    }
    return std::nullopt;
}

void Snapshot::RemoveAll(const QString& journal)
{
    for (const int record : FindAll(journal))
        QFile::remove(PathOf(journal, record));
}

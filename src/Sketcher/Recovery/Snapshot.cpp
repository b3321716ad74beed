#include "Recovery/Snapshot.h"

#include "Model/DocumentFile.h"

#include "Foundation/FileRewriting.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace
{

QString PathOf(const QString& journal, int record)
{
    return QStringLiteral("%1.%2.vsk").arg(journal).arg(record);
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

}

bool Snapshot::Write(const QString& journal, int record, const SketchContent& content)
{
    const std::string text = DocumentFile::ToText(content);
    if (!vesk::RewriteFile(PathOf(journal, record).toStdString(), text))
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
        QFile file(PathOf(journal, record));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray bytes = file.readAll();
        DocumentReading reading =
            DocumentFile::FromText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
        if (reading.outcome == DocumentReading::Outcome::Whole)
            return Snapshot{record, bytes, reading.digest, std::move(reading.content)};
    }
    return std::nullopt;
}

void Snapshot::RemoveAll(const QString& journal)
{
    for (const int record : FindAll(journal))
        QFile::remove(PathOf(journal, record));
}

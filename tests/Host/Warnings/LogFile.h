#pragma once

#include "Support/FileBytes.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QVector>

#include <string>

namespace vesk
{

/// A path for a log file, which is removed with this object.
class LogFile
{
public:
    std::string GetPath() const { return m_folder.filePath("warnings.log").toStdString(); }

    QByteArray Read() const { return ReadBytes(m_folder.filePath("warnings.log")); }

    /// Each line as a JSON object; an empty one if the line is not one.
    QVector<QJsonObject> ReadRecords() const { return Parse(Read()); }

    static QVector<QJsonObject> Parse(const QByteArray& text)
    {
        QVector<QJsonObject> records;
        QList<QByteArray> lines = text.split('\n');
        // The text after the last line end.
        if (lines.last().isEmpty())
            lines.removeLast();
        for (const QByteArray& line : lines)
            records.append(QJsonDocument::fromJson(line).object());
        return records;
    }

private:
    QTemporaryDir m_folder;
};

}

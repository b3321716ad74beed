#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

/// What a file was like when it was read or written.
struct FileStamp
{
    qint64 size = -1;
    QDateTime modified;
    QByteArray hash; ///< SHA-1 of the bytes: it tells changes by accident, and is fast.

    /// Of a file that has just been read or written with these bytes.
    static FileStamp Of(const QString& path, const QByteArray& bytes);

    /// True if the file exists and now has other bytes. Reads it only if size or time leave doubts.
    bool IsOutdated(const QString& path) const;
};

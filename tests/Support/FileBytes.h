#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace vesk
{

/// The bytes of a file; empty if it cannot be read.
inline QByteArray ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Replaces the bytes of a file. Returns false if not all of them were written.
[[nodiscard]] inline bool WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

}

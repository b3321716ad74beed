#include "Documents/FileStamp.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

FileStamp FileStamp::Of(const QString& path, const QByteArray& bytes)
{
    const QFileInfo file(path);
    return {file.size(), file.lastModified(),
            QCryptographicHash::hash(bytes, QCryptographicHash::Sha1)};
}

bool FileStamp::IsOutdated(const QString& path) const
{
    const QFileInfo info(path);
    if (!info.exists() || (info.size() == size && info.lastModified() == modified))
        return false;
    QFile file(path);
    QCryptographicHash hasher(QCryptographicHash::Sha1);
    return info.size() != size || !file.open(QIODevice::ReadOnly) || !hasher.addData(&file) ||
           hasher.result() != hash;
}

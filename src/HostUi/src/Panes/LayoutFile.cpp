#include "HostUi/LayoutFile.h"

#include "Foundation/FileRewriting.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstddef>

namespace vesk
{
namespace
{

constexpr int Version = 1;

/// More than any window's panes need.
constexpr qint64 GreatestSize = 1 << 20;

QString Checksum(const QByteArray& layout)
{
    return QString::fromLatin1(
        QCryptographicHash::hash(layout, QCryptographicHash::Sha256).toHex());
}

LayoutFile::Reading ReadText(const QByteArray& text)
{
    using Content = LayoutFile::Content;
    const QJsonObject file = QJsonDocument::fromJson(text).object();
    const double version = file[QLatin1String("version")].toDouble();
    if (version > Version)
        return {Content::Newer, {}};
    const QByteArray layout =
        QByteArray::fromBase64(file[QLatin1String("layout")].toString().toLatin1());
    if (version != Version || layout.isEmpty() ||
        file[QLatin1String("checksum")].toString() != Checksum(layout))
        return {Content::Damaged, {}};
    return {Content::Layout, layout};
}

bool Rewrite(const QString& path, const QByteArray& content)
{
    return RewriteFile(path.toStdString(), {content.data(), std::size_t(content.size())});
}

/// Keeps a copy of a file that is not a layout of this version. Returns false if that fails.
bool KeepForeign(const QString& path)
{
    const LayoutFile::Content content = LayoutFile::Read(path).content;
    if (content != LayoutFile::Content::Damaged && content != LayoutFile::Content::Newer)
        return true;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) &&
           Rewrite(path + QStringLiteral(".kept"), file.readAll());
}

}

LayoutFile::Reading LayoutFile::Read(const QString& path)
{
    QFile file(path);
    if (!file.exists())
        return {Content::Missing, {}};
    if (!file.open(QIODevice::ReadOnly))
        return {Content::Damaged, {}};
    return ReadText(file.read(GreatestSize));
}

bool LayoutFile::Write(const QString& path, const QByteArray& layout)
{
    QDir().mkpath(QFileInfo(path).path());
    const QJsonObject content{
        {QStringLiteral("version"), Version},
        {QStringLiteral("layout"), QString::fromLatin1(layout.toBase64())},
        {QStringLiteral("checksum"), Checksum(layout)},
    };
    return KeepForeign(path) && Rewrite(path, QJsonDocument(content).toJson());
}

}

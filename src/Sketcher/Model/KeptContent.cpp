#include "Model/KeptContent.h"

#include "Foundation/FileRewriting.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QMutexLocker>
#include <QRegularExpression>

#include <cstddef>
#include <string_view>
#include <utility>

namespace
{

QString DigestOfBytes(const QByteArray& bytes)
{
    return QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex());
}

bool IsDigest(const QString& text)
{
    static const QRegularExpression s_digest(QStringLiteral("\\A[0-9a-f]{64}\\z"));
    return s_digest.match(text).hasMatch();
}

QString FolderOf(const QString& journalPath)
{
    return journalPath.isEmpty() ? QString() : journalPath + QStringLiteral(".kept");
}

QString FileIn(const QString& folder, const QString& digest)
{
    return folder + QLatin1Char('/') + digest;
}

/// The bytes with that digest in a folder; nothing if its file is missing or damaged.
std::optional<QByteArray> Read(const QString& folder, const QString& digest)
{
    QFile file(FileIn(folder, digest));
    if (folder.isEmpty() || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.readAll();
    return DigestOfBytes(bytes) == digest ? std::make_optional(std::move(bytes)) : std::nullopt;
}

}

KeptContent& KeptContent::Get()
{
    static KeptContent s_content;
    return s_content;
}

void KeptContent::SetJournal(const QString& journalPath)
{
    const QMutexLocker lock(&m_mutex);
    const QString before = std::exchange(m_folder, FolderOf(journalPath));
    if (m_folder == before)
        return;
    for (auto known = m_known.begin(); known != m_known.end(); ++known)
    {
        if (known->isNull())
            *known = Read(before, known.key()).value_or(QByteArray());
        if (!known->isNull() && Write(known.key(), *known))
            *known = QByteArray();
    }
}

void KeptContent::SetSource(const QString& journalPath)
{
    const QMutexLocker lock(&m_mutex);
    m_sourceFolder = FolderOf(journalPath);
}

void KeptContent::Forget()
{
    const QMutexLocker lock(&m_mutex);
    m_known.clear();
    m_folder.clear();
    m_sourceFolder.clear();
}

std::optional<QString> KeptContent::Keep(const QByteArray& bytes)
{
    const QMutexLocker lock(&m_mutex);
    const QString digest = DigestOfBytes(bytes);
    if (!m_folder.isEmpty() && !Write(digest, bytes))
        return std::nullopt;
    m_known.insert(digest,
                   m_folder.isEmpty() ? QByteArray(bytes.data(), bytes.size()) : QByteArray());
    return digest;
}

std::optional<QByteArray> KeptContent::Find(const QString& digest)
{
    const QMutexLocker lock(&m_mutex);
    if (!IsDigest(digest))
        return std::nullopt;
    const QByteArray inMemory = m_known.value(digest);
    if (!inMemory.isNull())
        return inMemory;
    std::optional<QByteArray> bytes = Read(m_sourceFolder, digest);
    if (!bytes.has_value())
        bytes = Read(m_folder, digest);
    if (bytes.has_value())
        m_known.insert(digest, Write(digest, *bytes) ? QByteArray() : *bytes);
    return bytes;
}

/// Returns false if there is no folder or it cannot be written.
bool KeptContent::Write(const QString& digest, const QByteArray& bytes) const
{
    if (m_folder.isEmpty() || !QDir().mkpath(m_folder))
        return false;
    const std::string_view content(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    return Read(m_folder, digest).has_value() ||
           vesk::RewriteFile(FileIn(m_folder, digest).toStdString(), content);
}

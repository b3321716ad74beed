#include "Recovery/JournalFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <map>
#include <system_error>

namespace
{

namespace fs = std::filesystem;

fs::path ToPath(const QString& path)
{
    return fs::u8path(path.toStdString());
}

QString SettledMark(const QString& journal)
{
    return journal + QStringLiteral(".settled");
}

qint64 SizeOf(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isDir())
        return info.size();
    qint64 size = 0;
    for (QDirIterator files(path, QDir::Files | QDir::Hidden); files.hasNext();)
        size += QFileInfo(files.next()).size();
    return size;
}

constexpr QDir::Filters Everything = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;

/// The size of each journal with what belongs to it, by its path. The folder is read once, because
/// there are hundreds of files.
std::map<QString, qint64> SizesIn(const QDir& folder)
{
    static const QString s_ending = QStringLiteral(".jsonl");
    std::map<QString, qint64> sizes;
    for (const QString& name : folder.entryList(Everything, QDir::Unsorted))
    {
        const QString journal = name.left(name.indexOf(s_ending) + s_ending.size());
        sizes[folder.filePath(journal)] += SizeOf(folder.filePath(name));
    }
    return sizes;
}

/// Moves a file or folder, also to another disk. If it can only be copied, the original stays.
bool Transfer(const QString& from, const QString& to)
{
    std::error_code error;
    fs::rename(ToPath(from), ToPath(to), error);
    if (!error)
        return true;
    fs::copy(ToPath(from), ToPath(to), fs::copy_options::recursive, error);
    if (!error)
    {
        std::error_code unknown;
        fs::last_write_time(ToPath(to), fs::last_write_time(ToPath(from), unknown), unknown);
        fs::remove_all(ToPath(from), unknown);
        return true;
    }
    fs::remove_all(ToPath(to), error);
    return false;
}

}

QString JournalFolder::NewPath() const
{
    const QDir folder(m_path);
    folder.mkpath(QStringLiteral("."));
    const QString name =
        QStringLiteral("journal-%1-%2")
            .arg(QDateTime::currentDateTimeUtc().toString(QStringLiteral("yyyyMMdd-hhmmss")))
            .arg(QCoreApplication::applicationPid());
    QString path = folder.filePath(name + QStringLiteral(".jsonl"));
    for (int i = 2; QFileInfo::exists(path); ++i)
        path = folder.filePath(QStringLiteral("%1-%2.jsonl").arg(name).arg(i));
    return path;
}

QStringList JournalFolder::GetJournals() const
{
    const QDir folder(m_path);
    QStringList paths;
    for (const QString& name :
         folder.entryList({QStringLiteral("*.jsonl")}, QDir::Files, QDir::Time))
        paths << folder.filePath(name);
    return paths;
}

/// The journal comes last: until then nothing that belongs to it is lost from beside it.
std::optional<QString> JournalFolder::TakeIn(const QString& journal) const
{
    const QString target = NewPath();
    QStringList taken;
    for (const QString& companion : GetCompanions(journal))
    {
        const QString name = target + companion.mid(journal.size());
        if (Transfer(companion, name))
            taken << name;
    }
    if (Transfer(journal, target))
        return target;
    for (const QString& name : taken)
        Transfer(name, journal + name.mid(target.size()));
    return std::nullopt;
}

void JournalFolder::Prune(const Bounds& bounds,
                          const std::function<bool(const QString&)>& isNeeded) const
{
    std::map<QString, qint64> sizes = SizesIn(QDir(m_path));
    int count = 0;
    qint64 bytes = 0;
    for (const QString& journal : GetJournals())
    {
        if (isNeeded(journal))
            continue;
        ++count;
        bytes += sizes[journal];
        if (count > bounds.journals || bytes > bounds.bytes)
            Remove(journal);
    }
}

void JournalFolder::Settle(const QString& journal)
{
    QFile mark(SettledMark(journal));
    mark.open(QIODevice::WriteOnly);
}

bool JournalFolder::IsSettled(const QString& journal)
{
    return QFileInfo::exists(SettledMark(journal));
}

/// The mark goes last: until then a journal that the user has decided about is not offered again.
void JournalFolder::Remove(const QString& journal)
{
    std::error_code error;
    for (const QString& companion : GetCompanions(journal))
    {
        if (companion != SettledMark(journal))
            fs::remove_all(ToPath(companion), error);
    }
    QFile::remove(journal);
    QFile::remove(SettledMark(journal));
}

QStringList JournalFolder::GetCompanions(const QString& journal)
{
    const QFileInfo info(journal);
    const QString start = info.fileName() + QLatin1Char('.');
    QStringList paths;
    for (const QFileInfo& entry : info.dir().entryInfoList(Everything))
    {
        if (entry.fileName().startsWith(start))
            paths << entry.filePath();
    }
    return paths;
}

#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace vesk
{

/// A disk of a few pages, visible to this process and its children, and gone when they end.
///
/// Mounting it needs privileges. A user without any gets them in a user namespace, unless the
/// kernel is told to forbid those; IsMounted tells whether they were available.
class SmallDisk
{
public:
    static constexpr int PageSize = 4096;

    /// Gives the process mounts of its own. To be called from a test's initMain: a process that has
    /// threads, and Qt Test begins one, can no longer enter a user namespace.
    static void Prepare()
    {
        const QByteArray user = QByteArray::number(getuid());
        const QByteArray group = QByteArray::number(getgid());
        s_hasOwnMounts = unshare(CLONE_NEWNS) == 0;
        if (s_hasOwnMounts || unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return;
        s_hasOwnMounts = true;
        // A user that is not mapped could create no files there.
        Write("/proc/self/setgroups", "deny");
        Write("/proc/self/uid_map", user + ' ' + user + " 1");
        Write("/proc/self/gid_map", group + ' ' + group + " 1");
    }

    explicit SmallDisk(int pages)
    {
        const QByteArray options = "size=" + QByteArray::number(pages * PageSize);
        m_isMounted = s_hasOwnMounts &&
                      mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                      mount("tmpfs", QFile::encodeName(m_folder.path()).constData(), "tmpfs", 0,
                            options.constData()) == 0;
    }

    ~SmallDisk()
    {
        if (m_isMounted)
            umount2(QFile::encodeName(m_folder.path()).constData(), MNT_DETACH);
    }

    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool IsMounted() const { return m_isMounted; }
    QString File(const QString& name) const { return m_folder.filePath(name); }

    /// Uses up pages until this many are left.
    void LeavePages(int count)
    {
        QFile::remove(Filler());
        QFile filler(Filler());
        filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        const QByteArray page(PageSize, 'f');
        while (filler.write(page) == PageSize)
        {}
        filler.resize(filler.size() - qint64(count) * PageSize);
    }

    /// The number of pages still available.
    int CountFree() const
    {
        QFile probe(File("probe"));
        probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        const QByteArray page(PageSize, 'p');
        int count = 0;
        while (probe.write(page) == PageSize)
            ++count;
        probe.remove();
        return count;
    }

private:
    static void Write(const char* pPath, const QByteArray& text)
    {
        QFile file(QString::fromLatin1(pPath));
        if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            file.write(text);
    }

    QString Filler() const { return File("filler"); }

    inline static bool s_hasOwnMounts = false;

    QTemporaryDir m_folder;
    bool m_isMounted = false;
};

}

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
/// Mounting it needs privileges; IsMounted tells whether they were available.
class SmallDisk
{
public:
    static constexpr int PageSize = 4096;

    explicit SmallDisk(int pages)
    {
        const QByteArray options = "size=" + QByteArray::number(pages * PageSize);
        // Without system privileges, a user namespace may provide them.
        const bool isOwn = unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0;
        m_isMounted = isOwn && mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
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
    QString Filler() const { return File("filler"); }

    QTemporaryDir m_folder;
    bool m_isMounted = false;
};

}

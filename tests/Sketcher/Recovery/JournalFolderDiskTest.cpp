#include "Recovery/JournalFolder.h"

#include "Support/FileBytes.h"
#include "Support/SmallDisk.h"
#include "Support/TestValues.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <sys/mount.h>

using vesk::ReadBytes;
using vesk::SmallDisk;
using vesk::WriteBytes;

/// The folder of the program's own journals, which takes in those of other disks.
class JournalFolderDiskTest final : public QObject
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::Prepare(); }

private slots:
    void init() { m_pDisk = std::make_unique<QTemporaryDir>(); }

    void aJournalOnAnotherDiskIsTakenInToo()
    {
        const SmallDisk disk(16);
        if (!disk.IsMounted())
            QSKIP("cannot mount a disk here");
        const QString mine = disk.File("mine");
        QVERIFY(QDir().mkpath(mine + ".kept"));
        QVERIFY(WriteBytes(mine, "records") && WriteBytes(mine + ".kept/content", "kept"));
        const QDateTime written = QDateTime::currentDateTime().addDays(-3);
        SetTime(mine, written);

        const std::optional<QString> taken = Folder().TakeIn(mine);

        QVERIFY(taken.has_value());
        QCOMPARE(ReadBytes(*taken), QByteArray("records"));
        QCOMPARE(ReadBytes(*taken + ".kept/content"), QByteArray("kept"));
        QVERIFY(qAbs(QFileInfo(*taken).lastModified().secsTo(written)) < 60);
        QVERIFY(!QFileInfo::exists(mine));
    }

    void aJournalThatDoesNotFitIsLeftAsItIs()
    {
        const SmallDisk disk(16);
        if (!disk.IsMounted())
            QSKIP("cannot mount a disk here");
        const QString mine = m_pDisk->filePath("mine");
        const QByteArray records(20 * SmallDisk::PageSize, '.');
        QVERIFY(QDir().mkpath(mine + ".kept"));
        QVERIFY(WriteBytes(mine, records) && WriteBytes(mine + ".kept/content", "kept"));
        const JournalFolder folder(QFileInfo(disk.File("mine")).path());

        const std::optional<QString> taken = folder.TakeIn(mine);

        QVERIFY(!taken.has_value());
        QCOMPARE(ReadBytes(mine), records);
        QCOMPARE(ReadBytes(mine + ".kept/content"), QByteArray("kept"));
        QCOMPARE(folder.GetJournals(), QStringList());
    }

    void aJournalThatCannotBeMovedIsCopied()
    {
        const SmallDisk disk(16);
        if (!disk.IsMounted())
            QSKIP("cannot mount a disk here");
        const QString mine = disk.File("mine");
        QVERIFY(WriteBytes(mine, "records"));
        const QByteArray root = QFileInfo(mine).path().toUtf8();
        QCOMPARE(::mount(nullptr, root.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);

        const std::optional<QString> taken = Folder().TakeIn(mine);

        QVERIFY(taken.has_value());
        QCOMPARE(ReadBytes(*taken), QByteArray("records"));
        QCOMPARE(ReadBytes(mine), QByteArray("records"));
    }

private:
    JournalFolder Folder() const { return JournalFolder(m_pDisk->filePath("journals")); }

    static void SetTime(const QString& path, const QDateTime& time)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    std::unique_ptr<QTemporaryDir> m_pDisk;
};

VESK_TESTS(JournalFolderDiskTest);
#include "JournalFolderDiskTest.moc"

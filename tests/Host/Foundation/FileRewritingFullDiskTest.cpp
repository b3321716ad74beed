#include "Foundation/FileRewriting.h"

#include "Support/FileBytes.h"
#include "Support/FileSizeLimit.h"
#include "Support/SmallDisk.h"
#include "Support/TestValues.h"

#include <QDir>

namespace vesk
{

namespace
{

const QByteArray Old = "what was there";

}

/// Files that are replaced completely or not at all.
class FileRewritingFullDiskTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::Prepare(); }

private slots:
    void everySizeLeavesTheOldFileOrTheNew();
    void everyPageLeavesTheOldFileOrTheNew();
};

void FileRewritingFullDiskTest::everySizeLeavesTheOldFileOrTheNew()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("file");
    const std::string content(300, 'n');
    for (std::size_t limit = 0; limit <= content.size(); ++limit)
    {
        QVERIFY(RewriteFile(path.toStdString(), Old.toStdString()));
        const FileSizeLimit full(limit);

        const bool isWritten = RewriteFile(path.toStdString(), content);

        QCOMPARE(isWritten, limit == content.size());
        QCOMPARE(ReadBytes(path), isWritten ? QByteArray::fromStdString(content) : Old);
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("file"));
    }
}

void FileRewritingFullDiskTest::everyPageLeavesTheOldFileOrTheNew()
{
    constexpr int ContentPages = 12;
    SmallDisk disk(32);
    if (!disk.IsMounted())
        QSKIP("no disk can be mounted here; sizes stand for pages in everySize…");
    const std::string path = disk.File("file").toStdString();
    const std::string content(ContentPages * SmallDisk::PageSize, 'n');
    for (int pages = 0; pages <= ContentPages; ++pages)
    {
        QFile::remove(disk.File("filler"));
        QVERIFY(RewriteFile(path, Old.toStdString()));
        disk.LeavePages(pages);
        QCOMPARE(disk.CountFree(), pages);

        const bool isWritten = RewriteFile(path, content);

        QCOMPARE(isWritten, pages == ContentPages);
        QCOMPARE(ReadBytes(disk.File("file")),
                 isWritten ? QByteArray::fromStdString(content) : Old);
        QCOMPARE(QDir(disk.File("")).entryList(QDir::Files | QDir::Hidden),
                 QStringList({"file", "filler"}));
    }
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::FileRewritingFullDiskTest);
#include "FileRewritingFullDiskTest.moc"

#include "Model/FileContent.h"

#include "Support/FileBytes.h"
#include "Support/Platform/FileLinks.h"
#include "Support/Platform/SpecialFiles.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using Fault = FileContent::Fault;

class FileContentTest final : public QObject
{
    Q_OBJECT

private slots:
    void theBytesOfAFileAreRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        QTest::newRow("some") << QByteArray("a\0b\r\n", 5);
        QTest::newRow("none") << QByteArray();
    }

    void theBytesOfAFileAreRead()
    {
        QFETCH(QByteArray, bytes);
        const QString path = m_folder.filePath("图纸 %1.vsk");
        QVERIFY(vesk::WriteBytes(path, bytes));

        const FileContent content = FileContent::Of(path);

        QCOMPARE(content.bytes, bytes);
        QVERIFY(content.fault == Fault::None);
        QCOMPARE(CaptionOf(content.fault), QString());
    }

    void aLinkIsFollowed()
    {
        QVERIFY(vesk::WriteBytes(m_folder.filePath("a.vsk"), "abc"));
        if (!vesk::test::MakeLink(m_folder.filePath("a.vsk"), m_folder.filePath("link.vsk")))
            QSKIP(vesk::test::NoLinks);

        QCOMPARE(FileContent::Of(m_folder.filePath("link.vsk")).bytes, QByteArray("abc"));
    }

    void whatIsNotARegularFileIsNotRead_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("caption");

        QTest::newRow("no name") << QString() << "文件不存在。";
        QTest::newRow("nothing") << m_folder.filePath("none.vsk") << "文件不存在。";
        QTest::newRow("folder") << m_folder.path() << "这不是普通文件。";
        // Windows lists neither devices nor pipes as files.
        const bool isListed = QSysInfo::kernelType() != "winnt";
        QTest::newRow("endless device")
            << vesk::test::EndlessDevice() << (isListed ? "这不是普通文件。" : "文件不存在。");
        if (isListed)
            QTest::newRow("pipe without a writer") << MakePipe() << "这不是普通文件。";
    }

    void whatIsNotARegularFileIsNotRead()
    {
        QFETCH(QString, path);

        const FileContent content = FileContent::Of(path);

        QVERIFY(content.bytes.isEmpty());
        QTEST(CaptionOf(content.fault), "caption");
    }

    void aFileThatNoTextCanHoldIsNotRead()
    {
        QFile file(m_folder.filePath("large.vsk"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(FileContent::GreatestSize + 1)); // Takes no space on the disk.

        const FileContent content = FileContent::Of(file.fileName());

        QVERIFY(content.bytes.isEmpty());
        QCOMPARE(CaptionOf(content.fault), QString("文件太大。"));
    }

    void anErrorWhileReadingIsTold()
    {
        const vesk::test::UnreadableFile file(m_folder.path());

        const FileContent content = FileContent::Of(file.GetPath());

        QCOMPARE(CaptionOf(content.fault), QString("无法读取文件。"));
    }

private:
    QString MakePipe() const
    {
        const QString path = m_folder.filePath("pipe.vsk");
        QProcess::execute("mkfifo", {path});
        return path;
    }

    QTemporaryDir m_folder;
};

VESK_TESTS_WITHOUT_WINDOWS(FileContentTest);
#include "FileContentTest.moc"

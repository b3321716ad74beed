#include "Foundation/FileRewriting.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace vesk
{

/// Files that are replaced completely.
class FileRewritingTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder = std::make_unique<QTemporaryDir>(); }

    void aFileIsMade();
    void aFileIsReplaced();
    void noOtherFileIsLeft();
    void permissionsStay();
    void whatIsNoFileIsLeftAlone_data();
    void whatIsNoFileIsLeftAlone();

private:
    QString Path(const QString& name) const { return m_pFolder->filePath(name); }

    static bool Rewrite(const QString& path, const std::string& content)
    {
        return RewriteFile(path.toStdString(), content);
    }

    QStringList Names() const
    {
        return QDir(m_pFolder->path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

void FileRewritingTest::aFileIsMade()
{
    const QString name = QString::fromUtf8("图");

    QVERIFY(Rewrite(Path(name), "content"));

    QCOMPARE(ReadBytes(Path(name)), QByteArray("content"));
    QVERIFY(QFileInfo(Path(name)).permission(QFile::ReadOwner | QFile::WriteOwner));
}

void FileRewritingTest::aFileIsReplaced()
{
    QVERIFY(Rewrite(Path("file"), std::string(100000, 'a')));

    QVERIFY(Rewrite(Path("file"), std::string("b\0c", 3)));

    QCOMPARE(ReadBytes(Path("file")), QByteArray("b\0c", 3));
}

void FileRewritingTest::noOtherFileIsLeft()
{
    QVERIFY(Rewrite(Path("file"), "first"));
    QVERIFY(Rewrite(Path("file"), "second"));

    QCOMPARE(Names(), QStringList("file"));
}

void FileRewritingTest::permissionsStay()
{
    QVERIFY(Rewrite(Path("file"), "first"));
    const QFile::Permissions permissions =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    QVERIFY(QFile::setPermissions(Path("file"), permissions));
    // Not every system supports all of them.
    const QFile::Permissions before = QFile::permissions(Path("file"));

    QVERIFY(Rewrite(Path("file"), "second"));

    QCOMPARE(QFile::permissions(Path("file")), before);
}

void FileRewritingTest::whatIsNoFileIsLeftAlone_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("folder") << "FOLDER/folder";
    QTest::newRow("in no folder") << "FOLDER/none/file";
    // Not a device: one replaced by a faulty program would stay replaced on the whole machine.
    if (QSysInfo::kernelType() != "winnt")
        QTest::newRow("pipe") << "FOLDER/folder/pipe";
    QTest::newRow("no name") << "";
}

void FileRewritingTest::whatIsNoFileIsLeftAlone()
{
    QFETCH(QString, path);
    path.replace("FOLDER", m_pFolder->path());
    QVERIFY(QDir(m_pFolder->path()).mkdir("folder"));
    if (path.endsWith("pipe"))
        QCOMPARE(QProcess::execute("mkfifo", {path}), 0);
    const QStringList before = QDir(Path("folder")).entryList(QDir::System);

    QVERIFY(!Rewrite(path, "content"));

    QCOMPARE(Names(), QStringList("folder"));
    QVERIFY(QFileInfo(Path("folder")).isDir());
    QCOMPARE(QDir(Path("folder")).entryList(QDir::System), before);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::FileRewritingTest);
#include "FileRewritingTest.moc"

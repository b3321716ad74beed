#include "Foundation/FileRewriting.h"

#include "Support/TestValues.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>

namespace vesk
{

/// Files that are replaced completely through a link.
class FileRewritingLinksTest : public QObject
{
    Q_OBJECT

private slots:
    void linksStayLinks_data();
    void linksStayLinks();
};

void FileRewritingLinksTest::linksStayLinks_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<bool>("isThere");
    QTest::newRow("to a file") << "file" << true;
    QTest::newRow("to no file yet") << "file" << false;
    QTest::newRow("to another link") << "inner" << true;
}

void FileRewritingLinksTest::linksStayLinks()
{
    QFETCH(QString, target);
    QFETCH(bool, isThere);
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.path().toStdString();
    if (isThere)
        QVERIFY(RewriteFile(path / "file", "first"));
    // Relative links, as users create them.
    std::filesystem::create_symlink("file", path / "inner");
    std::filesystem::create_symlink(target.toStdString(), path / "link");

    QVERIFY(RewriteFile(path / "link", "second"));

    QVERIFY(QFileInfo(folder.filePath("link")).isSymLink());
    QVERIFY(QFileInfo(folder.filePath("inner")).isSymLink());
    QVERIFY(!QFileInfo(folder.filePath("file")).isSymLink());
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("second"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::FileRewritingLinksTest);
#include "FileRewritingLinksTest.moc"

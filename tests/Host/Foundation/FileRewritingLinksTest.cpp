#include "Foundation/FileRewriting.h"

#include "Support/TestValues.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <string>

namespace vesk
{

/// Files that are replaced completely through a link.
class FileRewritingLinksTest : public QObject
{
    Q_OBJECT

private slots:
    void linksStayLinks_data();
    void linksStayLinks();
    void asManyLinksAreFollowedAsTheSystemFollows();
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

void FileRewritingLinksTest::asManyLinksAreFollowedAsTheSystemFollows()
{
    constexpr int MostOfLinux = 40;
    const QTemporaryDir folder;
    const std::filesystem::path path = folder.path().toStdString();
    QVERIFY(RewriteFile(path / "0", "first"));
    for (int i = 0; i < MostOfLinux; ++i)
        std::filesystem::create_symlink(std::to_string(i), path / std::to_string(i + 1));

    QVERIFY(RewriteFile(path / std::to_string(MostOfLinux), "second"));

    QVERIFY(QFileInfo(folder.filePath("1")).isSymLink());
    QFile file(folder.filePath("0"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("second"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::FileRewritingLinksTest);
#include "FileRewritingLinksTest.moc"

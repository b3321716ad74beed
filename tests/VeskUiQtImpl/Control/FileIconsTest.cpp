#include "VeskUiQtImpl/Control/FileIcons.h"

#include "HostUi/QtText.h"
#include "Support/TestValues.h"

#include <QElapsedTimer>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>

#include <filesystem>

namespace vesk::test
{

constexpr wchar_t Resource[] = L":/qt-project.org/styles/commonstyle/images/up-16.png";

/// Icon files in a folder of their own.
struct IconFolder
{
    std::wstring Write(const QString& name, int size = 16) const
    {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::red);
        const QString path = folder.filePath(name);
        if (!pixmap.save(path))
            qFatal("cannot write %s", qPrintable(path));
        return ToWide(path);
    }

    QTemporaryDir folder;
};

class FileIconsTest : public QObject
{
    Q_OBJECT

private slots:
    void unchangedIconIsShared_data();
    void unchangedIconIsShared();
    void changedFileIsReadAgain_data();
    void changedFileIsReadAgain();
    void missingFileIsReadEachTime_data();
    void missingFileIsReadEachTime();
    void fileThatAppearsIsReadAtOnce();
    void anotherPathIsAnotherIcon();
    void iconOfSomebodyElseIsNotCurrent();
    void emptyPathHasNoIcon();
    void ofVeryManyNotAllAreKept();
    void nameMayHaveAnyCharacter();
};

void FileIconsTest::unchangedIconIsShared_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << QString();
    QTest::newRow("resource") << QString::fromWCharArray(Resource);
}

void FileIconsTest::unchangedIconIsShared()
{
    QFETCH(QString, name);
    const IconFolder f;
    const std::wstring path = name.isEmpty() ? f.Write("icon.png") : ToWide(name);
    const QIcon icon = FileIcons::Get(path);
    QVERIFY(!icon.availableSizes().isEmpty());

    // Until the file is looked at again.
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(timer.elapsed() > 10);

    QVERIFY(FileIcons::IsCurrent(icon, path));
    QCOMPARE(FileIcons::Get(path).cacheKey(), icon.cacheKey());
}

void FileIconsTest::changedFileIsReadAgain_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("secondsLater");
    QTest::newRow("other size") << 200 << 0;
    QTest::newRow("other time") << 16 << 1;
}

void FileIconsTest::changedFileIsReadAgain()
{
    QFETCH(int, size);
    QFETCH(int, secondsLater);
    const IconFolder f;
    const std::wstring path = f.Write("icon.png");
    const auto time = std::filesystem::last_write_time(path);
    const QIcon old = FileIcons::Get(path);

    f.Write("icon.png", size);
    std::filesystem::last_write_time(path, time + std::chrono::seconds(secondsLater));

    QTRY_VERIFY(!FileIcons::IsCurrent(old, path));
    const QIcon icon = FileIcons::Get(path);
    QVERIFY(icon.cacheKey() != old.cacheKey());
    QCOMPARE(icon.availableSizes(), QList<QSize>({QSize(size, size)}));
    QVERIFY(FileIcons::IsCurrent(icon, path));
    QVERIFY(!FileIcons::IsCurrent(old, path));
}

void FileIconsTest::missingFileIsReadEachTime_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("file") << QString("/nowhere/icon.png");
    QTest::newRow("resource") << QString(":/nowhere/icon.png");
}

void FileIconsTest::missingFileIsReadEachTime()
{
    QFETCH(QString, name);
    const std::wstring path = ToWide(name);

    const QIcon icon = FileIcons::Get(path);

    QVERIFY(!FileIcons::IsCurrent(icon, path));
    QVERIFY(FileIcons::Get(path).cacheKey() != icon.cacheKey());
}

void FileIconsTest::fileThatAppearsIsReadAtOnce()
{
    const IconFolder f;
    const QIcon missing = FileIcons::Get(ToWide(f.folder.filePath("icon.png")));

    const std::wstring path = f.Write("icon.png");

    QVERIFY(!FileIcons::IsCurrent(missing, path));
    QCOMPARE(FileIcons::Get(path).availableSizes(), QList<QSize>({QSize(16, 16)}));
}

void FileIconsTest::anotherPathIsAnotherIcon()
{
    const IconFolder f;
    const std::wstring path = f.Write("icon.png");
    const std::wstring otherPath = f.Write("other.png");

    const QIcon icon = FileIcons::Get(path);

    QVERIFY(!FileIcons::IsCurrent(icon, otherPath));
    QVERIFY(FileIcons::Get(otherPath).cacheKey() != icon.cacheKey());
}

void FileIconsTest::iconOfSomebodyElseIsNotCurrent()
{
    const IconFolder f;
    const std::wstring path = f.Write("icon.png");
    FileIcons::Get(path);

    QVERIFY(!FileIcons::IsCurrent(QIcon(), path));
    QVERIFY(!FileIcons::IsCurrent(QIcon(ToQString(path)), path));
}

void FileIconsTest::emptyPathHasNoIcon()
{
    QVERIFY(FileIcons::Get(L"").isNull());
    QVERIFY(FileIcons::IsCurrent(QIcon(), L""));
    QVERIFY(!FileIcons::IsCurrent(FileIcons::Get(Resource), L""));
}

void FileIconsTest::ofVeryManyNotAllAreKept()
{
    const IconFolder f;
    const std::wstring path = f.Write("icon.png");
    const QIcon first = FileIcons::Get(path);

    const QString file = f.folder.filePath("icon.png");
    for (int i = 0; i < 3000; ++i)
    {
        const QString link = f.folder.filePath(QString::number(i) + ".png");
        QVERIFY(QFile::link(file, link));
        FileIcons::Get(ToWide(link));
    }

    QVERIFY(FileIcons::Get(path).cacheKey() != first.cacheKey());
}

void FileIconsTest::nameMayHaveAnyCharacter()
{
    const IconFolder f;
    const std::wstring path = f.Write(QString::fromUtf8("直\xF0\x9F\x93\x90 線.png"));

    const QIcon icon = FileIcons::Get(path);

    QVERIFY(FileIcons::IsCurrent(icon, path));
    QVERIFY(!FileIcons::IsCurrent(icon, std::wstring(1, wchar_t(0xD835))));
}

}

VESK_TESTS(vesk::test::FileIconsTest);
#include "FileIconsTest.moc"

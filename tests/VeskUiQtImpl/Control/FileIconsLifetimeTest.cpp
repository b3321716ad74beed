#include "VeskUiQtImpl/Control/FileIcons.h"

#include "HostUi/QtText.h"
#include "Support/TestValues.h"

#include <QApplication>
#include <QImage>
#include <QTemporaryDir>

namespace vesk::test
{

/// Applications one after the other, as in a program that is a plug-in.
class FileIconsLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void iconsAreGivenUpWithTheApplication_data();
    void iconsAreGivenUpWithTheApplication();
};

void FileIconsLifetimeTest::iconsAreGivenUpWithTheApplication_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("the first application") << 1;
    QTest::newRow("the second") << 2;
}

void FileIconsLifetimeTest::iconsAreGivenUpWithTheApplication()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("icon.png");
    QVERIFY(QImage(16, 16, QImage::Format_RGB32).save(path));
    QIcon icon;

    {
        int argc = 1;
        char name[] = "test";
        char* argv[] = {name, nullptr};
        const QApplication application(argc, argv);
        icon = FileIcons::Get(ToWide(path));
        QVERIFY(FileIcons::IsCurrent(icon, ToWide(path)));
    }

    QVERIFY(!FileIcons::IsCurrent(icon, ToWide(path)));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::test::FileIconsLifetimeTest);
#include "FileIconsLifetimeTest.moc"

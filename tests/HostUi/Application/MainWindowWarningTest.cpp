#include "HostUi/MainWindow.h"

#include "HostUi/WarningReader.h"
#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"

#include <QLabel>
#include <QTemporaryDir>

#include <thread>

namespace vesk
{
namespace
{

DebugMessageMgr& Manager()
{
    return *DebugMessageMgr::GetDebugMessageMgr();
}

void Warn(int line)
{
    Manager().ShowDebugWarn("File.cpp", line, "vesk::F::G", L"message", L"vesk-ui", L"2026-11-21");
}

struct Fixture
{
    Fixture()
    {
        Manager().Reset();
        Manager().SetAttended(true);
    }

    ~Fixture()
    {
        Manager().CloseLog();
        Manager().Reset();
    }

    const QLabel& Count() const { return *window.findChild<QLabel*>("WarningCount"); }

    test::WarningReader reader;
    MainWindow window;
};

}

/// What the status bar shows about warnings that were not shown.
class MainWindowWarningTest : public QObject
{
    Q_OBJECT

private slots:
    void aWarningThatWasShownIsNotCounted();
    void warningsThatWereNotShownAreCounted();
    void warningsOfAnotherThreadAreCounted();
    void theTipTellsWhereTheLogIs();
    void withoutALogTheTipNamesStandardError();
};

void MainWindowWarningTest::aWarningThatWasShownIsNotCounted()
{
    Fixture f;

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QVERIFY(f.Count().isHidden());
}

void MainWindowWarningTest::warningsThatWereNotShownAreCounted()
{
    Fixture f;
    f.reader.whileShown = [] {
        Warn(2);
        Warn(2);
    };

    Warn(1);
    QCoreApplication::sendPostedEvents();
    QVERIFY(!f.Count().isHidden());
    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：2"));

    f.reader.whileShown = [] { Warn(4); };
    Warn(3);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：3"));
}

void MainWindowWarningTest::warningsOfAnotherThreadAreCounted()
{
    Fixture f;
    f.reader.whileShown = [] { std::thread([] { Warn(2); }).join(); };

    Warn(1);
    QVERIFY(f.Count().text().isEmpty());
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().text(), QString::fromUtf8("未显示的警告：1"));
}

void MainWindowWarningTest::theTipTellsWhereTheLogIs()
{
    Fixture f;
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("警告.log"));
    Manager().OpenLog(path.toStdString());
    f.reader.whileShown = [] { Warn(2); };

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().toolTip(), QString::fromUtf8("对话框打开时发生的警告，见日志：") +
                                      QDir::toNativeSeparators(path));
}

void MainWindowWarningTest::withoutALogTheTipNamesStandardError()
{
    Fixture f;
    f.reader.whileShown = [] { Warn(2); };

    Warn(1);
    QCoreApplication::sendPostedEvents();

    QCOMPARE(f.Count().toolTip(), QString::fromUtf8("对话框打开时发生的警告，见标准错误输出"));
}

}

VESK_TESTS(vesk::MainWindowWarningTest);
#include "MainWindowWarningTest.moc"

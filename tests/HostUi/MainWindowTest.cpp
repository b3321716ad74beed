#include "HostUi/MainWindow.h"

#include "HostCore.h"
#include "HostUi/UiApplication.h"
#include "Support/TestValues.h"

#include <QLabel>
#include <QStatusBar>

namespace vesk
{

namespace
{

struct Fixture
{
    Fixture() { window.show(); }

    QLabel* States() const { return window.statusBar()->findChild<QLabel*>("States"); }

    HostCore core;
    UiApplication application;
    MainWindow window;
};

}

/// What the main frame says of itself.
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void atFirstNothingIsSaid()
    {
        const Fixture f;

        QVERIFY(!f.States()->isVisible());
    }

    void aStateStaysUntilItIsTakenAway()
    {
        Fixture f;

        f.window.ShowState("journal", "not kept", "cannot write /journal");
        QVERIFY(f.States()->isVisible());
        QCOMPARE(f.States()->text(), QString("not kept"));
        QCOMPARE(f.States()->toolTip(), QString("cannot write /journal"));

        f.window.ShowState("journal", {}, {});
        QVERIFY(!f.States()->isVisible());
        QCOMPARE(f.States()->text(), QString());
    }

    void subjectsStandBesideOneAnother()
    {
        Fixture f;
        f.window.ShowState("a", "first", "first tip");
        f.window.ShowState("b", "second", "second tip");

        f.window.ShowState("a", "third", "third tip");
        QCOMPARE(f.States()->text(), QStringLiteral("third；second"));
        QCOMPARE(f.States()->toolTip(), QString("third tip\nsecond tip"));

        f.window.ShowState("a", {}, "nobody sees it");
        QCOMPARE(f.States()->text(), QString("second"));
        QCOMPARE(f.States()->toolTip(), QString("second tip"));
    }

    void aLongStateDoesNotWidenTheWindow()
    {
        Fixture f;
        f.window.resize(700, 500);
        const int least = f.window.minimumSizeHint().width();

        f.window.ShowState("journal", QString(2000, 'x'), {});
        QCoreApplication::processEvents();

        QVERIFY(f.window.minimumSizeHint().width() <= least + 20);
        QCOMPARE(f.window.width(), 700);
    }
};

}

QTEST_MAIN(vesk::MainWindowTest)
#include "MainWindowTest.moc"

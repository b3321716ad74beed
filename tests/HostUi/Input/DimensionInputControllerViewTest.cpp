#include "HostUi/InputFixture.h"

#include "Support/TestValues.h"

using namespace vesk;
using namespace vesk::test;

namespace
{

/// Makes another view the current one while it lives.
struct CurrentView
{
    CurrentView(HostFixture& hostFixture, IUiView& current) : host(hostFixture), view(current)
    {
        host.core.GetViewManager().AddView(&view);
        host.core.GetViewManager().SetCurrentView(&view);
    }
    ~CurrentView() { host.core.GetViewManager().RemoveView(&view); }
    CurrentView(const CurrentView&) = delete;
    CurrentView& operator=(const CurrentView&) = delete;

    HostFixture& host;
    IUiView& view;
};

}

/// How the editor, its keys and its notes relate to the view.
class DimensionInputControllerViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void inputGoesOnWithoutACurrentView()
    {
        InputFixture f(Linear());
        f.Type("5");
        f.host.core.GetViewManager().SetCurrentView(nullptr);

        f.Type("7");
        QCOMPARE(f.Editor()->text(), QString("57"));
        QCOMPARE(f.Note("InputKeys"), QString());
        f.Press(Qt::Key_Space, " ").Type("m");

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QVERIFY(!TemporaryDimensionMgr::GetInstance()->IsInputting());
    }

    void keyOfAClosedEditorIsNobodysWithoutACurrentView()
    {
        InputFixture f(Linear());
        f.Type("5");
        TemporaryDimensionMgr::GetInstance()->EndInput();
        f.host.core.GetViewManager().SetCurrentView(nullptr);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");

        QCoreApplication::sendEvent(f.Editor(), &press);

        QCOMPARE(f.Editor()->text(), QString("5"));
        QVERIFY(f.host.view.GetKeys().empty());
    }

    void notesMoveToTheViewThatIsCurrent()
    {
        InputFixture f(Linear());
        f.Type("5").Note("InputKeys");
        TestView other(2, &f.host.window);
        other.show();
        const CurrentView current(f.host, other);

        f.Type("cm");

        QVERIFY(f.host.view.findChildren<QLabel*>().empty());
        QCOMPARE(other.findChildren<QLabel*>("InputKeys").size(), 1);
        QCOMPARE(other.findChildren<QLabel*>("InputValue").size(), 1);
    }

    void stripIsSwitchedWithoutAnInput()
    {
        InputFixture f(Linear());

        f.controller.SetKeyStripShown(false);
        QCOMPARE(f.Type("5").Note("InputKeys"), QString());
        TemporaryDimensionMgr::GetInstance()->EndInput();
        f.controller.SetKeyStripShown(true);

        QVERIFY(!f.Type("5").Note("InputKeys").isEmpty());
    }

    void keyOfTheEditorIsItsOwnWhileTheViewHasTheFocus()
    {
        InputFixture f(Linear());
        f.host.view.setFocus();
        QCOMPARE(f.host.window.focusWidget(), &f.host.view);

        f.Type("57");

        QCOMPARE(f.Editor()->text(), QString("57"));
        QVERIFY(f.host.view.GetKeys().empty());
    }

    void escapeCountsAgainOnceItWasReleased()
    {
        InputFixture f(Linear());
        ActionManager::Reset();
        const auto press = [&f](ulong time) {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            event.setTimestamp(time);
            return !f.controller.OnViewKey(event);
        };
        QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
        release.setTimestamp(1350);

        QVERIFY(press(1000));
        QVERIFY(!press(1300));
        QCoreApplication::sendEvent(&f.host.view, &release);
        QVERIFY(press(1400));
    }

    void modifiersAreToldToTheHandler_data()
    {
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<bool>("isAlt");
        QTest::addColumn<bool>("isShift");

        QTest::newRow("none") << int(Qt::NoModifier) << false << false;
        QTest::newRow("Alt") << int(Qt::AltModifier) << true << false;
        QTest::newRow("Shift") << int(Qt::ShiftModifier) << false << true;
        QTest::newRow("both") << int(Qt::AltModifier | Qt::ShiftModifier) << true << true;
    }

    void modifiersAreToldToTheHandler()
    {
        QFETCH(int, modifiers);
        InputFixture f(Linear());
        QKeyEvent press(QEvent::KeyPress, Qt::Key_5, Qt::KeyboardModifiers(modifiers), "5");

        f.controller.OnViewKey(press);

        QCOMPARE(f.script.heard.size(), std::size_t(1));
        QCOMPARE(f.script.heard[0].virtualKey, int('5'));
        QVERIFY(!f.script.heard[0].isCtrl);
        QTEST(f.script.heard[0].isAlt, "isAlt");
        QTEST(f.script.heard[0].isShift, "isShift");
    }

    void characterOpensTheInputAsAnUnmodifiedZero()
    {
        InputFixture f(Linear());

        f.Type("(");

        QCOMPARE(f.script.heard.size(), std::size_t(1));
        QCOMPARE(f.script.heard[0].virtualKey, int('0'));
        QVERIFY(!f.script.heard[0].isCtrl);
        QVERIFY(!f.script.heard[0].isAlt);
        QVERIFY(!f.script.heard[0].isShift);
    }

    void keyThatMeansSomethingIsKeptFromTheWindow_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isKept");

        QTest::newRow("digit") << int(Qt::Key_5) << int(Qt::NoModifier) << "5" << true;
        QTest::newRow("point") << int(Qt::Key_Period) << int(Qt::NoModifier) << "." << true;
        QTest::newRow("Alt+letter") << int(Qt::Key_P) << int(Qt::AltModifier) << "p" << true;
        QTest::newRow("Ctrl+letter") << int(Qt::Key_P) << int(Qt::ControlModifier) << "" << false;
        QTest::newRow("F5") << int(Qt::Key_F5) << int(Qt::NoModifier) << "" << false;
    }

    void keyThatMeansSomethingIsKeptFromTheWindow()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        QFETCH(QString, text);
        InputFixture f(Linear());
        QKeyEvent press(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);

        QTEST(f.controller.OnViewKey(press), "isKept");
    }

    void clickTakesTheValueAsReturnAlone()
    {
        InputFixture f(Linear());

        f.Type("5");
        QVERIFY(f.controller.Commit());

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
    }

    void shiftTabIsHandedOnAsTabAlone()
    {
        InputFixture f(Linear());
        f.Type("5");
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Backtab, Qt::ShiftModifier);

        QCoreApplication::sendEvent(f.Editor(), &press);

        QCOMPARE(f.script.taken.size(), std::size_t(1));
        QCOMPARE(f.script.taken[0].modifiers, Qt::KeyboardModifiers(Qt::NoModifier));
    }
};

VESK_TESTS(DimensionInputControllerViewTest);
#include "DimensionInputControllerViewTest.moc"

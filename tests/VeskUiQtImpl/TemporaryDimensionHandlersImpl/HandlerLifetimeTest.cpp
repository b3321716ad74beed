#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include <QtTest>

#include <memory>

namespace vesk::test
{

/// A handler in a view that may go before it, and an action that takes its values.
struct LifetimeFixture : HandlerFixture
{
    LifetimeFixture() : pView(std::make_unique<TestView>(2, &host.window))
    {
        host.BeginAction();
        host.core.GetViewManager().AddView(pView.get());
        host.core.GetViewManager().SetCurrentView(pView.get());
        opHandler = CreateHandler();
    }

    ~LifetimeFixture()
    {
        ActionManager::Reset();
        DropView();
    }

    void DropView()
    {
        host.core.GetViewManager().RemoveView(pView.get());
        pView.reset();
    }

    QLineEdit* Editor() const { return pView->findChild<QLineEdit*>("ViewInputLineEdit"); }

    bool FilterKey(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        return Object().eventFilter(Editor(), &press);
    }

    std::unique_ptr<TestView> pView;
};

/// Does something once when a widget gets an event of a type.
class EventTrap final : public QObject
{
public:
    EventTrap(QWidget* pWidget, QEvent::Type type, std::function<void()> act)
        : m_type(type), m_act(std::move(act))
    {
        pWidget->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() != m_type)
            return false;
        if (const auto act = std::exchange(m_act, nullptr))
            act();
        return false;
    }

private:
    QEvent::Type m_type;
    std::function<void()> m_act;
};

class HandlerLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void handlerMayDieInTheDeliveryOfReturn_data();
    void handlerMayDieInTheDeliveryOfReturn();
    void handlerMayDieInTheDeliveryOfTab();
    void handlerMayDieInTheDeliveryOfARealKey();
    void handlerMayDieWhenAKeyOpensTheEditor();
    void handlerMayDieWhenAMinusOpensTheEditor();
    void handlerMayDieWhenAKeyRefreshesTheView();
    void handlerMayDieWhenEscapeHidesTheEditor();
    void handlerMayDieWhenReturnHidesTheEditor();
    void handlerMayDieWhenTheEditorIsShown();
    void handlerMayDieWhenAReadyEditorIsShown();
    void editorMayDieInTheDeliveryOfReturn();
    void editorMayDieInTheDeliveryOfTab();
    void handlerMayDieWhenEscapeMovesTheFocus();
    void handlerOutlivesItsView();
    void handlerWorksOnInAnotherViewAfterItsOwnDied();
    void handlersMayGoInAnyOrder();
    void oldHandlerKeepsOutOfTheKeysOfTheNewOne();
};

void HandlerLifetimeTest::handlerMayDieInTheDeliveryOfReturn_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void HandlerLifetimeTest::handlerMayDieInTheDeliveryOfReturn()
{
    QFETCH(int, key);
    LifetimeFixture f;
    f.TypeLength("5");
    f.host.actionLog.onInput = [&] { f.opHandler.Reset(); };

    const bool isSwallowed = f.FilterKey(key);

    QVERIFY(!isSwallowed);
    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.host.actionLog.inputs.size(), std::size_t(1));
}

void HandlerLifetimeTest::handlerMayDieInTheDeliveryOfTab()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.host.actionLog.onInput = [&] { f.opHandler.Reset(); };

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.Editor()->text(), QString("5"));
}

void HandlerLifetimeTest::handlerMayDieInTheDeliveryOfARealKey()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.host.actionLog.onInput = [&] { f.opHandler.Reset(); };

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor()->isHidden());
}

void HandlerLifetimeTest::handlerMayDieWhenAKeyOpensTheEditor()
{
    LifetimeFixture f;
    f.pView->SetOnRedraw([&] { f.opHandler.Reset(); });

    QVERIFY(f.SendToHandler('5'));

    QVERIFY(f.opHandler == nullptr);
}

void HandlerLifetimeTest::handlerMayDieWhenAMinusOpensTheEditor()
{
    LifetimeFixture f;
    f.pView->SetOnRedraw([&] { f.opHandler.Reset(); });
    const int redrawCount = f.pView->GetRedrawCount();

    QVERIFY(!f.SendToHandler('-'));

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.pView->GetRedrawCount(), redrawCount + 1);
}

void HandlerLifetimeTest::handlerMayDieWhenAKeyRefreshesTheView()
{
    LifetimeFixture f;
    f.pView->SetOnRedraw([&] { f.opHandler.Reset(); });

    QVERIFY(!f.SendToHandler(Qt::Key_F5));

    QVERIFY(f.opHandler == nullptr);
}

void HandlerLifetimeTest::handlerMayDieWhenEscapeHidesTheEditor()
{
    LifetimeFixture f;
    f.TypeLength("5");
    const EventTrap trap(f.Editor(), QEvent::Hide, [&] { f.opHandler.Reset(); });

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor()->isHidden());
}

void HandlerLifetimeTest::handlerMayDieWhenReturnHidesTheEditor()
{
    LifetimeFixture f;
    f.TypeLength("5");
    const EventTrap trap(f.Editor(), QEvent::Hide, [&] { f.opHandler.Reset(); });

    QVERIFY(!f.FilterKey(Qt::Key_Return));

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.host.actionLog.inputs.size(), std::size_t(1));
    QCOMPARE(f.host.actionLog.inputs[0].value, 5.0);
}

void HandlerLifetimeTest::handlerMayDieWhenTheEditorIsShown()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.opHandler->EndInput();
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { f.opHandler.Reset(); });

    QVERIFY(f.SendToHandler('6'));

    QVERIFY(f.opHandler == nullptr);
}

void HandlerLifetimeTest::handlerMayDieWhenAReadyEditorIsShown()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.Editor()->hide();
    const int redrawCount = f.pView->GetRedrawCount();
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { f.opHandler.Reset(); });

    f.Handler().ShowInputWidget(InputState::IS_Length, true, true, L"6");

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.pView->GetRedrawCount(), redrawCount);
}

void HandlerLifetimeTest::editorMayDieInTheDeliveryOfReturn()
{
    LifetimeFixture f;
    f.TypeLength("5");
    const QPointer<QLineEdit> pEditor(f.Editor());
    f.host.actionLog.onInput = [&] { f.DropView(); };
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r");

    QCoreApplication::sendEvent(pEditor, &press);

    QVERIFY(pEditor == nullptr);
    QVERIFY(!f.opHandler->IsInputting());
}

void HandlerLifetimeTest::editorMayDieInTheDeliveryOfTab()
{
    LifetimeFixture f;
    f.TypeLength("5");
    const QPointer<QLineEdit> pEditor(f.Editor());
    f.host.actionLog.onInput = [&] { f.DropView(); };

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(pEditor == nullptr);
    QVERIFY(!f.opHandler->IsInputting());
}

void HandlerLifetimeTest::handlerMayDieWhenEscapeMovesTheFocus()
{
    LifetimeFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    QObject context;
    connect(qApp, &QApplication::focusChanged, &context, [&] { f.opHandler.Reset(); });

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor()->isHidden());
}

void HandlerLifetimeTest::handlerOutlivesItsView()
{
    LifetimeFixture f;
    f.TypeLength("5");

    f.DropView();

    QVERIFY(!f.opHandler->HasEditorFocus());
    f.opHandler->OnEditorReturnPressed();
    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition");
    f.opHandler->EndInput();
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.host.actionLog.inputs.empty());
}

void HandlerLifetimeTest::handlerWorksOnInAnotherViewAfterItsOwnDied()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.DropView();
    f.opHandler->EndInput();

    f.TypeLength("6");

    const auto* pEditor = f.host.view.findChild<QLineEdit*>("ViewInputLineEdit");
    QVERIFY(pEditor != nullptr);
    QCOMPARE(pEditor->text(), QString("6"));
}

void HandlerLifetimeTest::handlersMayGoInAnyOrder()
{
    LifetimeFixture f;
    f.TypeLength("5");
    auto opSecond = f.CreateHandler();
    auto opThird = f.CreateHandler();

    f.opHandler.Reset();
    opThird.Reset();

    QVERIFY(opSecond->OnKeyDown('7', false, false, false));
    QCOMPARE(f.Editor()->text(), QString("7"));
}

void HandlerLifetimeTest::oldHandlerKeepsOutOfTheKeysOfTheNewOne()
{
    LifetimeFixture f;
    f.TypeLength("5");
    f.opHandler->EndInput();
    auto opOld = std::exchange(f.opHandler, f.CreateHandler());
    f.TypeLength("6");

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.host.actionLog.inputs.size(), std::size_t(1));
    QCOMPARE(f.host.actionLog.inputs[0].value, 6.0);
}

}

QTEST_MAIN(vesk::test::HandlerLifetimeTest)
#include "HandlerLifetimeTest.moc"

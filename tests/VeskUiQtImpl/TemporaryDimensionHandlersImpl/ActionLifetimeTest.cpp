#include "Command/ActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/ActiveWindow.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/LifetimeFixture.h"

namespace vesk::test
{

/// A running action whose dimensions are kept by the host's manager, with the editor open in a
/// view.
struct InputFixture
{
    explicit InputFixture(const KindRules& rules)
        : pView(std::make_unique<TestView>(2, &host.window))
    {
        ShowActive(host.window);
        host.core.GetViewManager().AddView(pView.get());
        host.core.GetViewManager().SetCurrentView(pView.get());
        host.actionLog.createContext = rules.pCreateContext;
        ActionManager::ProcessCommand(pView.get(), host.AddInteractiveCommand(L"Test.Action"), {},
                                      nullptr);
        Dimensions().OnKeyDown('5', false, false, false);
    }

    ~InputFixture()
    {
        ActionManager::Reset();
        DropView();
    }

    static TemporaryDimensionMgr& Dimensions() { return *TemporaryDimensionMgr::GetInstance(); }

    QLineEdit* Editor() const
    {
        return pView != nullptr ? pView->findChild<QLineEdit*>("ViewInputLineEdit") : nullptr;
    }

    void DropView()
    {
        host.core.GetViewManager().RemoveView(pView.get());
        pView.reset();
    }

    void Kill(const QString& victim)
    {
        if (victim == "action")
            ActionManager::Reset();
        else if (victim == "handler")
            Dimensions().Drop();
        else if (victim == "view")
            DropView();
        else
            delete Editor();
    }

    void PressInEditor(int key) const
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(Editor(), &press);
    }

    /// Destroys a victim while the library is calling the host or Qt: at "delivery" of a value, at
    /// "refresh" of the view, when the editor is about to "hide", when the "focus" changes.
    void KillAt(const QString& place, const QString& victim)
    {
        const auto kill = [this, victim] { Kill(victim); };
        QObject context;
        if (place == "delivery")
        {
            host.actionLog.onInput = kill;
            PressInEditor(Qt::Key_Return);
        }
        else if (place == "refresh")
        {
            pView->SetOnRedraw(kill);
            Dimensions().OnKeyDown('7', false, false, false);
        }
        else if (place == "hide")
        {
            const EventTrap trap(Editor(), QEvent::Hide, kill);
            PressInEditor(Qt::Key_Escape);
        }
        else
        {
            QObject::connect(qApp, &QApplication::focusChanged, &context, kill);
            PressInEditor(Qt::Key_Escape);
        }
    }

    /// Calls what a host calls next, whichever objects are left.
    void GoOn()
    {
        IUiView* pCurrent = host.core.GetViewManager().GetCurrentUiView();
        Dimensions().OnKeyDown('8', false, false, false);
        ActionManager::RefreshViewInput(pCurrent);
        ActionManager::ProcessMouseMove(pCurrent, {1, 2, 0});
        ActionManager::ProcessViewInput(pCurrent, {});
        Dimensions().EndInput();
        while (pView == nullptr && !host.warnings.IsEmpty())
            QCOMPARE(host.warnings.TakeAny().message, std::wstring(L"pUIView为空！"));
    }

    HostFixture host;
    std::unique_ptr<TestView> pView;
};

/// Destruction of an action relative to that of its handler, editor and view.
class ActionLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void fourMayGoInAnyOrder_data();
    void fourMayGoInAnyOrder();
    void firstOfThemMayGoInsideACall_data();
    void firstOfThemMayGoInsideACall();
};

/// Tries all orders of the four.
template <class Add>
void AddOrders(const Add& add)
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("place");
    QTest::addColumn<QStringList>("order");
    QStringList order{"action", "editor", "handler", "view"};
    do
    {
        for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
            add(int(kind), order);
    } while (std::next_permutation(order.begin(), order.end()));
}

void AddRow(int kind, const char* place, const QStringList& order)
{
    QTest::addRow("%s, %s: %s", AllKinds()[std::size_t(kind)].name, place,
                  qPrintable(order.join(", ")))
        << kind << QString(place) << order;
}

void EndAll(InputFixture& f, const QStringList& order)
{
    for (const QString& victim : order)
    {
        f.Kill(victim);
        f.GoOn();
    }
    QCOMPARE(f.host.actionLog.endCount, 1);
    QVERIFY(ActionManager::GetRunningCommandId().empty());
    QVERIFY(!f.Dimensions().HasHandler());
    QVERIFY(f.pView == nullptr);
}

void ActionLifetimeTest::fourMayGoInAnyOrder_data()
{
    AddOrders([](int kind, const QStringList& order) { AddRow(kind, "one by one", order); });
}

void ActionLifetimeTest::fourMayGoInAnyOrder()
{
    FETCH_KIND(rules);
    QFETCH(QStringList, order);
    InputFixture f(rules);
    QVERIFY(f.Dimensions().IsInputting());

    EndAll(f, order);
}

void ActionLifetimeTest::firstOfThemMayGoInsideACall_data()
{
    AddOrders([](int kind, const QStringList& order) {
        for (const char* place : {"delivery", "refresh"})
            AddRow(kind, place, order);
        // Qt continues to use the widget that it hides or takes the focus from.
        if (order[0] != "editor" && order[0] != "view")
        {
            for (const char* place : {"hide", "focus"})
                AddRow(kind, place, order);
        }
    });
}

void ActionLifetimeTest::firstOfThemMayGoInsideACall()
{
    FETCH_KIND(rules);
    QFETCH(QString, place);
    QFETCH(QStringList, order);
    InputFixture f(rules);
    QTRY_VERIFY(f.Editor()->hasFocus());

    f.KillAt(place, order[0]);

    // An input that has lost its editor continues until it is ended.
    QCOMPARE(f.Dimensions().IsInputting(), place == "refresh" && f.Editor() == nullptr);
    EndAll(f, order.mid(1));
}

}

VESK_TESTS(vesk::test::ActionLifetimeTest);
#include "ActionLifetimeTest.moc"

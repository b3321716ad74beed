#include "TemporaryDimensionHandlersImpl/LifetimeFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// Which objects may be destroyed while the host has control: handler, editor and view, in every
/// kind.
class HandlerLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void deathInTheDeliveryOfAValue_data();
    void deathInTheDeliveryOfAValue();
    void whatReturnFiltersWhenTheEditorDied_data();
    void whatReturnFiltersWhenTheEditorDied();
    void inputThatTheActionEndedStaysEnded_data();
    void inputThatTheActionEndedStaysEnded();
    void deathWhenAKeyRefreshesTheView_data();
    void deathWhenAKeyRefreshesTheView();
    void noSecondRefreshAfterTheHandlerDied_data();
    void noSecondRefreshAfterTheHandlerDied();
    void deathWhenEscapeReachesTheView_data();
    void deathWhenEscapeReachesTheView();
    void handlerMayDieInEachEventOfTheEditor_data();
    void handlerMayDieInEachEventOfTheEditor();
    void handlerMayDieWhenTheFocusChanges_data();
    void handlerMayDieWhenTheFocusChanges();
    void handlerMayDieWhenTheEditorIsShown_data();
    void handlerMayDieWhenTheEditorIsShown();
    void handlerMayDieWhenAReadyEditorIsShown_data();
    void handlerMayDieWhenAReadyEditorIsShown();
    void editorMayDieWhenItIsShown_data() { AddKindRows(); }
    void editorMayDieWhenItIsShown();
    void inputThatEndsWhenTheEditorIsShownStaysEnded_data();
    void inputThatEndsWhenTheEditorIsShownStaysEnded();
    void deathWhenAKeyIsReported_data();
    void deathWhenAKeyIsReported();
    void deathWhenAValueIsReported_data();
    void deathWhenAValueIsReported();
    void handlerMayDieWhenAKeyWithoutAFieldIsReported();
    void threeMayGoInAnyOrder_data();
    void threeMayGoInAnyOrder();
    void handlerWorksOnInAnotherViewAfterItsOwnDied_data();
    void handlerWorksOnInAnotherViewAfterItsOwnDied();
    void handlersMayGoInAnyOrder_data();
    void handlersMayGoInAnyOrder();
    void oldHandlerKeepsOutOfTheReturnOfTheNewOne_data();
    void oldHandlerKeepsOutOfTheReturnOfTheNewOne();
};

/// A row for each kind, key and victim.
void AddDeathRows(
    const std::vector<std::pair<const char*, int>>& keys,
    bool (*pIsWanted)(const KindRules&, int) = [](const KindRules&, int) { return true; })
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("victim");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (const auto& [name, key] : keys)
        {
            if (!pIsWanted(AllKinds()[kind], key))
                continue;
            for (const char* victim : {"handler", "editor", "view"})
                QTest::addRow("%s, %s, %s", AllKinds()[kind].name, name, victim)
                    << int(kind) << key << QString(victim);
        }
    }
}

void HandlerLifetimeTest::deathInTheDeliveryOfAValue_data()
{
    AddDeathRows({{"Return", Qt::Key_Return},
                  {"Enter", Qt::Key_Enter},
                  {"Space", Qt::Key_Space},
                  {"Tab", Qt::Key_Tab}},
                 [](const KindRules& rules, int key) {
                     return (key != Qt::Key_Space || rules.Has(CommitsWithSpace)) &&
                            (key != Qt::Key_Tab || rules.Has(SwitchesWithTab));
                 });
}

void HandlerLifetimeTest::deathInTheDeliveryOfAValue()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.host.actionLog.onInput = [&] { f.Kill(victim); };

    f.PressInEditor(key);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Editor() == nullptr, victim != "handler");
    QVERIFY(f.opHandler == nullptr || !f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr || key == Qt::Key_Tab || f.Editor()->isHidden());
}

void HandlerLifetimeTest::whatReturnFiltersWhenTheEditorDied_data()
{
    AddDeathRows({{"Return", Qt::Key_Return}});
}

void HandlerLifetimeTest::whatReturnFiltersWhenTheEditorDied()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.host.actionLog.onInput = [&] { f.Kill(victim); };

    const bool isSwallowed = f.FilterKey(key);

    QCOMPARE(isSwallowed, victim != "handler");
}

void HandlerLifetimeTest::inputThatTheActionEndedStaysEnded_data()
{
    AddKindRows([](const KindRules& rules) { return rules.Has(SwitchesWithTab); });
}

void HandlerLifetimeTest::inputThatTheActionEndedStaysEnded()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.host.actionLog.onInput = [&] { f.opHandler->EndInput(); };

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
}

void HandlerLifetimeTest::deathWhenAKeyRefreshesTheView_data()
{
    AddDeathRows({{"digit", '5'}, {"minus", '-'}, {"other key", Qt::Key_F5}});
}

void HandlerLifetimeTest::deathWhenAKeyRefreshesTheView()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.pView->SetOnRedraw([&] { f.Kill(victim); });

    QCOMPARE(f.SendToHandler(key), key == '5');

    QCOMPARE(f.opHandler == nullptr, victim == "handler");
    if (f.opHandler != nullptr)
        f.UseHandler();
    QVERIFY(f.Inputs().empty());
}

void HandlerLifetimeTest::noSecondRefreshAfterTheHandlerDied_data()
{
    AddKindRows([](const KindRules& rules) { return rules.Has(OpensWithMinus); });
}

void HandlerLifetimeTest::noSecondRefreshAfterTheHandlerDied()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.pView->SetOnRedraw([&] { f.opHandler.Reset(); });
    const int redrawCount = f.pView->GetRedrawCount();

    QVERIFY(!f.SendToHandler('-'));

    QCOMPARE(f.pView->GetRedrawCount(), redrawCount + 1);
}

void HandlerLifetimeTest::deathWhenEscapeReachesTheView_data()
{
    AddDeathRows({{"Escape", Qt::Key_Escape}},
                 [](const KindRules& rules, int) { return rules.Has(HandsEscapeOn); });
}

void HandlerLifetimeTest::deathWhenEscapeReachesTheView()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.pView->SetOnKey([&] { f.Kill(victim); });

    f.PressInEditor(key);

    QCOMPARE(f.opHandler == nullptr, victim == "handler");
    QCOMPARE(f.pView == nullptr, victim == "view");
    QVERIFY(f.opHandler == nullptr || !f.opHandler->IsInputting());
}

void HandlerLifetimeTest::handlerMayDieInEachEventOfTheEditor_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("type");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        QTest::addRow("%s, Escape hides", AllKinds()[kind].name)
            << int(kind) << int(Qt::Key_Escape) << int(QEvent::Hide);
        QTest::addRow("%s, Return hides", AllKinds()[kind].name)
            << int(kind) << int(Qt::Key_Return) << int(QEvent::Hide);
        QTest::addRow("%s, Escape takes the focus", AllKinds()[kind].name)
            << int(kind) << int(Qt::Key_Escape) << int(QEvent::FocusOut);
        QTest::addRow("%s, Return takes the focus", AllKinds()[kind].name)
            << int(kind) << int(Qt::Key_Return) << int(QEvent::FocusOut);
    }
}

void HandlerLifetimeTest::handlerMayDieInEachEventOfTheEditor()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(int, type);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    const EventTrap trap(f.Editor(), QEvent::Type(type), [&] { f.opHandler.Reset(); });

    f.PressInEditor(key);

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor()->isHidden());
    QCOMPARE(f.Inputs().size(), std::size_t(key == Qt::Key_Return ? 1 : 0));
}

void HandlerLifetimeTest::handlerMayDieWhenTheFocusChanges_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("key");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        QTest::addRow("%s, Escape", AllKinds()[kind].name) << int(kind) << int(Qt::Key_Escape);
        QTest::addRow("%s, Return", AllKinds()[kind].name) << int(kind) << int(Qt::Key_Return);
    }
}

/// The editor may not: Qt continues to use the widget that lost the focus.
void HandlerLifetimeTest::handlerMayDieWhenTheFocusChanges()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    QObject context;
    connect(qApp, &QApplication::focusChanged, &context, [&] { f.opHandler.Reset(); });

    f.PressInEditor(key);

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor()->isHidden());
    QCOMPARE(f.Inputs().size(), std::size_t(key == Qt::Key_Return ? 1 : 0));
}

void HandlerLifetimeTest::handlerMayDieWhenTheEditorIsShown_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::handlerMayDieWhenTheEditorIsShown()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.opHandler->EndInput();
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { f.opHandler.Reset(); });

    QVERIFY(f.SendToHandler('6'));

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.Editor()->text(), QString("5"));
}

void HandlerLifetimeTest::handlerMayDieWhenAReadyEditorIsShown_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::handlerMayDieWhenAReadyEditorIsShown()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.Editor()->hide();
    const int redrawCount = f.pView->GetRedrawCount();
    const QPoint position = f.Editor()->pos();
    f.Data()[rules.StartState()].textPosition = Vector3d(99, 99, 0);
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { f.opHandler.Reset(); });

    f.Handler().ShowInputWidget(rules.StartState(), true, true, L"6");

    QVERIFY(f.opHandler == nullptr);
    QCOMPARE(f.Editor()->pos(), position);
    QCOMPARE(f.pView->GetRedrawCount(), redrawCount);
}

/// In the last event of it, behind which the toolkit leaves the editor alone.
void HandlerLifetimeTest::editorMayDieWhenItIsShown()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.opHandler->EndInput();
    const EventTrap fetched(f.Editor(), QEvent::ShowToParent, [&] { delete f.Editor(); });
    f.SendToHandler('6');
    QVERIFY(f.Editor() == nullptr);
    QVERIFY(!f.opHandler->IsInputting());

    f.TypeFirst("5");
    f.Editor()->hide();
    const EventTrap ready(f.Editor(), QEvent::ShowToParent, [&] { delete f.Editor(); });
    f.Handler().ShowInputWidget(rules.StartState(), true, true, L"6");

    QVERIFY(f.Editor() == nullptr);
}

void HandlerLifetimeTest::inputThatEndsWhenTheEditorIsShownStaysEnded_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::inputThatEndsWhenTheEditorIsShownStaysEnded()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.opHandler->EndInput();
    const int redrawCount = f.pView->GetRedrawCount();
    const EventTrap trap(f.Editor(), QEvent::Show, [&] { f.opHandler->EndInput(); });

    QVERIFY(f.SendToHandler('6'));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Editor()->text(), QString("5"));
    QCOMPARE(f.pView->GetRedrawCount(), redrawCount);
}

void HandlerLifetimeTest::deathWhenAKeyIsReported_data()
{
    AddDeathRows({{"Return", Qt::Key_Return}, {"other key", Qt::Key_7}});
}

void HandlerLifetimeTest::deathWhenAKeyIsReported()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.host.core.GetViewManager().RemoveView(f.pView.get());
    const WarningTrap trap([&] { f.Kill(victim); });

    f.PressInEditor(key);

    EXPECT_WARNING(f.host.warnings, L"pUIView指针不能为空", rules.NameOf("eventFilter"));
    QCOMPARE(f.Editor() == nullptr, victim != "handler");
    QVERIFY(f.Inputs().empty());
}

void HandlerLifetimeTest::deathWhenAValueIsReported_data()
{
    AddDeathRows({{"Return", Qt::Key_Return}});
}

void HandlerLifetimeTest::deathWhenAValueIsReported()
{
    FETCH_KIND(rules);
    QFETCH(int, key);
    QFETCH(QString, victim);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.SetState(InputState(7));
    const WarningTrap trap([&] { f.Kill(victim); });

    f.PressInEditor(key);

    EXPECT_WARNING(f.host.warnings, rules.wrongState, rules.NameOf("OnEditorReturnPressed"));
    QCOMPARE(f.Editor() == nullptr, victim != "handler");
}

void HandlerLifetimeTest::handlerMayDieWhenAKeyWithoutAFieldIsReported()
{
    KindFixture f(CreateLinearContext(false, false));
    const WarningTrap trap([&] { f.opHandler.Reset(); });

    QVERIFY(!f.SendToHandler('5'));

    EXPECT_WARNING(f.host.warnings, L"无法设置EnInputState的类型，将按IS_Length设置",
                   std::string(LinearClass) + "event");
    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.Editor() == nullptr);
}

void HandlerLifetimeTest::threeMayGoInAnyOrder_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("order");
    QStringList order{"editor", "handler", "view"};
    do
    {
        for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
            QTest::addRow("%s: %s", AllKinds()[kind].name, qPrintable(order.join(", ")))
                << int(kind) << order;
    } while (std::next_permutation(order.begin(), order.end()));
}

void HandlerLifetimeTest::threeMayGoInAnyOrder()
{
    FETCH_KIND(rules);
    QFETCH(QStringList, order);
    LifetimeFixture f(rules);
    f.TypeFirst("5");

    f.Kill(order[0]);
    if (f.opHandler != nullptr)
        f.UseHandler();
    f.Kill(order[1]);
    if (f.opHandler != nullptr)
        f.UseHandler();
    f.Kill(order[2]);

    QVERIFY(f.opHandler == nullptr);
    QVERIFY(f.pView == nullptr);
}

void HandlerLifetimeTest::handlerWorksOnInAnotherViewAfterItsOwnDied_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::handlerWorksOnInAnotherViewAfterItsOwnDied()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.DropView();
    f.opHandler->EndInput();

    f.TypeFirst("6");

    const auto* pEditor = f.host.view.findChild<QLineEdit*>("ViewInputLineEdit");
    QVERIFY(pEditor != nullptr);
    QCOMPARE(pEditor->text(), QString("6"));
}

void HandlerLifetimeTest::handlersMayGoInAnyOrder_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::handlersMayGoInAnyOrder()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    auto opSecond = f.CreateHandler();
    auto opThird = f.CreateHandler();

    f.opHandler.Reset();
    opThird.Reset();

    QVERIFY(opSecond->OnKeyDown('7', false, false, false));
    QCOMPARE(f.Editor()->text(), QString("7"));
}

void HandlerLifetimeTest::oldHandlerKeepsOutOfTheReturnOfTheNewOne_data()
{
    AddKindRows();
}

void HandlerLifetimeTest::oldHandlerKeepsOutOfTheReturnOfTheNewOne()
{
    FETCH_KIND(rules);
    LifetimeFixture f(rules);
    f.TypeFirst("5");
    f.opHandler->EndInput();
    auto opOld = std::exchange(f.opHandler, f.CreateHandler());
    f.TypeFirst("6");

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 6.0);
}

}

VESK_TESTS(vesk::test::HandlerLifetimeTest);
#include "HandlerLifetimeTest.moc"

#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// What every kind reports, and under which name.
class DimensionReportsTest : public QObject
{
    Q_OBJECT

private slots:
    void graphicsWithoutContext_data();
    void graphicsWithoutContext();
    void graphicsOfAForeignContext_data();
    void graphicsOfAForeignContext();
    void graphicsReportOneThingOnly_data();
    void graphicsReportOneThingOnly();
    void graphicsWithoutView_data();
    void graphicsWithoutView();
    void graphicsWithoutModelView_data();
    void graphicsWithoutModelView();
    void configurationWithoutContext_data();
    void configurationWithoutContext();
    void nothingOfAConfigurationThatFits_data();
    void nothingOfAConfigurationThatFits();
    void statesOfOtherKinds_data();
    void statesOfOtherKinds();
    void statesOfOtherKindsLeaveAnOpenInputAlone_data();
    void statesOfOtherKindsLeaveAnOpenInputAlone();
    void valueInAStateOfAnotherKind_data();
    void valueInAStateOfAnotherKind();
    void tabInAStateOfAnotherKind_data();
    void tabInAStateOfAnotherKind();
    void eventThatIsNoKeyAfterAll_data();
    void eventThatIsNoKeyAfterAll();
    void nothingOfOtherEvents_data();
    void nothingOfOtherEvents();
    void nothingOfWhatIsNoKeyPressWithoutAView_data();
    void nothingOfWhatIsNoKeyPressWithoutAView();
    void eventsOfAnObjectAreTaken_data();
    void eventsOfAnObjectAreTaken();
    void reportsNameTheirPlace_data();
    void reportsNameTheirPlace();
};

void DimensionReportsTest::graphicsWithoutContext_data()
{
    AddKindRows();
}

void DimensionReportsTest::graphicsWithoutContext()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());

    QVERIFY(f.opHandler->GenerateGraphics(nullptr) == nullptr);

    EXPECT_WARNING(f.host.warnings, L"pCtx为空", rules.NameOf("GenerateGraphics"));
}

void DimensionReportsTest::graphicsOfAForeignContext_data()
{
    AddKindRows();
}

void DimensionReportsTest::graphicsOfAForeignContext()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    const ForeignContext context;

    const auto opGroup = f.opHandler->GenerateGraphics(&context);

    EXPECT_WARNING(f.host.warnings, rules.wrongContext, rules.NameOf("GenerateGraphics"));
    QVERIFY(opGroup != nullptr);
    QCOMPARE(opGroup->GetChildCount(), 0);
    QVERIFY(!opGroup->IsPickable());
}

void DimensionReportsTest::graphicsReportOneThingOnly_data()
{
    AddKindRows();
}

void DimensionReportsTest::graphicsReportOneThingOnly()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    const ForeignContext context;
    f.host.view.SetHasModelView(false);
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    QVERIFY(f.opHandler->GenerateGraphics(nullptr) == nullptr);
    EXPECT_WARNING(f.host.warnings, L"pCtx为空", rules.NameOf("GenerateGraphics"));
    QVERIFY(f.host.warnings.IsEmpty());

    QVERIFY(f.opHandler->GenerateGraphics(&context) != nullptr);
    EXPECT_WARNING(f.host.warnings, rules.wrongContext, rules.NameOf("GenerateGraphics"));
    QVERIFY(f.host.warnings.IsEmpty());
}

void DimensionReportsTest::graphicsWithoutView_data()
{
    AddKindRows();
}

void DimensionReportsTest::graphicsWithoutView()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    EXPECT_WARNING(f.host.warnings, L"pUIView为空！", rules.NameOf("GenerateGraphics"));
    QVERIFY(opGroup != nullptr);
    QCOMPARE(opGroup->GetChildCount(), 0);
}

void DimensionReportsTest::graphicsWithoutModelView_data()
{
    AddKindRows();
}

void DimensionReportsTest::graphicsWithoutModelView()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.host.view.SetHasModelView(false);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    EXPECT_WARNING(f.host.warnings, L"pModelView为空！", rules.NameOf("GenerateGraphics"));
    QVERIFY(opGroup != nullptr);
    QCOMPARE(opGroup->GetChildCount(), 0);
}

void DimensionReportsTest::configurationWithoutContext_data()
{
    AddKindRows();
}

void DimensionReportsTest::configurationWithoutContext()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());

    QVERIFY(!f.opHandler->UpdateConfig(nullptr));

    EXPECT_WARNING(f.host.warnings, L"pCtx为空。", std::string(BaseClass) + "UpdateConfig");
}

void DimensionReportsTest::nothingOfAConfigurationThatFits_data()
{
    AddKindRows();
}

void DimensionReportsTest::nothingOfAConfigurationThatFits()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());

    QVERIFY(f.opHandler->UpdateConfig(f.opContext.Get()));

    QVERIFY(f.host.warnings.IsEmpty());
}

void DimensionReportsTest::statesOfOtherKinds_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("state");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        for (int state = 0; state <= 7; ++state)
        {
            if (!AllKinds()[kind].HasState(InputState(state)))
                QTest::addRow("%s, state %d", AllKinds()[kind].name, state) << int(kind) << state;
        }
    }
}

void DimensionReportsTest::statesOfOtherKinds()
{
    FETCH_KIND(rules);
    QFETCH(int, state);
    KindFixture f(rules.pCreateContext());

    f.Type(InputState(state), "5");

    EXPECT_WARNING(f.host.warnings, L"InputState输入非法!", rules.NameOf("ShowInputWidget"));
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void DimensionReportsTest::statesOfOtherKindsLeaveAnOpenInputAlone_data()
{
    AddKindRows();
}

void DimensionReportsTest::statesOfOtherKindsLeaveAnOpenInputAlone()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    const int redrawCount = f.host.view.GetRedrawCount();

    f.Handler().ShowInputWidget(InputState(7), true, true, L"6");

    EXPECT_WARNING(f.host.warnings, L"InputState输入非法!", rules.NameOf("ShowInputWidget"));
    QCOMPARE(f.State(), rules.StartState());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.Editor()->text(), QString("5"));
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void DimensionReportsTest::valueInAStateOfAnotherKind_data()
{
    AddKindRows();
}

void DimensionReportsTest::valueInAStateOfAnotherKind()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.host.BeginAction();
    f.Type(rules.StartState(), "5");
    f.SetState(rules.HasState(InputState::IS_Radius) ? InputState::IS_Length
                                                     : InputState::IS_Radius);

    f.opHandler->OnEditorReturnPressed();

    EXPECT_WARNING(f.host.warnings, rules.wrongState, rules.NameOf("OnEditorReturnPressed"));
    QVERIFY(f.Inputs().empty());
    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.Editor()->hasSelectedText());
}

void DimensionReportsTest::tabInAStateOfAnotherKind_data()
{
    AddKindRows([](const KindRules& rules) { return rules.Has(SwitchesWithTab); });
}

void DimensionReportsTest::tabInAStateOfAnotherKind()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.host.BeginAction();
    f.Type(rules.StartState(), "5");
    f.SetState(InputState::IS_Radius);

    QVERIFY(QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed"));

    EXPECT_WARNING(f.host.warnings, rules.wrongState, rules.NameOf("OnEditorTabPressed"));
    QVERIFY(f.Inputs().empty());
}

void DimensionReportsTest::eventThatIsNoKeyAfterAll_data()
{
    AddKindRows();
}

void DimensionReportsTest::eventThatIsNoKeyAfterAll()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    QEvent fake(QEvent::KeyPress);

    QVERIFY(!f.Object().event(&fake));

    EXPECT_WARNING(f.host.warnings, L"难道pEvent不是键盘事件?", rules.NameOf("event"));
    QCOMPARE(f.host.view.GetRedrawCount(), 0);
}

void DimensionReportsTest::nothingOfOtherEvents_data()
{
    AddKindRows();
}

void DimensionReportsTest::nothingOfOtherEvents()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    const int redrawCount = f.host.view.GetRedrawCount();
    QEvent fontChange(QEvent::FontChange);
    QEvent focusOut(QEvent::FocusOut);
    QEvent fake(QEvent::KeyPress);

    QVERIFY(!f.Object().event(&fontChange));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &focusOut));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &fake));

    QVERIFY(f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void DimensionReportsTest::nothingOfWhatIsNoKeyPressWithoutAView_data()
{
    AddKindRows();
}

void DimensionReportsTest::nothingOfWhatIsNoKeyPressWithoutAView()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    f.host.core.GetViewManager().RemoveView(&f.host.view);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
    QKeyEvent shortcut(QEvent::ShortcutOverride, Qt::Key_Escape, Qt::NoModifier);
    QEvent fake(QEvent::KeyPress);
    QEvent focusOut(QEvent::FocusOut);

    QVERIFY(f.Object().eventFilter(f.Editor(), &release));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &shortcut));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &fake));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &focusOut));

    QVERIFY(f.host.warnings.IsEmpty());
    QVERIFY(f.opHandler->IsInputting());
}

void DimensionReportsTest::eventsOfAnObjectAreTaken_data()
{
    AddKindRows();
}

void DimensionReportsTest::eventsOfAnObjectAreTaken()
{
    FETCH_KIND(rules);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    f.SetState(InputState::IS_None);
    QObject child;
    QChildEvent added(QEvent::ChildAdded, &child);
    QEvent polish(QEvent::Polish);

    QVERIFY(f.Object().event(&added));
    QVERIFY(!f.Object().event(&polish));

    // A queued call is carried out later.
    QMetaObject::invokeMethod(&f.Object(), "ResetEditorPosition", Qt::QueuedConnection);
    QTRY_VERIFY(f.Editor()->isHidden());
}

/// A report, the source file that makes it, and how to provoke it.
struct PlacedReport
{
    const char* row;
    const char* file;
    void (*pProvoke)(KindFixture& f);
};

const PlacedReport PlacedReports[]{
    {"no context", "HandlerDrawing.cpp",
     [](KindFixture& f) { f.opHandler->GenerateGraphics(nullptr); }},
    {"wrong context", "HandlerDrawing.cpp",
     [](KindFixture& f) {
         f.opHandler->GenerateGraphics(std::make_unique<ForeignContext>().get());
     }},
    {"no model", "HandlerDrawing.cpp",
     [](KindFixture& f) {
         f.host.view.SetHasModelView(false);
         f.opHandler->GenerateGraphics(f.opContext.Get());
     }},
    {"no context to configure from", "TemporaryDimensionHandler.cpp",
     [](KindFixture& f) { f.opHandler->UpdateConfig(nullptr); }},
    {"wrong context to configure from", "LinearTemporaryDimensionHandler.cpp",
     [](KindFixture& f) { f.opHandler->UpdateConfig(std::make_unique<ForeignContext>().get()); }},
    {"no widget", "TemporaryDimensionHandler.cpp",
     [](KindFixture& f) {
         f.host.view.SetWindowId(0);
         f.Handler().ShowInputWidget(InputState::IS_Length, false, true, L"5");
     }},
    {"wrong field", "TemporaryDimensionHandler.cpp",
     [](KindFixture& f) { f.Type(InputState::IS_Radius, "5"); }},
    {"no key", "TemporaryDimensionHandler.cpp",
     [](KindFixture& f) {
         QEvent fake(QEvent::KeyPress);
         f.Object().event(&fake);
     }},
    {"no context for the factory", "TemporaryDimensionHandlerFactory.cpp",
     [](KindFixture&) {
         TemporaryDimensionHandlerFactory::GetInstance()->UpdateOrCreateHandler(nullptr, nullptr);
     }},
};

void DimensionReportsTest::reportsNameTheirPlace_data()
{
    QTest::addColumn<int>("report");
    for (int i = 0; i < int(std::size(PlacedReports)); ++i)
        QTest::newRow(PlacedReports[i].row) << i;
}

void DimensionReportsTest::reportsNameTheirPlace()
{
    QFETCH(int, report);
    const PlacedReport& expected = PlacedReports[report];
    HandlerFixture f;

    expected.pProvoke(f);

    const DebugWarning warning = f.host.warnings.TakeAny();
    const QString file = QString::fromStdString(warning.file);
    QVERIFY2(file.endsWith(QString("/TemporaryDimensionHandlersImpl/") + expected.file),
             qPrintable(file));
    QVERIFY(warning.line > 10);
    QCOMPARE(warning.person, std::wstring(L"vesk-ui"));
    QCOMPARE(warning.date, std::wstring(L"2026-11-21"));
}

}

VESK_TESTS(vesk::test::DimensionReportsTest);
#include "DimensionReportsTest.moc"

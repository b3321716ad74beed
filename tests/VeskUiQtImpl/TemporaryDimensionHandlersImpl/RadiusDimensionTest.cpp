#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"

#include <QtTest>

Q_DECLARE_METATYPE(vesk::Vector3d)

namespace vesk::test
{

constexpr char RadiusClass[] = "vesk::RadiusTemporaryDimensionHandler::";

const Vector3d First(0, 0, 0);
const Vector3d Second(10, 0, 0);
const Vector3d Third(4, 6, 0);

OwnerPtr<ITemporaryDimensionContext> CreateRadiusContext(bool isCentralAngleShown)
{
    auto opContext =
        MakeOwner<RadiusTemporaryDimensionContext>(TiltedPlane(), First, Second, Third);
    opContext->SetCentralAngleShown(isCentralAngleShown);
    return opContext;
}

struct RadiusFixture : GeneratorFixture
{
    explicit RadiusFixture(bool isCentralAngleShown = false)
        : GeneratorFixture(CreateRadiusContext(isCentralAngleShown)),
          context(static_cast<RadiusTemporaryDimensionContext&>(*opContext))
    {}

    void TypeRadius(const QString& text) { Type(InputState::IS_Radius, text); }

    RadiusTemporaryDimensionContext& context;
};

class RadiusDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheRadiusOfItsPoints();
    void showsLinesAndCentralAngleWhenAsked();
    void showsNoCentralAngleWhereThereIsNone_data();
    void showsNoCentralAngleWhereThereIsNone();
    void showsWhatThereIsWhenALineFails_data();
    void showsWhatThereIsWhenALineFails();
    void cannotBePicked();
    void configurationTakesTheFlagOver();
    void configurationOfAForeignContextIsReported();
    void digitOpensTheRadiusWithItself_data();
    void digitOpensTheRadiusWithItself();
    void otherKeysOpenNothing_data();
    void otherKeysOpenNothing();
    void fieldShowsTextOrValue_data();
    void fieldShowsTextOrValue();
    void keysCommit_data();
    void keysCommit();
    void escapeGoesOnToTheView();
    void tabIsTheEditors();
    void deliversUnderTheKindOfItsFlag_data();
    void deliversUnderTheKindOfItsFlag();
    void refusesWhatIsOutOfRange_data();
    void refusesWhatIsOutOfRange();
    void whatIsNoNumberCountsAsZero();
    void deliversRawText();
    void hasOneSlot();
};

void RadiusDimensionTest::showsTheRadiusOfItsPoints()
{
    RadiusFixture f;
    f.SetState(InputState::IS_Radius);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(1));
    const GeneratorCall& call = f.recorder.GetCalls()[0];
    QCOMPARE(call.name, std::string("radius of 3 points"));
    QCOMPARE(call.points, (std::vector<Vector3d>{First, Second, Third}));
    QVERIFY(f.IsOwnCall(call));
    QCOMPARE(opGroup->GetChildCount(), 1);
    QCOMPARE(opGroup->GetChild(0), call.pResult);
}

void RadiusDimensionTest::showsLinesAndCentralAngleWhenAsked()
{
    RadiusFixture f(true);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(2));
    const GeneratorCall& call = f.recorder.GetCalls()[1];
    QCOMPARE(call.name, std::string("central angle of 3 points"));
    QCOMPARE(call.points, (std::vector<Vector3d>{First, Second, Third}));
    QVERIFY(f.IsOwnCall(call));
    QCOMPARE(opGroup->GetChildCount(), 4);
    QCOMPARE(opGroup->GetChild(0), f.recorder.GetCalls()[0].pResult);
    QCOMPARE(opGroup->GetChild(3), call.pResult);
    const auto* pToSecond = dynamic_cast<const IGraphicsLine*>(opGroup->GetChild(1));
    const auto* pToThird = dynamic_cast<const IGraphicsLine*>(opGroup->GetChild(2));
    QVERIFY(pToSecond != nullptr && pToThird != nullptr);
    QVERIFY(pToSecond->GetStart() == First && pToSecond->GetEnd() == Second);
    QVERIFY(pToThird->GetStart() == First && pToThird->GetEnd() == Third);
    QVERIFY(pToSecond->GetRole() == GraphicsRole::Dimension);
}

void RadiusDimensionTest::showsNoCentralAngleWhereThereIsNone_data()
{
    QTest::addColumn<Vector3d>("second");
    QTest::addColumn<Vector3d>("third");
    QTest::addColumn<bool>("hasAngle");
    QTest::newRow("first is second") << Vector3d(0.9e-9, 0, 0) << Third << false;
    QTest::newRow("first is third") << Second << Vector3d(0, 0.9e-9, 0) << false;
    QTest::newRow("second is third") << Second << Vector3d(10, 0.9e-9, 0) << false;
    QTest::newRow("first is nearly second") << Vector3d(2e-9, 0, 0) << Third << true;
    QTest::newRow("first is nearly third") << Second << Vector3d(0, 2e-9, 0) << true;
    QTest::newRow("second is nearly third") << Second << Vector3d(10, 2e-9, 0) << true;
    QTest::newRow("on one line") << Second << Vector3d(4, 0, 0) << false;
    QTest::newRow("on one slanting line") << Vector3d(3, 4, 5) << Vector3d(-6, -8, -10) << false;
    QTest::newRow("within the tolerance") << Second << Vector3d(4, 0.9e-9, 0) << false;
    QTest::newRow("beyond the tolerance") << Second << Vector3d(4, 1.1e-9, 0) << true;
}

void RadiusDimensionTest::showsNoCentralAngleWhereThereIsNone()
{
    QFETCH(Vector3d, second);
    QFETCH(Vector3d, third);
    QFETCH(bool, hasAngle);
    RadiusFixture f(true);
    const RadiusTemporaryDimensionContext context(TiltedPlane(), First, second, third);

    const auto opGroup = f.opHandler->GenerateGraphics(&context);

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(hasAngle ? 2 : 1));
    QCOMPARE(opGroup->GetChildCount(), hasAngle ? 4 : 3);
}

void RadiusDimensionTest::showsWhatThereIsWhenALineFails_data()
{
    QTest::addColumn<int>("lineCount");
    QTest::newRow("the first") << 0;
    QTest::newRow("the second") << 1;
}

void RadiusDimensionTest::showsWhatThereIsWhenALineFails()
{
    QFETCH(int, lineCount);
    RadiusFixture f(true);
    f.recorder.SetLineLimit(lineCount);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    EXPECT_WARNING(f.host.warnings, L"创建IGraphicsLine失败",
                   std::string(RadiusClass) + "GenerateGraphics");
    QCOMPARE(opGroup->GetChildCount(), 1 + lineCount);
}

void RadiusDimensionTest::cannotBePicked()
{
    RadiusFixture f;

    QVERIFY(!f.opHandler->GenerateGraphics(f.opContext.Get())->IsPickable());
}

void RadiusDimensionTest::configurationTakesTheFlagOver()
{
    RadiusFixture f;
    f.context.SetCentralAngleShown(true);
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 1);

    QVERIFY(f.opHandler->UpdateConfig(&f.context));

    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 4);
}

void RadiusDimensionTest::configurationOfAForeignContextIsReported()
{
    RadiusFixture f(true);
    const ForeignContext context;

    QVERIFY(!f.opHandler->UpdateConfig(&context));

    EXPECT_WARNING(f.host.warnings, L"pRadiusCtx为空。", std::string(RadiusClass) + "UpdateConfig");
    QCOMPARE(f.opHandler->GenerateGraphics(&f.context)->GetChildCount(), 4);
}

void RadiusDimensionTest::digitOpensTheRadiusWithItself_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addRow("0") << int('0') << QString("0");
    QTest::addRow("9") << int('9') << QString("9");
    QTest::addRow("keypad 0") << 96 << QString("0");
    QTest::addRow("keypad 9") << 105 << QString("9");
}

void RadiusDimensionTest::digitOpensTheRadiusWithItself()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    RadiusFixture f;

    QVERIFY(f.opHandler->OnKeyDown(key, false, false, false));

    QCOMPARE(f.State(), InputState::IS_Radius);
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(!f.Editor()->hasSelectedText());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.RefreshCount(), 1);
}

void RadiusDimensionTest::otherKeysOpenNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("letter") << int('A');
    QTest::newRow("minus") << 189;
    QTest::newRow("keypad minus") << 109;
    QTest::newRow("minus as a character") << int('-');
    QTest::newRow("comma") << 188;
    QTest::newRow("P") << int('P');
}

void RadiusDimensionTest::otherKeysOpenNothing()
{
    QFETCH(int, key);
    RadiusFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(key, false, false, true));
    QCOMPARE(f.RefreshCount(), 0);

    QVERIFY(!f.SendToHandler(key, Qt::ShiftModifier, "x"));
    QCOMPARE(f.RefreshCount(), 1);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void RadiusDimensionTest::fieldShowsTextOrValue_data()
{
    QTest::addColumn<bool>("editorReady");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("new editor, given text") << false << true << "7";
    QTest::newRow("new editor") << false << false << "7";
    QTest::newRow("open editor, given text") << true << true << "7";
    QTest::newRow("open editor") << true << false << "12.346";
}

void RadiusDimensionTest::fieldShowsTextOrValue()
{
    QFETCH(bool, editorReady);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    RadiusFixture f;
    f.TypeRadius("1");
    f.Data()[InputState::IS_Radius].value = 12.34567;

    f.Handler().ShowInputWidget(InputState::IS_Radius, editorReady, useGivenText, L"7");

    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), editorReady ? text : QString());
}

void RadiusDimensionTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void RadiusDimensionTest::keysCommit()
{
    QFETCH(int, key);
    RadiusFixture f;
    f.TypeRadius("12.5");

    QVERIFY(!f.FilterKey(key));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void RadiusDimensionTest::escapeGoesOnToTheView()
{
    RadiusFixture f;
    f.TypeRadius("5");
    bool wasInputting = true;
    f.host.view.SetOnKey([&] { wasInputting = f.opHandler->IsInputting(); });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QVERIFY(!wasInputting);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
}

void RadiusDimensionTest::tabIsTheEditors()
{
    RadiusFixture f;
    f.TypeRadius("5");

    QVERIFY(!f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), InputState::IS_Radius);
    QVERIFY(f.Inputs().empty());
}

void RadiusDimensionTest::deliversUnderTheKindOfItsFlag_data()
{
    QTest::addColumn<bool>("isCentralAngleShown");
    QTest::addColumn<int>("kind");
    QTest::newRow("radius") << false << 10;
    QTest::newRow("radius with central angle") << true << 11;
}

void RadiusDimensionTest::deliversUnderTheKindOfItsFlag()
{
    QFETCH(bool, isCentralAngleShown);
    QFETCH(int, kind);
    RadiusFixture f(isCentralAngleShown);
    f.TypeRadius("12.5");
    bool wasInputting = true;
    f.host.actionLog.onInput = [&] { wasInputting = f.opHandler->IsInputting(); };

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, kind);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.Inputs()[0].extra.has_value());
    QVERIFY(!wasInputting);
}

void RadiusDimensionTest::refusesWhatIsOutOfRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << "4.9";
    QTest::newRow("above") << "10.1";
    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("not a number") << "nan";
    QTest::newRow("infinite") << "inf";
}

void RadiusDimensionTest::refusesWhatIsOutOfRange()
{
    QFETCH(QString, text);
    RadiusFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.Configure();
    f.TypeRadius(text);

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_Radius);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.Editor()->toolTip().isEmpty());
}

void RadiusDimensionTest::whatIsNoNumberCountsAsZero()
{
    RadiusFixture f;
    f.context.SetFirstValueRange({-1, 1});
    f.Configure();
    f.TypeRadius("abc");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.opHandler->IsInputting());
}

void RadiusDimensionTest::deliversRawText()
{
    RadiusFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeRadius("abc");
    QVERIFY(f.IsValidatedLive());

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 10);
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QVERIFY(!f.IsValidatedLive());
}

void RadiusDimensionTest::hasOneSlot()
{
    RadiusFixture f;

    QCOMPARE(f.SlotNames(), QStringList{"OnEditorReturnPressed()"});
}

}

QTEST_MAIN(vesk::test::RadiusDimensionTest)
#include "RadiusDimensionTest.moc"

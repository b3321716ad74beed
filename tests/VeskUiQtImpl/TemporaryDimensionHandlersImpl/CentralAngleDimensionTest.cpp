#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"

#include <QtTest>

namespace vesk::test
{

const Vector3d Centre(1, 1, 0);
const Vector3d Start(11, 1, 0);
const Vector3d End(1, 11, 0);
const Vector3d Cursor(1, 30, 0);

struct CentralAngleFixture : GeneratorFixture
{
    CentralAngleFixture()
        : GeneratorFixture(MakeOwner<CentralAngleTemporaryDimensionContext>(TiltedPlane(), Centre,
                                                                            Start, End, Cursor)),
          context(static_cast<CentralAngleTemporaryDimensionContext&>(*opContext))
    {}

    void TypeAngle(const QString& text) { Type(InputState::IS_CentralAngle, text); }

    CentralAngleTemporaryDimensionContext& context;
};

class CentralAngleDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheAngleAndThenTheRadius();
    void cannotBePicked();
    void digitOpensTheAngleWithItself_data();
    void digitOpensTheAngleWithItself();
    void minusOpensTheAngleAndIsNotConsumed_data();
    void minusOpensTheAngleAndIsNotConsumed();
    void otherKeysOpenNothing_data();
    void otherKeysOpenNothing();
    void minusAsACharacterIsNoKeyOfTheView();
    void fieldShowsTextOrValue_data();
    void fieldShowsTextOrValue();
    void keysCommit_data();
    void keysCommit();
    void spaceIsTheEditors();
    void escapeGoesOnToTheView();
    void tabIsTheEditors();
    void deliversTheAngle();
    void refusesWhatIsNoNumberInRange_data();
    void refusesWhatIsNoNumberInRange();
    void takesTheBounds_data();
    void takesTheBounds();
    void deliversRawText();
    void hasOneSlot();
};

void CentralAngleDimensionTest::showsTheAngleAndThenTheRadius()
{
    CentralAngleFixture f;
    f.SetState(InputState::IS_CentralAngle);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(2));
    const GeneratorCall& angle = f.recorder.GetCalls()[0];
    const GeneratorCall& radius = f.recorder.GetCalls()[1];
    QCOMPARE(angle.name, std::string("central angle"));
    QCOMPARE(angle.points, (std::vector<Vector3d>{Centre, Start, End, Cursor}));
    QVERIFY(angle.hasLines && f.IsOwnCall(angle));
    QCOMPARE(radius.name, std::string("radius"));
    QCOMPARE(radius.points, (std::vector<Vector3d>{Centre, Start, End}));
    QVERIFY(radius.hasLines && f.IsOwnCall(radius));
    QCOMPARE(opGroup->GetChildCount(), 2);
    QCOMPARE(opGroup->GetChild(0), angle.pResult);
    QCOMPARE(opGroup->GetChild(1), radius.pResult);
}

void CentralAngleDimensionTest::cannotBePicked()
{
    CentralAngleFixture f;

    QVERIFY(!f.opHandler->GenerateGraphics(f.opContext.Get())->IsPickable());
}

void CentralAngleDimensionTest::digitOpensTheAngleWithItself_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addRow("0") << int('0') << QString("0");
    QTest::addRow("9") << int('9') << QString("9");
    QTest::addRow("keypad 0") << 96 << QString("0");
    QTest::addRow("keypad 9") << 105 << QString("9");
}

void CentralAngleDimensionTest::digitOpensTheAngleWithItself()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    CentralAngleFixture f;

    QVERIFY(f.opHandler->OnKeyDown(key, false, false, false));

    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(!f.Editor()->hasSelectedText());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.RefreshCount(), 1);
}

void CentralAngleDimensionTest::minusOpensTheAngleAndIsNotConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isTakenFromView");
    QTest::newRow("keyboard") << 189 << true;
    QTest::newRow("keypad") << 109 << true;
    QTest::newRow("as a character") << int('-') << false;
}

void CentralAngleDimensionTest::minusOpensTheAngleAndIsNotConsumed()
{
    QFETCH(int, key);
    QFETCH(bool, isTakenFromView);
    CentralAngleFixture f;

    const bool isConsumed =
        isTakenFromView ? f.opHandler->OnKeyDown(key, false, false, false) : f.SendToHandler(key);

    QVERIFY(!isConsumed);
    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QCOMPARE(f.Editor()->text(), QString("-"));
    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.RefreshCount(), 2);
}

void CentralAngleDimensionTest::otherKeysOpenNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("A") << int('A');
    QTest::newRow("P") << int('P');
    QTest::newRow("Z") << int('Z');
    QTest::newRow("comma") << 188;
    QTest::newRow("comma as a character") << int(',');
}

void CentralAngleDimensionTest::otherKeysOpenNothing()
{
    QFETCH(int, key);
    CentralAngleFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(key, false, false, true));
    QCOMPARE(f.RefreshCount(), 0);

    QVERIFY(!f.SendToHandler(key, Qt::ShiftModifier, "x"));
    QCOMPARE(f.RefreshCount(), 1);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void CentralAngleDimensionTest::minusAsACharacterIsNoKeyOfTheView()
{
    CentralAngleFixture f;

    QVERIFY(!f.opHandler->OnKeyDown('-', false, false, false));

    QVERIFY(!f.opHandler->IsInputting());
}

void CentralAngleDimensionTest::fieldShowsTextOrValue_data()
{
    QTest::addColumn<bool>("editorReady");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("new editor, given text") << false << true << "7";
    QTest::newRow("new editor") << false << false << "12.35";
    QTest::newRow("open editor, given text") << true << true << "7";
    QTest::newRow("open editor") << true << false << "12.35";
}

void CentralAngleDimensionTest::fieldShowsTextOrValue()
{
    QFETCH(bool, editorReady);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    CentralAngleFixture f;
    f.TypeAngle("1");
    f.Data()[InputState::IS_CentralAngle].value = 12.34567;

    f.Handler().ShowInputWidget(InputState::IS_CentralAngle, editorReady, useGivenText, L"7");

    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), editorReady ? text : QString());
}

void CentralAngleDimensionTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
}

void CentralAngleDimensionTest::keysCommit()
{
    QFETCH(int, key);
    CentralAngleFixture f;
    f.TypeAngle("12.5");

    QVERIFY(!f.FilterKey(key));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void CentralAngleDimensionTest::spaceIsTheEditors()
{
    CentralAngleFixture f;
    f.TypeAngle("12.5");

    QVERIFY(!f.FilterKey(Qt::Key_Space));

    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QVERIFY(f.Inputs().empty());
    QTest::keyClick(f.Editor(), Qt::Key_Space);
    QCOMPARE(f.Editor()->text(), QString("12.5 "));
}

void CentralAngleDimensionTest::escapeGoesOnToTheView()
{
    CentralAngleFixture f;
    f.TypeAngle("5");
    bool wasInputting = true;
    f.host.view.SetOnKey([&] { wasInputting = f.opHandler->IsInputting(); });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QVERIFY(!wasInputting);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
}

void CentralAngleDimensionTest::tabIsTheEditors()
{
    CentralAngleFixture f;
    f.TypeAngle("5");

    QVERIFY(!f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QVERIFY(f.Inputs().empty());
}

void CentralAngleDimensionTest::deliversTheAngle()
{
    CentralAngleFixture f;
    f.TypeAngle("-12.5");
    bool wasInputting = true;
    f.host.actionLog.onInput = [&] { wasInputting = f.opHandler->IsInputting(); };

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 12);
    QCOMPARE(f.Inputs()[0].value, -12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.Inputs()[0].extra.has_value());
    QVERIFY(!wasInputting);
}

void CentralAngleDimensionTest::refusesWhatIsNoNumberInRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << "-45.1";
    QTest::newRow("above") << "45.1";
    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("sign only") << "-";
    QTest::newRow("not a number") << "nan";
}

void CentralAngleDimensionTest::refusesWhatIsNoNumberInRange()
{
    QFETCH(QString, text);
    CentralAngleFixture f;
    f.context.SetSecondValueRange({-45, 45});
    f.Configure();
    f.TypeAngle(text);

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.Editor()->toolTip().isEmpty());
}

void CentralAngleDimensionTest::takesTheBounds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("bottom") << "-45" << -45.0;
    QTest::newRow("zero") << "0" << 0.0;
    QTest::newRow("top") << "45" << 45.0;
}

void CentralAngleDimensionTest::takesTheBounds()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    CentralAngleFixture f;
    f.context.SetSecondValueRange({-45, 45});
    f.Configure();
    f.TypeAngle(text);

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, value);
}

void CentralAngleDimensionTest::deliversRawText()
{
    CentralAngleFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeAngle("abc");
    QVERIFY(f.IsValidatedLive());

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 12);
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QVERIFY(!f.IsValidatedLive());
}

void CentralAngleDimensionTest::hasOneSlot()
{
    CentralAngleFixture f;

    QCOMPARE(f.SlotNames(), QStringList{"OnEditorReturnPressed()"});
}

}

QTEST_MAIN(vesk::test::CentralAngleDimensionTest)
#include "CentralAngleDimensionTest.moc"

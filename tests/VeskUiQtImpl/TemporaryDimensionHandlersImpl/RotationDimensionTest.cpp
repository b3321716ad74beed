#include "Dimension/RotationTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"

#include <QtTest>

namespace vesk::test
{

const Vector3d Centre(1, 1, 0);
const Vector3d From(11, 1, 0);
const Vector3d To(1, 30, 0);

struct RotationFixture : GeneratorFixture
{
    RotationFixture()
        : GeneratorFixture(
              MakeOwner<RotationTemporaryDimensionContext>(TiltedPlane(), Centre, From, To)),
          context(static_cast<RotationTemporaryDimensionContext&>(*opContext))
    {}

    void TypeAngle(const QString& text) { Type(InputState::IS_CentralAngle, text); }

    RotationTemporaryDimensionContext& context;
};

class RotationDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheAngle();
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

void RotationDimensionTest::showsTheAngle()
{
    RotationFixture f;
    f.SetState(InputState::IS_CentralAngle);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(1));
    const GeneratorCall& call = f.recorder.GetCalls()[0];
    QCOMPARE(call.name, std::string("rotation"));
    QCOMPARE(call.points, (std::vector<Vector3d>{Centre, From, To}));
    QVERIFY(f.IsOwnCall(call));
    QCOMPARE(opGroup->GetChildCount(), 1);
    QCOMPARE(opGroup->GetChild(0), call.pResult);
}

void RotationDimensionTest::cannotBePicked()
{
    RotationFixture f;

    QVERIFY(!f.opHandler->GenerateGraphics(f.opContext.Get())->IsPickable());
}

void RotationDimensionTest::digitOpensTheAngleWithItself_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addRow("0") << int('0') << QString("0");
    QTest::addRow("9") << int('9') << QString("9");
    QTest::addRow("keypad 0") << 96 << QString("0");
    QTest::addRow("keypad 9") << 105 << QString("9");
}

void RotationDimensionTest::digitOpensTheAngleWithItself()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    RotationFixture f;

    QVERIFY(f.opHandler->OnKeyDown(key, false, false, false));

    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(!f.Editor()->hasSelectedText());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.RefreshCount(), 1);
}

void RotationDimensionTest::minusOpensTheAngleAndIsNotConsumed_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("isTakenFromView");
    QTest::newRow("keyboard") << 189 << true;
    QTest::newRow("keypad") << 109 << true;
    QTest::newRow("as a character") << int('-') << false;
}

void RotationDimensionTest::minusOpensTheAngleAndIsNotConsumed()
{
    QFETCH(int, key);
    QFETCH(bool, isTakenFromView);
    RotationFixture f;

    const bool isConsumed =
        isTakenFromView ? f.opHandler->OnKeyDown(key, false, false, false) : f.SendToHandler(key);

    QVERIFY(!isConsumed);
    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QCOMPARE(f.Editor()->text(), QString("-"));
    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.RefreshCount(), 2);
}

void RotationDimensionTest::otherKeysOpenNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("A") << int('A');
    QTest::newRow("P") << int('P');
    QTest::newRow("Z") << int('Z');
    QTest::newRow("comma") << 188;
    QTest::newRow("comma as a character") << int(',');
}

void RotationDimensionTest::otherKeysOpenNothing()
{
    QFETCH(int, key);
    RotationFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(key, false, false, true));
    QCOMPARE(f.RefreshCount(), 0);

    QVERIFY(!f.SendToHandler(key, Qt::ShiftModifier, "x"));
    QCOMPARE(f.RefreshCount(), 1);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void RotationDimensionTest::minusAsACharacterIsNoKeyOfTheView()
{
    RotationFixture f;

    QVERIFY(!f.opHandler->OnKeyDown('-', false, false, false));

    QVERIFY(!f.opHandler->IsInputting());
}

void RotationDimensionTest::fieldShowsTextOrValue_data()
{
    QTest::addColumn<bool>("editorReady");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("new editor, given text") << false << true << "7";
    QTest::newRow("new editor") << false << false << "12.35";
    QTest::newRow("open editor, given text") << true << true << "7";
    QTest::newRow("open editor") << true << false << "12.35";
}

void RotationDimensionTest::fieldShowsTextOrValue()
{
    QFETCH(bool, editorReady);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    RotationFixture f;
    f.TypeAngle("1");
    f.Data()[InputState::IS_CentralAngle].value = 12.34567;

    f.Handler().ShowInputWidget(InputState::IS_CentralAngle, editorReady, useGivenText, L"7");

    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), editorReady ? text : QString());
}

void RotationDimensionTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void RotationDimensionTest::keysCommit()
{
    QFETCH(int, key);
    RotationFixture f;
    f.TypeAngle("12.5");

    QVERIFY(!f.FilterKey(key));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void RotationDimensionTest::escapeGoesOnToTheView()
{
    RotationFixture f;
    f.TypeAngle("5");
    bool wasInputting = true;
    f.host.view.SetOnKey([&] { wasInputting = f.opHandler->IsInputting(); });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QVERIFY(!wasInputting);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
}

void RotationDimensionTest::tabIsTheEditors()
{
    RotationFixture f;
    f.TypeAngle("5");

    QVERIFY(!f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), InputState::IS_CentralAngle);
    QVERIFY(f.Inputs().empty());
}

void RotationDimensionTest::deliversTheAngle()
{
    RotationFixture f;
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

void RotationDimensionTest::refusesWhatIsNoNumberInRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << "-45.1";
    QTest::newRow("above") << "45.1";
    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("sign only") << "-";
    QTest::newRow("not a number") << "nan";
}

void RotationDimensionTest::refusesWhatIsNoNumberInRange()
{
    QFETCH(QString, text);
    RotationFixture f;
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

void RotationDimensionTest::takesTheBounds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("bottom") << "-45" << -45.0;
    QTest::newRow("zero") << "0" << 0.0;
    QTest::newRow("top") << "45" << 45.0;
}

void RotationDimensionTest::takesTheBounds()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    RotationFixture f;
    f.context.SetSecondValueRange({-45, 45});
    f.Configure();
    f.TypeAngle(text);

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, value);
}

void RotationDimensionTest::deliversRawText()
{
    RotationFixture f;
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

void RotationDimensionTest::hasOneSlot()
{
    RotationFixture f;

    QCOMPARE(f.SlotNames(), QStringList{"OnEditorReturnPressed()"});
}

}

QTEST_MAIN(vesk::test::RotationDimensionTest)
#include "RotationDimensionTest.moc"

#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "TemporaryDimensionHandlersImpl/GeneratorFixture.h"

#include <QtTest>

Q_DECLARE_METATYPE(vesk::InputState)

namespace vesk::test
{

constexpr char RectangleClass[] = "vesk::RectangleTemporaryDimensionHandler::";

const Vector3d Corner(1, 2, 0);
const Vector3d Opposite(31, 22, 0);

/// A handler whose width is shown as 30 and whose height as 20.
struct RectangleFixture : GeneratorFixture
{
    RectangleFixture()
        : GeneratorFixture(
              MakeOwner<RectangleTemporaryDimensionContext>(TiltedPlane(), Corner, Opposite)),
          context(static_cast<RectangleTemporaryDimensionContext&>(*opContext))
    {
        Data()[InputState::IS_Width].value = 30;
        Data()[InputState::IS_Height].value = 20;
    }

    void TypeWidth(const QString& text) { Type(InputState::IS_Width, text); }
    void TypeHeight(const QString& text) { Type(InputState::IS_Height, text); }

    RectangleTemporaryDimensionContext& context;
};

class RectangleDimensionTest : public QObject
{
    Q_OBJECT

private slots:
    void showsTheWidthAndThenTheHeight();
    void cannotBePicked();
    void digitOpensTheWidthWithItself_data();
    void digitOpensTheWidthWithItself();
    void otherKeysOpenNothing_data();
    void otherKeysOpenNothing();
    void fieldShowsTextOrValue_data();
    void fieldShowsTextOrValue();
    void keysCommit_data();
    void keysCommit();
    void escapeGoesOnToTheView();
    void returnDeliversEither_data();
    void returnDeliversEither();
    void tabDeliversOneAndShowsTheOther_data();
    void tabDeliversOneAndShowsTheOther();
    void tabIsSwallowedWithoutInputToo();
    void refusesWhatIsNoNumberInRange_data();
    void refusesWhatIsNoNumberInRange();
    void tabUnmarksTheEditor();
    void deliversRawText_data();
    void deliversRawText();
    void tabInAWrongStateIsReported();
    void hasTwoSlots();
};

void RectangleDimensionTest::showsTheWidthAndThenTheHeight()
{
    RectangleFixture f;
    f.SetState(InputState::IS_Height);

    const auto opGroup = f.opHandler->GenerateGraphics(f.opContext.Get());

    QCOMPARE(f.recorder.GetCalls().size(), std::size_t(2));
    const GeneratorCall& width = f.recorder.GetCalls()[0];
    const GeneratorCall& height = f.recorder.GetCalls()[1];
    QCOMPARE(width.name, std::string("width"));
    QCOMPARE(width.points, (std::vector<Vector3d>{Corner, Opposite}));
    QVERIFY(f.IsOwnCall(width));
    QCOMPARE(height.name, std::string("height"));
    QCOMPARE(height.points, (std::vector<Vector3d>{Corner, Opposite}));
    QVERIFY(f.IsOwnCall(height));
    QCOMPARE(opGroup->GetChildCount(), 2);
    QCOMPARE(opGroup->GetChild(0), width.pResult);
    QCOMPARE(opGroup->GetChild(1), height.pResult);
}

void RectangleDimensionTest::cannotBePicked()
{
    RectangleFixture f;

    QVERIFY(!f.opHandler->GenerateGraphics(f.opContext.Get())->IsPickable());
}

void RectangleDimensionTest::digitOpensTheWidthWithItself_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addRow("0") << int('0') << QString("0");
    QTest::addRow("9") << int('9') << QString("9");
    QTest::addRow("keypad 0") << 96 << QString("0");
    QTest::addRow("keypad 9") << 105 << QString("9");
}

void RectangleDimensionTest::digitOpensTheWidthWithItself()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    RectangleFixture f;

    QVERIFY(f.opHandler->OnKeyDown(key, false, false, false));

    QCOMPARE(f.State(), InputState::IS_Width);
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(!f.Editor()->hasSelectedText());
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.RefreshCount(), 1);
}

void RectangleDimensionTest::otherKeysOpenNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("letter") << int('A');
    QTest::newRow("P") << int('P');
    QTest::newRow("minus") << 189;
    QTest::newRow("keypad minus") << 109;
    QTest::newRow("minus as a character") << int('-');
    QTest::newRow("comma") << 188;
    QTest::newRow("comma as a character") << int(',');
}

void RectangleDimensionTest::otherKeysOpenNothing()
{
    QFETCH(int, key);
    RectangleFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(key, false, false, true));
    QCOMPARE(f.RefreshCount(), 0);

    QVERIFY(!f.SendToHandler(key, Qt::ShiftModifier, "x"));
    QCOMPARE(f.RefreshCount(), 1);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void RectangleDimensionTest::fieldShowsTextOrValue_data()
{
    QTest::addColumn<InputState>("state");
    QTest::addColumn<bool>("editorReady");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isSelected");
    constexpr InputState Width = InputState::IS_Width;
    constexpr InputState Height = InputState::IS_Height;
    QTest::newRow("width, new editor, given text") << Width << false << true << "7" << false;
    QTest::newRow("width, new editor") << Width << false << false << "7" << false;
    QTest::newRow("width, open editor, given text") << Width << true << true << "7" << true;
    QTest::newRow("width, open editor") << Width << true << false << "30.000" << true;
    QTest::newRow("height, new editor, given text") << Height << false << true << "7" << true;
    QTest::newRow("height, new editor") << Height << false << false << "20.000" << true;
    QTest::newRow("height, open editor, given text") << Height << true << true << "7" << true;
    QTest::newRow("height, open editor") << Height << true << false << "20.000" << true;
}

void RectangleDimensionTest::fieldShowsTextOrValue()
{
    QFETCH(InputState, state);
    QFETCH(bool, editorReady);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    QFETCH(bool, isSelected);
    RectangleFixture f;
    f.TypeWidth("1");

    f.Handler().ShowInputWidget(state, editorReady, useGivenText, L"7");

    QCOMPARE(f.State(), state);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), isSelected ? text : QString());
}

void RectangleDimensionTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void RectangleDimensionTest::keysCommit()
{
    QFETCH(int, key);
    RectangleFixture f;
    f.TypeWidth("12.5");

    QVERIFY(!f.FilterKey(key));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void RectangleDimensionTest::escapeGoesOnToTheView()
{
    RectangleFixture f;
    f.TypeHeight("5");
    bool wasInputting = true;
    f.host.view.SetOnKey([&] { wasInputting = f.opHandler->IsInputting(); });

    QVERIFY(f.FilterKey(Qt::Key_Escape));

    QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_Escape});
    QVERIFY(!wasInputting);
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
}

void RectangleDimensionTest::returnDeliversEither_data()
{
    QTest::addColumn<InputState>("state");
    QTest::addColumn<int>("kind");
    QTest::newRow("width") << InputState::IS_Width << 13;
    QTest::newRow("height") << InputState::IS_Height << 14;
}

void RectangleDimensionTest::returnDeliversEither()
{
    QFETCH(InputState, state);
    QFETCH(int, kind);
    RectangleFixture f;
    f.Type(state, "12.5");
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

void RectangleDimensionTest::tabDeliversOneAndShowsTheOther_data()
{
    QTest::addColumn<InputState>("state");
    QTest::addColumn<int>("kind");
    QTest::addColumn<InputState>("next");
    QTest::addColumn<QString>("shown");
    QTest::newRow("width") << InputState::IS_Width << 6 << InputState::IS_Height << "20.000";
    QTest::newRow("height") << InputState::IS_Height << 7 << InputState::IS_Width << "30.000";
}

void RectangleDimensionTest::tabDeliversOneAndShowsTheOther()
{
    QFETCH(InputState, state);
    QFETCH(int, kind);
    QFETCH(InputState, next);
    QFETCH(QString, shown);
    RectangleFixture f;
    f.Type(state, "12.5");
    InputState stateInside = InputState::IS_None;
    f.host.actionLog.onInput = [&] { stateInside = f.State(); };

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, kind);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QCOMPARE(stateInside, state);
    QCOMPARE(f.State(), next);
    QCOMPARE(f.Editor()->text(), shown);
    QCOMPARE(f.Editor()->selectedText(), shown);
    QVERIFY(f.Editor()->isVisible());
}

void RectangleDimensionTest::tabIsSwallowedWithoutInputToo()
{
    RectangleFixture f;
    f.TypeWidth("12.5");
    f.opHandler->EndInput();

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.Inputs().empty());
    QVERIFY(!f.opHandler->IsInputting());
}

void RectangleDimensionTest::refusesWhatIsNoNumberInRange_data()
{
    QTest::addColumn<InputState>("state");
    QTest::addColumn<QString>("text");
    QTest::newRow("width below") << InputState::IS_Width << "4.9";
    QTest::newRow("width above") << InputState::IS_Width << "10.1";
    QTest::newRow("width, letters") << InputState::IS_Width << "abc";
    QTest::newRow("height below") << InputState::IS_Height << "4.9";
    QTest::newRow("height above") << InputState::IS_Height << "10.1";
    QTest::newRow("height, empty") << InputState::IS_Height << "";
}

void RectangleDimensionTest::refusesWhatIsNoNumberInRange()
{
    QFETCH(InputState, state);
    QFETCH(QString, text);
    RectangleFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.Configure();
    f.Type(state, text);

    QTest::keyClick(f.Editor(), Qt::Key_Return);
    f.Editor()->deselect();
    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), state);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
    QVERIFY(f.Editor()->isVisible());
    QVERIFY(!f.Editor()->toolTip().isEmpty());
}

void RectangleDimensionTest::tabUnmarksTheEditor()
{
    RectangleFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.Configure();
    f.TypeWidth("6");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.Editor()->text(), QString("20.000"));
    QCOMPARE(f.Editor()->toolTip(), QString());
}

void RectangleDimensionTest::deliversRawText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("kind");
    QTest::newRow("Return") << int(Qt::Key_Return) << 13;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << 6;
}

void RectangleDimensionTest::deliversRawText()
{
    QFETCH(int, key);
    QFETCH(int, kind);
    RectangleFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeWidth("abc");
    QVERIFY(f.IsValidatedLive());

    f.FilterKey(key);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, kind);
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QVERIFY(!f.IsValidatedLive());
}

void RectangleDimensionTest::tabInAWrongStateIsReported()
{
    RectangleFixture f;
    f.TypeWidth("5");
    f.SetState(InputState::IS_Length);

    QVERIFY(QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed"));

    EXPECT_WARNING(f.host.warnings, L"m_enInputState怎么不是IS_Width或IS_Height?",
                   std::string(RectangleClass) + "OnEditorTabPressed");
    QVERIFY(f.Inputs().empty());
}

void RectangleDimensionTest::hasTwoSlots()
{
    RectangleFixture f;

    QCOMPARE(f.SlotNames(), (QStringList{"OnEditorReturnPressed()", "OnEditorTabPressed()"}));
}

}

QTEST_MAIN(vesk::test::RectangleDimensionTest)
#include "RectangleDimensionTest.moc"

#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "HostUi/LineEditValidateHelper.h"

#include <QMetaMethod>
#include <QtTest>

Q_DECLARE_METATYPE(vesk::InputState)

namespace vesk::test
{

/// Notes the key presses that a widget gets.
class KeyNotes final : public QObject
{
public:
    explicit KeyNotes(QWidget* pWidget) { pWidget->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::KeyPress)
            ++count;
        return false;
    }

    int count = 0;
};

/// A handler whose values an action takes.
struct InputFixture : HandlerFixture
{
    explicit InputFixture(bool isLengthEnabled = true, bool isAngleEnabled = true)
        : HandlerFixture(isLengthEnabled, isAngleEnabled)
    {
        host.BeginAction();
    }

    void TypeAngle(const QString& text)
    {
        Handler().ShowInputWidget(InputState::IS_Angle, false, true, text.toStdWString());
    }

    std::vector<ActionViewInput>& Inputs() { return host.actionLog.inputs; }

    bool IsValidatedLive() const
    {
        return Object().findChild<LineEditValidateHelper*>() != nullptr;
    }
};

class LinearDimensionInputTest : public QObject
{
    Q_OBJECT

private slots:
    void statesOfOtherKindsAreIllegal_data();
    void statesOfOtherKindsAreIllegal();
    void readyEditorShowsTheLengthSelected_data();
    void readyEditorShowsTheLengthSelected();
    void newEditorTakesTheTextOfALengthWhateverIsTold();
    void angleShowsGivenTextOrItsValue_data();
    void angleShowsGivenTextOrItsValue();
    void readyEditorThatIsNotThereEndsTheInput();
    void fieldIsPlacedAndTheViewRefreshed();

    void releasesAreSwallowed();
    void keysCommit_data();
    void keysCommit();
    void escapeEndsTheInputAndStopsThere();
    void tabSwitchesWhenBothAreEnabled();
    void tabIsTheEditorsWhenOneIsEnabled_data();
    void tabIsTheEditorsWhenOneIsEnabled();
    void otherKeysAndEventsAreTheEditors();
    void keysWithoutAViewAreReported();
    void keysWithoutAViewWidgetAreReported();

    void returnDeliversALength();
    void returnDeliversAnAngle();
    void returnEndsTheInputBeforeItDelivers();
    void returnWithoutInputDoesNothing();
    void returnRefusesWhatIsNoNumberInRange_data();
    void returnRefusesWhatIsNoNumberInRange();
    void returnTakesTheBounds_data();
    void returnTakesTheBounds();
    void returnRefusesAnAngleOutOfRange();
    void returnDeliversRawText();
    void returnInAWrongStateIsReported();
    void returnWorksInTheCurrentViewFromThenOn();
    void returnWithoutAViewEndsTheInput();
    void returnMarksTheEditorFromTheFirstTimeOn();

    void tabDeliversALengthAndShowsTheAngle();
    void tabDeliversAnAngleAndShowsTheLength();
    void tabDeliversWhileTheInputGoesOn();
    void tabWithoutInputDoesNothing();
    void tabRefusesAnInvalidValue();
    void tabDeliversRawText();
    void tabInAWrongStateIsReported();
    void tabUnmarksTheEditor();
    void afterRawTextNumbersAreStillJudged();
    void theTwoOperationsAreSlots();
};

void LinearDimensionInputTest::statesOfOtherKindsAreIllegal_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("none") << 0;
    QTest::newRow("radius") << 3;
    QTest::newRow("central angle") << 4;
    QTest::newRow("width") << 5;
    QTest::newRow("height") << 6;
    QTest::newRow("7") << 7;
}

void LinearDimensionInputTest::statesOfOtherKindsAreIllegal()
{
    QFETCH(int, state);
    InputFixture f;

    f.Handler().ShowInputWidget(InputState(state), false, true, L"5");

    EXPECT_WARNING(f.host.warnings, L"InputState输入非法!",
                   std::string(LinearClass) + "ShowInputWidget");
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void LinearDimensionInputTest::readyEditorShowsTheLengthSelected_data()
{
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("given text") << true << "7";
    QTest::newRow("current value") << false << "50.000";
}

void LinearDimensionInputTest::readyEditorShowsTheLengthSelected()
{
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    InputFixture f;
    f.TypeAngle("1");

    f.Handler().ShowInputWidget(InputState::IS_Length, true, useGivenText, L"7");

    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
}

void LinearDimensionInputTest::newEditorTakesTheTextOfALengthWhateverIsTold()
{
    InputFixture f;

    f.Handler().ShowInputWidget(InputState::IS_Length, false, false, L"7");

    QCOMPARE(f.Editor()->text(), QString("7"));
    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.Editor()->cursorPosition(), 1);
}

void LinearDimensionInputTest::angleShowsGivenTextOrItsValue_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("both, given text") << true << true << "7";
    QTest::newRow("both, current value") << true << false << "53.13";
    QTest::newRow("angle only, given text") << false << true << "7";
    QTest::newRow("angle only, current value") << false << false << "53.13";
}

void LinearDimensionInputTest::angleShowsGivenTextOrItsValue()
{
    QFETCH(bool, hasLength);
    QFETCH(bool, useGivenText);
    QFETCH(QString, text);
    InputFixture f(hasLength, true);

    f.Handler().ShowInputWidget(InputState::IS_Angle, false, useGivenText, L"7");

    QCOMPARE(f.State(), InputState::IS_Angle);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->hasSelectedText(), hasLength);
}

void LinearDimensionInputTest::readyEditorThatIsNotThereEndsTheInput()
{
    InputFixture f;
    const int redrawCount = f.host.view.GetRedrawCount();

    f.Handler().ShowInputWidget(InputState::IS_Length, true, false, L"");

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void LinearDimensionInputTest::fieldIsPlacedAndTheViewRefreshed()
{
    InputFixture f;
    f.TypeLength("5");
    const QPoint position = f.Editor()->pos();
    const int redrawCount = f.host.view.GetRedrawCount();
    const Vector3d anchor = f.Data()[InputState::IS_Length].textPosition;
    f.Data()[InputState::IS_Angle].textPosition = anchor + Vector3d(20, 10, 0);
    f.Editor()->hide();

    f.Handler().ShowInputWidget(InputState::IS_Angle, true, true, L"1");

    QCOMPARE(f.Editor()->pos(), position + QPoint(20, -10));
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount + 1);
}

void LinearDimensionInputTest::releasesAreSwallowed()
{
    InputFixture f;
    f.TypeLength("5");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);

    QVERIFY(f.Object().eventFilter(f.Editor(), &release));

    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionInputTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void LinearDimensionInputTest::keysCommit()
{
    QFETCH(int, key);
    InputFixture f;
    f.TypeLength("12.5");

    const bool isSwallowed = f.FilterKey(key);

    QVERIFY(!isSwallowed);
    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, 12.5);
}

void LinearDimensionInputTest::escapeEndsTheInputAndStopsThere()
{
    InputFixture f;
    f.TypeLength("5");
    KeyNotes viewKeys(&f.host.view);

    const bool isSwallowed = f.FilterKey(Qt::Key_Escape);

    QVERIFY(!isSwallowed);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
    QCOMPARE(viewKeys.count, 0);
}

void LinearDimensionInputTest::tabSwitchesWhenBothAreEnabled()
{
    InputFixture f;
    f.TypeLength("5");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), InputState::IS_Angle);
}

void LinearDimensionInputTest::tabIsTheEditorsWhenOneIsEnabled_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("hasAngle");
    QTest::newRow("length only") << true << false;
    QTest::newRow("angle only") << false << true;
}

void LinearDimensionInputTest::tabIsTheEditorsWhenOneIsEnabled()
{
    QFETCH(bool, hasLength);
    QFETCH(bool, hasAngle);
    InputFixture f(hasLength, hasAngle);
    f.SendToHandler('5');
    const InputState state = f.State();

    QVERIFY(!f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), state);
    QVERIFY(f.Inputs().empty());
}

void LinearDimensionInputTest::otherKeysAndEventsAreTheEditors()
{
    InputFixture f;
    f.TypeLength("5");
    QEvent focusOut(QEvent::FocusOut);
    QEvent fake(QEvent::KeyPress);

    QVERIFY(!f.FilterKey(Qt::Key_7));
    QVERIFY(!f.FilterKey(Qt::Key_Backtab));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &focusOut));
    QVERIFY(!f.Object().eventFilter(f.Editor(), &fake));

    QTest::keyClick(f.Editor(), Qt::Key_7);
    QCOMPARE(f.Editor()->text(), QString("57"));
    QCOMPARE(f.State(), InputState::IS_Length);
}

void LinearDimensionInputTest::keysWithoutAViewAreReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    EXPECT_WARNING(f.host.warnings, L"pUIView指针不能为空",
                   std::string(LinearClass) + "eventFilter");
    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionInputTest::keysWithoutAViewWidgetAreReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.view.SetWindowId(0);

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    EXPECT_WARNING(f.host.warnings, L"pViewWidget指针不能为空",
                   std::string(LinearClass) + "eventFilter");
    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionInputTest::returnDeliversALength()
{
    InputFixture f;
    f.TypeLength("12.5");

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 8);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QVERIFY(!f.Inputs()[0].extra.has_value());
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
}

void LinearDimensionInputTest::returnDeliversAnAngle()
{
    InputFixture f;
    f.TypeAngle("-30");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 9);
    QCOMPARE(f.Inputs()[0].value, -30.0);
}

void LinearDimensionInputTest::returnEndsTheInputBeforeItDelivers()
{
    InputFixture f;
    f.TypeLength("12.5");
    bool wasInputting = true;
    bool wasVisible = true;
    f.host.actionLog.onInput = [&] {
        wasInputting = f.opHandler->IsInputting();
        wasVisible = f.Editor()->isVisible();
    };

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(!wasInputting);
    QVERIFY(!wasVisible);
}

void LinearDimensionInputTest::returnWithoutInputDoesNothing()
{
    InputFixture f;
    f.TypeLength("12.5");
    f.opHandler->EndInput();

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(f.Inputs().empty());
}

void LinearDimensionInputTest::returnRefusesWhatIsNoNumberInRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << "4.9";
    QTest::newRow("above") << "10.1";
    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("not a number") << "nan";
    QTest::newRow("infinite") << "inf";
}

void LinearDimensionInputTest::returnRefusesWhatIsNoNumberInRange()
{
    QFETCH(QString, text);
    InputFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.opHandler->UpdateConfig(&f.context);
    f.TypeLength(text);

    QTest::keyClick(f.Editor(), Qt::Key_Return);

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), text);
    QCOMPARE(f.Editor()->selectedText(), text);
    QVERIFY(f.Editor()->isVisible());
}

void LinearDimensionInputTest::returnTakesTheBounds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("bottom") << "5" << 5.0;
    QTest::newRow("top") << "10" << 10.0;
    QTest::newRow("exponent") << "1e1" << 10.0;
    QTest::newRow("sign") << "+7" << 7.0;
}

void LinearDimensionInputTest::returnTakesTheBounds()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    InputFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.opHandler->UpdateConfig(&f.context);
    f.TypeLength(text);

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].value, value);
}

void LinearDimensionInputTest::returnRefusesAnAngleOutOfRange()
{
    InputFixture f;
    f.context.SetSecondValueRange({-45, 45});
    f.opHandler->UpdateConfig(&f.context);
    f.TypeAngle("46");

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_Angle);
    QCOMPARE(f.Editor()->selectedText(), QString("46"));
}

void LinearDimensionInputTest::returnDeliversRawText()
{
    InputFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeLength("abc");
    QVERIFY(f.IsValidatedLive());

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 8);
    QCOMPARE(f.Inputs()[0].value, 0.0);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(!f.IsValidatedLive());
}

void LinearDimensionInputTest::returnInAWrongStateIsReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.SetState(InputState::IS_Radius);

    f.opHandler->OnEditorReturnPressed();

    EXPECT_WARNING(f.host.warnings, L"m_InputState怎么不是IS_Length或IS_Angle?",
                   std::string(LinearClass) + "OnEditorReturnPressed");
    QVERIFY(f.Inputs().empty());
    QVERIFY(f.Editor()->isVisible());
}

void LinearDimensionInputTest::returnWorksInTheCurrentViewFromThenOn()
{
    InputFixture f;
    f.TypeLength("5");
    TestView other(2, &f.host.window);
    f.host.core.GetViewManager().AddView(&other);
    f.host.core.GetViewManager().SetCurrentView(&other);
    f.opHandler->OnEditorReturnPressed();
    const int redrawCount = other.GetRedrawCount();

    f.SendToHandler(Qt::Key_F5);

    QCOMPARE(other.GetRedrawCount(), redrawCount + 1);
    ActionManager::Reset();
    f.host.core.GetViewManager().RemoveView(&other);
}

void LinearDimensionInputTest::returnWithoutAViewEndsTheInput()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
}

void LinearDimensionInputTest::returnMarksTheEditorFromTheFirstTimeOn()
{
    InputFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.opHandler->UpdateConfig(&f.context);
    f.TypeLength("4");
    QVERIFY(f.IsValidatedLive());
    QCOMPARE(f.Editor()->toolTip(), QString());

    f.opHandler->OnEditorReturnPressed();
    QVERIFY(!f.Editor()->toolTip().isEmpty());

    f.Editor()->setText("6");
    QCOMPARE(f.Editor()->toolTip(), QString());
}

void LinearDimensionInputTest::tabDeliversALengthAndShowsTheAngle()
{
    InputFixture f;
    f.TypeLength("12.5");

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 1);
    QCOMPARE(f.Inputs()[0].value, 12.5);
    QVERIFY(f.Inputs()[0].text.empty());
    QCOMPARE(f.State(), InputState::IS_Angle);
    QCOMPARE(f.Editor()->text(), QString("53.13"));
    QCOMPARE(f.Editor()->selectedText(), QString("53.13"));
    QVERIFY(f.Editor()->isVisible());
}

void LinearDimensionInputTest::tabDeliversAnAngleAndShowsTheLength()
{
    InputFixture f;
    f.TypeAngle("30");

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 2);
    QCOMPARE(f.Inputs()[0].value, 30.0);
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), QString("50.000"));
    QCOMPARE(f.Editor()->selectedText(), QString("50.000"));
}

void LinearDimensionInputTest::tabDeliversWhileTheInputGoesOn()
{
    InputFixture f;
    f.TypeLength("12.5");
    InputState stateInside = InputState::IS_None;
    f.host.actionLog.onInput = [&] { stateInside = f.State(); };

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(stateInside, InputState::IS_Length);
}

void LinearDimensionInputTest::tabWithoutInputDoesNothing()
{
    InputFixture f;
    f.TypeLength("12.5");
    f.opHandler->EndInput();

    QVERIFY(QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed"));

    QVERIFY(f.Inputs().empty());
    QVERIFY(!f.opHandler->IsInputting());
}

void LinearDimensionInputTest::tabRefusesAnInvalidValue()
{
    InputFixture f;
    f.TypeLength("abc");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->selectedText(), QString("abc"));
}

void LinearDimensionInputTest::tabDeliversRawText()
{
    InputFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeLength("abc");

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 1);
    QCOMPARE(f.Inputs()[0].text, std::wstring(L"abc"));
    QCOMPARE(f.State(), InputState::IS_Angle);
    QVERIFY(!f.IsValidatedLive());
}

void LinearDimensionInputTest::tabInAWrongStateIsReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.SetState(InputState::IS_Width);

    QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed");

    EXPECT_WARNING(f.host.warnings, L"m_InputState怎么不是IS_Length或IS_Angle?",
                   std::string(LinearClass) + "OnEditorTabPressed");
    QVERIFY(f.Inputs().empty());
}

void LinearDimensionInputTest::tabUnmarksTheEditor()
{
    InputFixture f;
    f.context.SetFirstValueRange({5, 10});
    f.context.SetSecondValueRange({0, 1});
    f.opHandler->UpdateConfig(&f.context);
    f.TypeLength("6");

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(f.Editor()->text(), QString("53.13"));
    QCOMPARE(f.Editor()->toolTip(), QString());
}

void LinearDimensionInputTest::afterRawTextNumbersAreStillJudged()
{
    InputFixture f;
    f.Object().setProperty("rawTextInput", true);
    f.TypeLength("abc");
    QTest::keyClick(f.Editor(), Qt::Key_Tab);
    f.Object().setProperty("rawTextInput", false);
    f.Editor()->setText("xyz");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Editor()->selectedText(), QString("xyz"));
}

void LinearDimensionInputTest::theTwoOperationsAreSlots()
{
    HandlerFixture f;
    const QMetaObject& meta = *f.Object().metaObject();

    const QMetaMethod onReturn = meta.method(meta.indexOfSlot("OnEditorReturnPressed()"));
    const QMetaMethod onTab = meta.method(meta.indexOfSlot("OnEditorTabPressed()"));

    QCOMPARE(onReturn.methodType(), QMetaMethod::Slot);
    QCOMPARE(onTab.methodType(), QMetaMethod::Slot);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 2);
}

}

QTEST_MAIN(vesk::test::LinearDimensionInputTest)
#include "LinearDimensionInputTest.moc"

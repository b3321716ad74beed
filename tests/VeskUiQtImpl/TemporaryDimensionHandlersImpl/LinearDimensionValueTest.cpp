#include "TemporaryDimensionHandlersImpl/InputFixture.h"

#include <QMetaMethod>
#include <QtTest>

namespace vesk::test
{

class LinearDimensionValueTest : public QObject
{
    Q_OBJECT

private slots:
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

void LinearDimensionValueTest::returnDeliversALength()
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

void LinearDimensionValueTest::returnDeliversAnAngle()
{
    InputFixture f;
    f.TypeAngle("-30");

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(f.Inputs().size(), std::size_t(1));
    QCOMPARE(f.Inputs()[0].kind, 9);
    QCOMPARE(f.Inputs()[0].value, -30.0);
}

void LinearDimensionValueTest::returnEndsTheInputBeforeItDelivers()
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

void LinearDimensionValueTest::returnWithoutInputDoesNothing()
{
    InputFixture f;
    f.TypeLength("12.5");
    f.opHandler->EndInput();

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(f.Inputs().empty());
}

void LinearDimensionValueTest::returnRefusesWhatIsNoNumberInRange_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("below") << "4.9";
    QTest::newRow("above") << "10.1";
    QTest::newRow("letters") << "abc";
    QTest::newRow("empty") << "";
    QTest::newRow("not a number") << "nan";
    QTest::newRow("infinite") << "inf";
}

void LinearDimensionValueTest::returnRefusesWhatIsNoNumberInRange()
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

void LinearDimensionValueTest::returnTakesTheBounds_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("bottom") << "5" << 5.0;
    QTest::newRow("top") << "10" << 10.0;
    QTest::newRow("exponent") << "1e1" << 10.0;
    QTest::newRow("sign") << "+7" << 7.0;
}

void LinearDimensionValueTest::returnTakesTheBounds()
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

void LinearDimensionValueTest::returnRefusesAnAngleOutOfRange()
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

void LinearDimensionValueTest::returnDeliversRawText()
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

void LinearDimensionValueTest::returnInAWrongStateIsReported()
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

void LinearDimensionValueTest::returnWorksInTheCurrentViewFromThenOn()
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

void LinearDimensionValueTest::returnWithoutAViewEndsTheInput()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
}

void LinearDimensionValueTest::returnMarksTheEditorFromTheFirstTimeOn()
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

void LinearDimensionValueTest::tabDeliversALengthAndShowsTheAngle()
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

void LinearDimensionValueTest::tabDeliversAnAngleAndShowsTheLength()
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

void LinearDimensionValueTest::tabDeliversWhileTheInputGoesOn()
{
    InputFixture f;
    f.TypeLength("12.5");
    InputState stateInside = InputState::IS_None;
    f.host.actionLog.onInput = [&] { stateInside = f.State(); };

    QTest::keyClick(f.Editor(), Qt::Key_Tab);

    QCOMPARE(stateInside, InputState::IS_Length);
}

void LinearDimensionValueTest::tabWithoutInputDoesNothing()
{
    InputFixture f;
    f.TypeLength("12.5");
    f.opHandler->EndInput();

    QVERIFY(QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed"));

    QVERIFY(f.Inputs().empty());
    QVERIFY(!f.opHandler->IsInputting());
}

void LinearDimensionValueTest::tabRefusesAnInvalidValue()
{
    InputFixture f;
    f.TypeLength("abc");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QVERIFY(f.Inputs().empty());
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->selectedText(), QString("abc"));
}

void LinearDimensionValueTest::tabDeliversRawText()
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

void LinearDimensionValueTest::tabInAWrongStateIsReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.SetState(InputState::IS_Width);

    QMetaObject::invokeMethod(&f.Object(), "OnEditorTabPressed");

    EXPECT_WARNING(f.host.warnings, L"m_InputState怎么不是IS_Length或IS_Angle?",
                   std::string(LinearClass) + "OnEditorTabPressed");
    QVERIFY(f.Inputs().empty());
}

void LinearDimensionValueTest::tabUnmarksTheEditor()
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

void LinearDimensionValueTest::afterRawTextNumbersAreStillJudged()
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

void LinearDimensionValueTest::theTwoOperationsAreSlots()
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

QTEST_MAIN(vesk::test::LinearDimensionValueTest)
#include "LinearDimensionValueTest.moc"

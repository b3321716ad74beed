#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk::test
{
namespace
{

/// A handler for a segment, and an action that receives its values.
struct InputFixture : HandlerFixture
{
    InputFixture() { host.BeginAction(); }
};

}

class LinearDimensionInputTest : public QObject
{
    Q_OBJECT

private slots:
    void readyEditorThatIsNotThereEndsTheInput();
    void fieldIsPlacedAndTheViewRefreshed();
    void openEditorTakesTheFocusBack();
    void releasesAreSwallowed();
    void escapeEndsTheInputAndStopsThere();
    void otherKeysAndEventsAreTheEditors();
    void keysWithoutAViewAreReported();
    void keysWithoutAViewWidgetAreReported();
    void returnWithoutInputDoesNothing();
    void returnWorksInTheCurrentViewFromThenOn();
    void returnWithoutAViewEndsTheInput();
    void returnMarksTheEditorFromTheFirstTimeOn();
    void afterRawTextNumbersAreStillJudged();
};

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

void LinearDimensionInputTest::openEditorTakesTheFocusBack()
{
    InputFixture f;
    f.TypeLength("5");
    QTRY_VERIFY(f.Editor()->hasFocus());
    f.Editor()->clearFocus();

    f.Handler().ShowInputWidget(InputState::IS_Angle, true, true, L"1");

    QVERIFY(f.Editor()->hasFocus());
}

void LinearDimensionInputTest::releasesAreSwallowed()
{
    InputFixture f;
    f.TypeLength("5");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);

    QVERIFY(f.Object().eventFilter(f.Editor(), &release));

    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionInputTest::escapeEndsTheInputAndStopsThere()
{
    InputFixture f;
    f.TypeLength("5");

    const bool isSwallowed = f.FilterKey(Qt::Key_Escape);

    QVERIFY(!isSwallowed);
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor()->isHidden());
    QVERIFY(f.Inputs().empty());
    QVERIFY(f.host.view.GetKeys().empty());
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

void LinearDimensionInputTest::returnWithoutInputDoesNothing()
{
    InputFixture f;
    f.TypeLength("12.5");
    f.opHandler->EndInput();

    f.opHandler->OnEditorReturnPressed();

    QVERIFY(f.Inputs().empty());
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
    f.Configure();
    f.TypeLength("4");
    QVERIFY(f.IsValidatedLive());
    QCOMPARE(f.Editor()->toolTip(), QString());

    f.opHandler->OnEditorReturnPressed();
    QVERIFY(!f.Editor()->toolTip().isEmpty());

    f.Editor()->setText("6");
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

}

VESK_TESTS(vesk::test::LinearDimensionInputTest);
#include "LinearDimensionInputTest.moc"

#include "TemporaryDimensionHandlersImpl/InputFixture.h"

#include <QMetaMethod>
#include <QtTest>

namespace vesk::test
{

class LinearDimensionFieldTest : public QObject
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
};

void LinearDimensionFieldTest::statesOfOtherKindsAreIllegal_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("none") << 0;
    QTest::newRow("radius") << 3;
    QTest::newRow("central angle") << 4;
    QTest::newRow("width") << 5;
    QTest::newRow("height") << 6;
    QTest::newRow("7") << 7;
}

void LinearDimensionFieldTest::statesOfOtherKindsAreIllegal()
{
    QFETCH(int, state);
    InputFixture f;

    f.Handler().ShowInputWidget(InputState(state), false, true, L"5");

    EXPECT_WARNING(f.host.warnings, L"InputState输入非法!",
                   std::string(LinearClass) + "ShowInputWidget");
    QVERIFY(!f.opHandler->IsInputting());
    QVERIFY(f.Editor() == nullptr);
}

void LinearDimensionFieldTest::readyEditorShowsTheLengthSelected_data()
{
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("given text") << true << "7";
    QTest::newRow("current value") << false << "50.000";
}

void LinearDimensionFieldTest::readyEditorShowsTheLengthSelected()
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

void LinearDimensionFieldTest::newEditorTakesTheTextOfALengthWhateverIsTold()
{
    InputFixture f;

    f.Handler().ShowInputWidget(InputState::IS_Length, false, false, L"7");

    QCOMPARE(f.Editor()->text(), QString("7"));
    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.Editor()->cursorPosition(), 1);
}

void LinearDimensionFieldTest::angleShowsGivenTextOrItsValue_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("useGivenText");
    QTest::addColumn<QString>("text");
    QTest::newRow("both, given text") << true << true << "7";
    QTest::newRow("both, current value") << true << false << "53.13";
    QTest::newRow("angle only, given text") << false << true << "7";
    QTest::newRow("angle only, current value") << false << false << "53.13";
}

void LinearDimensionFieldTest::angleShowsGivenTextOrItsValue()
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

void LinearDimensionFieldTest::readyEditorThatIsNotThereEndsTheInput()
{
    InputFixture f;
    const int redrawCount = f.host.view.GetRedrawCount();

    f.Handler().ShowInputWidget(InputState::IS_Length, true, false, L"");

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount);
}

void LinearDimensionFieldTest::fieldIsPlacedAndTheViewRefreshed()
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

void LinearDimensionFieldTest::releasesAreSwallowed()
{
    InputFixture f;
    f.TypeLength("5");
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Return, Qt::NoModifier);

    QVERIFY(f.Object().eventFilter(f.Editor(), &release));

    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionFieldTest::keysCommit_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void LinearDimensionFieldTest::keysCommit()
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

void LinearDimensionFieldTest::escapeEndsTheInputAndStopsThere()
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

void LinearDimensionFieldTest::tabSwitchesWhenBothAreEnabled()
{
    InputFixture f;
    f.TypeLength("5");

    QVERIFY(f.FilterKey(Qt::Key_Tab));

    QCOMPARE(f.State(), InputState::IS_Angle);
}

void LinearDimensionFieldTest::tabIsTheEditorsWhenOneIsEnabled_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("hasAngle");
    QTest::newRow("length only") << true << false;
    QTest::newRow("angle only") << false << true;
}

void LinearDimensionFieldTest::tabIsTheEditorsWhenOneIsEnabled()
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

void LinearDimensionFieldTest::otherKeysAndEventsAreTheEditors()
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

void LinearDimensionFieldTest::keysWithoutAViewAreReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.core.GetViewManager().RemoveView(&f.host.view);

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    EXPECT_WARNING(f.host.warnings, L"pUIView指针不能为空",
                   std::string(LinearClass) + "eventFilter");
    QVERIFY(f.opHandler->IsInputting());
}

void LinearDimensionFieldTest::keysWithoutAViewWidgetAreReported()
{
    InputFixture f;
    f.TypeLength("5");
    f.host.view.SetWindowId(0);

    QVERIFY(!f.FilterKey(Qt::Key_Escape));

    EXPECT_WARNING(f.host.warnings, L"pViewWidget指针不能为空",
                   std::string(LinearClass) + "eventFilter");
    QVERIFY(f.opHandler->IsInputting());
}

}

QTEST_MAIN(vesk::test::LinearDimensionFieldTest)
#include "LinearDimensionFieldTest.moc"

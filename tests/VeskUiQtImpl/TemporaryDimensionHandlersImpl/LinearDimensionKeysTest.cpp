#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk::test
{

class LinearDimensionKeysTest : public QObject
{
    Q_OBJECT

private slots:
    void letterOpensTheLengthWithItsText_data();
    void letterOpensTheLengthWithItsText();
    void firstCharacterIsNotSelected();
    void shiftAndCommaOpenTheAngleWithItsValueSelected_data();
    void shiftAndCommaOpenTheAngleWithItsValueSelected();
    void commaAloneOpensNothing_data();
    void commaAloneOpensNothing();
    void keyOpensTheLengthWhenNeitherIsEnabledAndItIsReported();
    void neitherEnabledIsReportedForEveryKey();
    void neitherEnabledIsReportedDuringAnInputToo();
    void otherKeyOnlyRefreshesTheView();
    void keyDuringAnInputOnlyRefreshesTheView_data();
    void keyDuringAnInputOnlyRefreshesTheView();
    void eventThatIsNoKeyIsNotReportedAsOneWithoutAField();
    void otherEventsAreThoseOfAPlainObject();
    void lettersOfTheViewAreTaken_data();
    void lettersOfTheViewAreTaken();
    void viewKeysAreRefused_data();
    void viewKeysAreRefused();
    void altAndPAreTheHosts();
    void viewModifiersReachTheKey();
    void lettersArriveInLowerCase();
};

void LinearDimensionKeysTest::letterOpensTheLengthWithItsText_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("A") << int('A') << "a";
    QTest::newRow("Z") << int('Z') << "Z";
}

void LinearDimensionKeysTest::letterOpensTheLengthWithItsText()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    HandlerFixture f;

    const bool isConsumed = f.SendToHandler(key, Qt::NoModifier, text);

    QVERIFY(isConsumed);
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), text);
    QVERIFY(f.Editor()->isVisible());
    QCOMPARE(f.host.view.GetRedrawCount(), 1);
}

void LinearDimensionKeysTest::firstCharacterIsNotSelected()
{
    HandlerFixture f;

    f.SendToHandler('5');

    QVERIFY(!f.Editor()->hasSelectedText());
    QTest::keyClick(f.Editor(), Qt::Key_7);
    QCOMPARE(f.Editor()->text(), QString("57"));
}

void LinearDimensionKeysTest::shiftAndCommaOpenTheAngleWithItsValueSelected_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("comma") << int(',');
    QTest::newRow("key code") << 188;
}

void LinearDimensionKeysTest::shiftAndCommaOpenTheAngleWithItsValueSelected()
{
    QFETCH(int, key);
    HandlerFixture f;

    const bool isConsumed = f.SendToHandler(key, Qt::ShiftModifier, "<");

    QVERIFY(isConsumed);
    QCOMPARE(f.State(), InputState::IS_Angle);
    QCOMPARE(f.Editor()->text(), QString("53.13"));
    QCOMPARE(f.Editor()->selectedText(), QString("53.13"));
    QCOMPARE(f.host.view.GetRedrawCount(), 1);
}

void LinearDimensionKeysTest::commaAloneOpensNothing_data()
{
    QTest::addColumn<bool>("hasLength");
    QTest::addColumn<bool>("hasAngle");
    QTest::addColumn<bool>("isShift");
    QTest::newRow("without Shift") << true << true << false;
    QTest::newRow("length only") << true << false << true;
    QTest::newRow("angle only") << false << true << true;
}

void LinearDimensionKeysTest::commaAloneOpensNothing()
{
    QFETCH(bool, hasLength);
    QFETCH(bool, hasAngle);
    QFETCH(bool, isShift);
    HandlerFixture f(hasLength, hasAngle);

    const bool isConsumed = f.SendToHandler(188, isShift ? Qt::ShiftModifier : Qt::NoModifier, ",");

    QVERIFY(!isConsumed);
    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), 1);
}

void LinearDimensionKeysTest::keyOpensTheLengthWhenNeitherIsEnabledAndItIsReported()
{
    HandlerFixture f(false, false);

    f.SendToHandler('5');

    EXPECT_WARNING(f.host.warnings, L"无法设置EnInputState的类型，将按IS_Length设置",
                   std::string(LinearClass) + "event");
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), QString("5"));
}

void LinearDimensionKeysTest::neitherEnabledIsReportedForEveryKey()
{
    HandlerFixture f(false, false);

    f.SendToHandler(Qt::Key_F5);

    EXPECT_WARNING(f.host.warnings, L"无法设置EnInputState的类型，将按IS_Length设置",
                   std::string(LinearClass) + "event");
    QVERIFY(!f.opHandler->IsInputting());
}

void LinearDimensionKeysTest::neitherEnabledIsReportedDuringAnInputToo()
{
    HandlerFixture f(false, false);
    f.TypeLength("1");
    QVERIFY(f.host.warnings.IsEmpty());

    f.SendToHandler('5');

    EXPECT_WARNING(f.host.warnings, L"无法设置EnInputState的类型，将按IS_Length设置",
                   std::string(LinearClass) + "event");
    QCOMPARE(f.Editor()->text(), QString("1"));
}

void LinearDimensionKeysTest::otherKeyOnlyRefreshesTheView()
{
    HandlerFixture f;

    const bool isConsumed = f.SendToHandler(Qt::Key_F5);

    QVERIFY(!isConsumed);
    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), 1);
}

void LinearDimensionKeysTest::keyDuringAnInputOnlyRefreshesTheView_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("digit") << int('5');
    QTest::newRow("letter") << int('A');
    QTest::newRow("minus") << 189;
    QTest::newRow("comma") << 188;
}

void LinearDimensionKeysTest::keyDuringAnInputOnlyRefreshesTheView()
{
    QFETCH(int, key);
    HandlerFixture f;
    f.TypeLength("1");
    const int redrawCount = f.host.view.GetRedrawCount();

    const bool isConsumed = f.SendToHandler(key, Qt::ShiftModifier, "x");

    QVERIFY(!isConsumed);
    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), QString("1"));
    QCOMPARE(f.host.view.GetRedrawCount(), redrawCount + 1);
}

void LinearDimensionKeysTest::eventThatIsNoKeyIsNotReportedAsOneWithoutAField()
{
    HandlerFixture f(false, false);
    QEvent fake(QEvent::KeyPress);

    QVERIFY(!f.Object().event(&fake));

    EXPECT_WARNING(f.host.warnings, L"难道pEvent不是键盘事件?", std::string(LinearClass) + "event");
    QVERIFY(f.host.warnings.IsEmpty());
}

void LinearDimensionKeysTest::otherEventsAreThoseOfAPlainObject()
{
    HandlerFixture f(false, false);
    QKeyEvent release(QEvent::KeyRelease, '5', Qt::NoModifier);
    QEvent fontChange(QEvent::FontChange);

    QVERIFY(!f.Object().event(&release));
    QVERIFY(!f.Object().event(&fontChange));

    QVERIFY(f.host.warnings.IsEmpty());
    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), 0);
}

void LinearDimensionKeysTest::lettersOfTheViewAreTaken_data()
{
    QTest::addColumn<int>("virtualKey");
    QTest::addColumn<QString>("text");
    QTest::newRow("A") << 65 << "a";
    QTest::newRow("Z") << 90 << "z";
}

void LinearDimensionKeysTest::lettersOfTheViewAreTaken()
{
    QFETCH(int, virtualKey);
    QFETCH(QString, text);
    HandlerFixture f;

    QVERIFY(f.opHandler->OnKeyDown(virtualKey, false, false, false));

    QCOMPARE(f.State(), InputState::IS_Length);
    QCOMPARE(f.Editor()->text(), text);
}

void LinearDimensionKeysTest::viewKeysAreRefused_data()
{
    QTest::addColumn<int>("virtualKey");
    QTest::newRow("before the digits") << 47;
    QTest::newRow("behind the digits") << 58;
    QTest::newRow("before the letters") << 64;
    QTest::newRow("behind the letters") << 91;
    QTest::newRow("before the keypad") << 95;
    QTest::newRow("behind the keypad") << 106;
    QTest::newRow("beside the keypad's minus") << 108;
    QTest::newRow("before the comma") << 187;
    QTest::newRow("behind the minus") << 190;
    QTest::newRow("comma as a character") << int(',');
    QTest::newRow("minus as a character") << int('-');
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("0") << 0;
}

void LinearDimensionKeysTest::viewKeysAreRefused()
{
    QFETCH(int, virtualKey);
    HandlerFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(virtualKey, false, false, true));

    QVERIFY(!f.opHandler->IsInputting());
    QCOMPARE(f.host.view.GetRedrawCount(), 0);
}

void LinearDimensionKeysTest::altAndPAreTheHosts()
{
    HandlerFixture f;

    QVERIFY(!f.opHandler->OnKeyDown('P', false, true, false));
    QCOMPARE(f.host.view.GetRedrawCount(), 0);

    QVERIFY(f.opHandler->OnKeyDown('Q', false, true, false));
    QCOMPARE(f.Editor()->text(), QString("q"));
    f.opHandler->EndInput();
    QVERIFY(f.opHandler->OnKeyDown('P', true, false, true));
    QCOMPARE(f.Editor()->text(), QString("p"));
}

void LinearDimensionKeysTest::viewModifiersReachTheKey()
{
    HandlerFixture f;

    QVERIFY(!f.opHandler->OnKeyDown(188, true, true, false));
    QVERIFY(!f.opHandler->IsInputting());

    QVERIFY(f.opHandler->OnKeyDown(188, false, false, true));
    QCOMPARE(f.State(), InputState::IS_Angle);
}

void LinearDimensionKeysTest::lettersArriveInLowerCase()
{
    HandlerFixture f;

    QVERIFY(f.opHandler->OnKeyDown('M', false, false, true));

    QCOMPARE(f.Editor()->text(), QString("m"));
}

}

VESK_TESTS(vesk::test::LinearDimensionKeysTest);
#include "LinearDimensionKeysTest.moc"

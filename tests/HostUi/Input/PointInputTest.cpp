#include "HostUi/PointFixture.h"

#include "Command/ActionManager.h"
#include "Dimension/LengthUnit.h"
#include "Journal/JournalManager.h"
#include "Support/TestValues.h"

using namespace vesk;
using namespace vesk::test;

/// A point is typed in two fields over the view.
class PointInputTest final : public QObject
{
    Q_OBJECT

private slots:
    void characterThatCanBeginANumberOpensTheFields_data()
    {
        QTest::addColumn<QString>("character");

        for (const char* character : {"1", "-", "+", ".", ",", "(", "s", "@"})
            QTest::newRow(character) << QString(character);
    }

    void characterThatCanBeginANumberOpensTheFields()
    {
        QFETCH(QString, character);
        PointFixture f;

        f.Type(character);

        QVERIFY(f.Fields() != nullptr && f.Fields()->isVisible());
        QCOMPARE(f.X(), character);
        QCOMPARE(f.Y(), QString());
        QCOMPARE(f.Current(), QStringLiteral("PointX"));
    }

    void otherKeysOpenNothing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");

        QTest::newRow("Space") << int(Qt::Key_Space) << " ";
        QTest::newRow("Return") << int(Qt::Key_Return) << "\r";
        QTest::newRow("F5") << int(Qt::Key_F5) << "";
        QTest::newRow("star") << int(Qt::Key_Asterisk) << "*";
    }

    void otherKeysOpenNothing()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        PointFixture f;

        f.PressInView(key, text);

        QVERIFY(f.controller.GetOpenField() == nullptr);
    }

    void nothingOpensWhereNoPointIsTaken()
    {
        PointScript script;
        script.takesPoint = false;
        PointFixture f(script);

        f.Type("1@");

        QVERIFY(f.controller.GetOpenField() == nullptr);
    }

    void nothingOpensWithoutAnAction()
    {
        PointFixture f;
        ActionManager::Reset();

        f.Type("1@");

        QVERIFY(f.controller.GetOpenField() == nullptr);
    }

    void digitsBelongToTheDimensionsIfThereAreAny()
    {
        PointScript script;
        script.hasDimensions = true;
        PointFixture f(script);

        f.Type("1");

        QVERIFY(f.controller.GetActiveEditor() != nullptr);
        QVERIFY(!f.controller.GetTypedPoint().has_value());
    }

    void atSignOpensTheFieldsEvenThen()
    {
        PointScript script;
        script.hasDimensions = true;
        PointFixture f(script);

        f.Type("@1");

        QVERIFY(f.controller.GetActiveEditor() == nullptr);
        QCOMPARE(f.X(), QStringLiteral("@1"));
    }

    void bothValuesAreGivenToTheActionAsAPoint()
    {
        PointFixture f;

        f.Type("10").Press(Qt::Key_Tab).Type("20").Press(Qt::Key_Return);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(10, 20, 0)});
        QVERIFY(f.points.clicks.empty());
        QVERIFY(!f.Fields()->isVisible());
        QVERIFY(f.controller.GetOpenField() == nullptr);
    }

    void returnGoesOnToAFieldThatIsEmpty()
    {
        PointFixture f;

        f.Type("10").Press(Qt::Key_Return);
        QCOMPARE(f.Current(), QStringLiteral("PointY"));
        QVERIFY(f.points.points.empty());
        f.Type("20").Press(Qt::Key_Enter);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(10, 20, 0)});
    }

    void shiftTabGoesBackWhereTabGoesOn()
    {
        PointFixture f;

        f.Type("10").Press(Qt::Key_Tab);
        QCOMPARE(f.Current(), QStringLiteral("PointY"));
        f.Press(Qt::Key_Backtab);

        QCOMPARE(f.Current(), QStringLiteral("PointX"));
        QCOMPARE(f.controller.GetOpenField()->selectedText(), QStringLiteral("10"));
    }

    void spaceIsABlank()
    {
        PointFixture f;

        f.Type("1 cm").Press(Qt::Key_Tab).Type("1/2 in").Press(Qt::Key_Return);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(10, 12.7, 0)});
    }

    void afterADistanceTheOtherFieldExpectsOneToo()
    {
        PointFixture f;
        JournalManager::GetInstance().Add(PointRecord{Vector3d(5, 7, 0), {}});

        f.Type("@10").Press(Qt::Key_Tab);
        QCOMPARE(f.Y(), QStringLiteral("@"));
        f.Type("20").Press(Qt::Key_Return);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(15, 27, 0)});
    }

    void markThatIsThereMayBeTypedAgain()
    {
        PointFixture f;
        JournalManager::GetInstance().Add(PointRecord{Vector3d(5, 7, 0), {}});

        f.Type("@10").Press(Qt::Key_Tab).Type("@20");

        QCOMPARE(f.Y(), QStringLiteral("@20"));
    }

    void markAfterANumberIsAnyCharacter()
    {
        PointFixture f;

        f.Type("10@");

        QCOMPARE(f.X(), QStringLiteral("10@"));
    }

    void pickedEntityIsNoLastPoint()
    {
        PointFixture f;
        JournalManager::GetInstance().Add(PointRecord{Vector3d(5, 7, 0), {}});
        JournalManager::GetInstance().Add(PointRecord{Vector3d(50, 70, 0), 3});

        f.Type("@").Press(Qt::Key_Tab).Press(Qt::Key_Return);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(5, 7, 0)});
    }

    void rejectedTextStaysSelectedWithItsMessage_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
        QTest::newRow("Return") << int(Qt::Key_Return);
    }

    void rejectedTextStaysSelectedWithItsMessage()
    {
        QFETCH(int, key);
        PointFixture f;

        f.Type("1,000").Press(key);

        QCOMPARE(f.Current(), QStringLiteral("PointX"));
        QCOMPARE(f.X(), QStringLiteral("1,000"));
        QCOMPARE(f.controller.GetOpenField()->selectedText(), QStringLiteral("1,000"));
        QCOMPARE(f.Message(), QStringLiteral("逗号有歧义，小数点请用“.”"));
        QCOMPARE(f.Note("InputRefusal"), f.Message());
        f.Type("1");
        QCOMPARE(f.Message(), QString());
        QCOMPARE(f.X(), QStringLiteral("1"));
    }

    void eitherTextIsJudgedBeforeThePointIsGiven()
    {
        PointFixture f;

        f.Type("1").Press(Qt::Key_Tab).Type("20").Press(Qt::Key_Tab).Type("sin(30)");
        f.Press(Qt::Key_Return);

        QCOMPARE(f.Current(), QStringLiteral("PointX"));
        QVERIFY(!f.Message().isEmpty());
        QVERIFY(f.points.points.empty());
    }

    void pointThatTheActionCannotUseStays()
    {
        PointScript script;
        script.refuses = true;
        PointFixture f(script);

        f.Type("10").Press(Qt::Key_Tab).Type("20").Press(Qt::Key_Return);

        QCOMPARE(f.Message(), QStringLiteral("这个点在这里不起作用，请换一个"));
        QCOMPARE(f.X(), QStringLiteral("10"));
        QCOMPARE(f.Y(), QStringLiteral("20"));
        QVERIFY(f.Fields()->isVisible());
    }

    void escapeClosesTheFieldsAndTheActionGoesOn()
    {
        PointFixture f;

        f.Type("10").Press(Qt::Key_Escape);
        QVERIFY(f.controller.GetOpenField() == nullptr);
        f.PressInView(Qt::Key_Escape, {}, true);

        QVERIFY(!ActionManager::GetRunningCommandId().empty());
        QVERIFY(f.points.points.empty());
    }

    void nextPointBeginsWithEmptyFields()
    {
        PointFixture f;
        f.Type("10").Press(Qt::Key_Tab).Type("20").Press(Qt::Key_Escape);

        f.Type("3");

        QCOMPARE(f.X(), QStringLiteral("3"));
        QCOMPARE(f.Y(), QString());
    }

    void keyThatArrivesInTheViewIsTheFields()
    {
        PointFixture f;
        f.Type("1");

        f.PressInView(Qt::Key_2, "2");
        f.PressInView(Qt::Key_Tab);
        f.PressInView(Qt::Key_3, "3");

        QCOMPARE(f.X(), QStringLiteral("12"));
        QCOMPARE(f.Y(), QStringLiteral("3"));
    }

    void keyThatAFieldHasNoUseForIsNobodys()
    {
        PointFixture f;
        f.Type("1");

        QKeyEvent press(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QCoreApplication::sendEvent(f.controller.GetOpenField(), &press);

        QVERIFY(press.isAccepted());
        QVERIFY(f.host.view.GetKeys().empty());
    }

    void clickInTheViewGivesAnotherPoint()
    {
        PointFixture f;
        f.Type("10");

        f.SendMouse(QEvent::MouseButtonPress, {50, 50}, Qt::LeftButton);

        QVERIFY(f.controller.GetOpenField() == nullptr);
        QVERIFY(f.points.points.empty());
    }

    void otherButtonsLeaveTheFieldsOpen()
    {
        PointFixture f;
        f.Type("10");

        f.SendMouse(QEvent::MouseButtonPress, {50, 50}, Qt::MiddleButton);

        QCOMPARE(f.X(), QStringLiteral("10"));
    }

    void endOfTheActionClosesTheFields()
    {
        PointFixture f;
        f.Type("10");

        ActionManager::Reset();

        QVERIFY(f.controller.GetOpenField() == nullptr);
        QVERIFY(!f.Fields()->isVisible());
        QCOMPARE(f.Note("InputKeys"), QString());
    }

    void stepFromOutsideLeavesThemOpenWhileAPointIsTaken()
    {
        PointFixture f;
        f.Type("10");

        ActionManager::StepDone();
        QCOMPARE(f.X(), QStringLiteral("10"));
        f.points.takesPoint = false;
        ActionManager::StepDone();

        QVERIFY(f.controller.GetOpenField() == nullptr);
    }

    void keyTypedWhileACommandWaitsIsThatCommands()
    {
        PointFixture f;
        f.Type("10");

        f.host.view.SetOnRedraw([&f] {
            ActionManager::SendCommand(L"Test", {}, nullptr);
            f.Type("7");
        });
        ActionManager::ProcessMouseMove(&f.host.view, Vector3d::Zero());

        QCOMPARE(f.X(), QStringLiteral("7"));
    }

    void numbersKeepTheUnitInWhichTheInputBegan()
    {
        PointFixture f;
        f.Type("10");

        LengthUnit::SetCurrent(LengthUnit::Inch());
        f.Press(Qt::Key_Tab).Type("20").Press(Qt::Key_Return);

        QCOMPARE(f.points.points, std::vector<Vector3d>{Vector3d(10, 20, 0)});
    }

    void notesTellTheValueAndTheKeys()
    {
        PointFixture f;

        f.Type("2*5");

        QCOMPARE(f.Note("InputValue"), QStringLiteral("= 10 mm"));
        QCOMPARE(f.Note("InputKeys"), QStringLiteral("<b>Tab</b>&nbsp;Y · <b>Enter</b>&nbsp;确定 "
                                                     "· <b>Esc</b>&nbsp;取消"));
    }

    void fieldsAreInTheViewClearOfTheCursor_data()
    {
        QTest::addColumn<QPoint>("cursor");

        QTest::newRow("top left") << QPoint(0, 0);
        QTest::newRow("middle") << QPoint(300, 200);
        QTest::newRow("right") << QPoint(598, 200);
        QTest::newRow("bottom right") << QPoint(598, 398);
    }

    void fieldsAreInTheViewClearOfTheCursor()
    {
        QFETCH(QPoint, cursor);
        PointFixture f;
        f.host.view.resize(600, 400);
        f.SendMouse(QEvent::MouseMove, cursor, Qt::NoButton);

        f.Type("123456.789");

        QVERIFY(f.host.view.rect().contains(f.Fields()->geometry()));
        QVERIFY(!f.Fields()->geometry().contains(cursor));
    }

    void fieldsFollowTheCursor()
    {
        PointFixture f;
        f.host.view.resize(600, 400);
        f.SendMouse(QEvent::MouseMove, {100, 100}, Qt::NoButton);
        f.Type("1");
        const QPoint before = f.Fields()->pos();

        f.SendMouse(QEvent::MouseMove, {130, 90}, Qt::NoButton);

        QCOMPARE(f.Fields()->pos() - before, QPoint(30, -10));
    }

    void fieldsTellWhatTheyAre()
    {
        PointFixture f;

        f.Type("1");

        QCOMPARE(f.controller.GetOpenField()->accessibleName(), QStringLiteral("X 坐标"));
    }
};

VESK_TESTS(PointInputTest);
#include "PointInputTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "View/SketchView.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <functional>
#include <vector>

using Point = DrawnEntity::Point;

namespace
{

constexpr double Tolerance = 1e-9;

const QString s_rectangle = QStringLiteral("Sketcher.Rectangle");
const QString s_circle = QStringLiteral("Sketcher.Circle");
const QString s_threePoints = QStringLiteral("Sketcher.Arc3Points");
const QString s_arcCentre = QStringLiteral("Sketcher.ArcCentre");
const QString s_rotate = QStringLiteral("Sketcher.Rotate");

QLineEdit* FindEditor()
{
    return ScriptedUser::FindView()->findChild<QLineEdit*>(QStringLiteral("ViewInputLineEdit"));
}

/// The text of the note beside the editor.
QString Refusal()
{
    const auto* pNote = ScriptedUser::FindView()->findChild<QLabel*>("InputRefusal");
    return pNote != nullptr && pNote->isVisible() ? pNote->text() : QString();
}

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

/// Chooses the tool and clicks the centre, followed by `rest`.
std::vector<std::function<void()>> BeginCircle(const std::vector<std::function<void()>>& rest)
{
    std::vector<std::function<void()>> steps = {
        [] { QTest::mouseClick(ScriptedUser::FindButton(s_circle), Qt::LeftButton); },
        [] { QTest::mouseClick(ScriptedUser::FindView(), Qt::LeftButton); }};
    steps.insert(steps.end(), rest.begin(), rest.end());
    return steps;
}

double Distance(const Point& a, const Point& b)
{
    return std::hypot(a[0] - b[0], a[1] - b[1]);
}

}

/// Sizes and angles of shapes, typed by a user of the whole program.
class TypeShapesTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void typedWidthAndHeightMakeARectangle()
    {
        ScriptedUser user;

        user.Click(s_rectangle).ClickAt(0, 0).MoveTo(-50, 60);
        user.Type("33.5").Press(Qt::Key_Tab).Type("12.25").Press(Qt::Key_Return);

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.corners.size(), std::size_t{4});
        QVERIFY(qAbs(drawn.corners[2][0] - drawn.corners[0][0] + 33.5) <= Tolerance);
        QVERIFY(qAbs(drawn.corners[2][1] - drawn.corners[0][1] - 12.25) <= Tolerance);
    }

    void lockedWidthHoldsWhileTheCursorMoves()
    {
        ScriptedUser user;

        user.Click(s_rectangle).ClickAt(0, 0).MoveTo(50, 60).Type("33.5").Press(Qt::Key_Tab);
        user.Press(Qt::Key_Escape).MoveTo(-70, 10).ClickAt(-80, -25);

        const DrawnEntity drawn = RunToOne(user);
        QVERIFY(qAbs(drawn.corners[2][0] - drawn.corners[0][0] + 33.5) <= Tolerance);
        QCOMPARE(drawn.corners[2][1] - drawn.corners[0][1], -25.0);
    }

    void typedRadiusIsTheCirclesToTheLastBit_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("plain") << "12.5";
        QTest::newRow("tenth") << "0.1";
        QTest::newRow("long") << "123.4567890123";
        QTest::newRow("leading point") << ".7";
    }

    void typedRadiusIsTheCirclesToTheLastBit()
    {
        QFETCH(QString, text);
        ScriptedUser user;

        user.Click(s_circle).ClickAt(10, 20).MoveTo(40, 50).Type(text).Press(Qt::Key_Return);

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.type, QString("circle"));
        QCOMPARE(drawn.radius, text.toDouble());
    }

    void radiusTypedBeforeTheMouseMovedIsTaken()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(10, 20).Type("12.5").Press(Qt::Key_Return);

        QCOMPARE(RunToOne(user).radius, 12.5);
    }

    void clickTakesTheRadiusThatIsTyped()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(0, 0).MoveTo(40, 0).Type("25").ClickAt(0, 90);
        user.Do([] { QVERIFY(!IsInputting()); });

        QCOMPARE(RunToOne(user).radius, 25.0);
    }

    void tabThatReachesTheViewLeavesTheKeyboardToTheRadius()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(0, 0).MoveTo(40, 0).Type("2");
        user.Do([] { ScriptedUser::FindView()->Activate(); }).Press(Qt::Key_Tab);
        user.Type("5").Press(Qt::Key_Return);

        QCOMPARE(RunToOne(user).radius, 25.0);
    }

    void whatIsTypedAheadOfAToolIsMeantForIt_data()
    {
        QTest::addColumn<QString>("typedBefore");

        QTest::newRow("nothing open") << "";
        QTest::newRow("value open") << "3";
    }

    void whatIsTypedAheadOfAToolIsMeantForIt()
    {
        QFETCH(QString, typedBefore);
        ScriptedUser user;

        user.Click("Sketcher.Line").ClickAt(-50, -50).MoveTo(20, 30).Type(typedBefore);
        user.DoAtOnce(
            BeginCircle({[] { ScriptedUser::TypeNow('2'); }, [] { ScriptedUser::TypeNow('5'); },
                         [] { ScriptedUser::PressNow(Qt::Key_Return); }}));

        QCOMPARE(RunToOne(user).radius, 25.0);
    }

    void escapeTypedAheadOfAToolEndsTheInputThere_data()
    {
        whatIsTypedAheadOfAToolIsMeantForIt_data();
    }

    void escapeTypedAheadOfAToolEndsTheInputThere()
    {
        QFETCH(QString, typedBefore);
        ScriptedUser user;

        user.Click("Sketcher.Line").ClickAt(-50, -50).MoveTo(20, 30).Type(typedBefore);
        user.DoAtOnce(BeginCircle(
            {[] { ScriptedUser::TypeNow('2'); }, [] { ScriptedUser::PressNow(Qt::Key_Escape); },
             [] { ScriptedUser::TypeNow('7'); }, [] { ScriptedUser::PressNow(Qt::Key_Return); }}));

        QCOMPARE(RunToOne(user).radius, 7.0);
    }

    void escapeInTheEditorLeavesTheCircleToTheCursor()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(0, 0).MoveTo(40, 0).Type("25").Press(Qt::Key_Escape);
        user.ClickAt(0, 90);

        QCOMPARE(RunToOne(user).radius, 90.0);
    }

    void typedRadiusMakesTheArcThatTheCursorShows_data()
    {
        QTest::addColumn<double>("cursorY");
        QTest::addColumn<bool>("isLonger");

        QTest::newRow("shorter") << -30.0 << false;
        QTest::newRow("longer") << -80.0 << true;
    }

    void typedRadiusMakesTheArcThatTheCursorShows()
    {
        QFETCH(double, cursorY);
        QFETCH(bool, isLonger);
        ScriptedUser user;

        user.Click(s_threePoints).ClickAt(-50, 0).ClickAt(50, 0).MoveTo(20, cursorY);
        user.Type("70.1").Press(Qt::Key_Return);

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.radius, 70.1);
        QCOMPARE(drawn.centre[1] < drawn.start[1], isLonger);
        QVERIFY(drawn.end[0] > drawn.start[0]);
    }

    void radiusBelowHalfTheChordIsRefused()
    {
        ScriptedUser user;

        user.Click(s_threePoints).ClickAt(-50, 0).ClickAt(50, 0).MoveTo(20, 80);
        user.Type("49.9").Press(Qt::Key_Return).Do([] {
            QVERIFY(IsInputting());
            QCOMPARE(FindEditor()->selectedText(), QString("49.9"));
        });
        user.Type("50").Press(Qt::Key_Return);

        QCOMPARE(RunToOne(user).radius, 50.0);
    }

    void typedCentralAngleTurnsItsWay_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("startY");
        QTest::addColumn<double>("endY");

        QTest::newRow("counter-clockwise") << "90" << 0.0 << 40.0;
        QTest::newRow("clockwise") << "-90" << -40.0 << 0.0;
        QTest::newRow("long way") << "270" << 0.0 << -40.0;
    }

    void typedCentralAngleTurnsItsWay()
    {
        QFETCH(QString, text);
        ScriptedUser user;

        user.Click(s_arcCentre).ClickAt(0, 0).ClickAt(40, 0).MoveTo(60, 30);
        user.Type(text).Press(Qt::Key_Return);

        const DrawnEntity drawn = RunToOne(user);
        QTEST(drawn.start[1] - drawn.centre[1], "startY");
        QTEST(drawn.end[1] - drawn.centre[1], "endY");
        QCOMPARE(drawn.radius, 40.0);
        QVERIFY(qAbs(Distance(drawn.end, drawn.centre) - 40.0) <= Tolerance);
    }

    void centralAngleThatGivesNoArcIsRefused()
    {
        ScriptedUser user;

        user.Click(s_arcCentre).ClickAt(0, 0).ClickAt(40, 0).MoveTo(60, 30);
        user.Type("0").Press(Qt::Key_Return).Do([] {
            QVERIFY(IsInputting());
            QCOMPARE(FindEditor()->selectedText(), QString("0"));
            QVERIFY(!Refusal().isEmpty());
        });
        user.Type("90").Press(Qt::Key_Return);

        QCOMPARE(RunToOne(user).radius, 40.0);
    }

    void angleThatTurnsNothingIsRefused()
    {
        ScriptedUser user;

        user.DrawLine(0, 0, 100, 0).ClickAt(50, 3).Click(s_rotate).ClickAt(0, 50);
        user.ClickAt(100, 50).MoveTo(70, 90).Type("180*2").Press(Qt::Key_Return).Do([] {
            QVERIFY(IsInputting());
            QCOMPARE(FindEditor()->selectedText(), QString("180*2"));
            QVERIFY(!Refusal().isEmpty());
        });
        user.Type("-90").Press(Qt::Key_Return).UntilRunning("");

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.end[1] - drawn.start[1], -100.0);
    }

    void typedAngleTurnsTheSelection()
    {
        ScriptedUser user;

        user.DrawLine(0, 0, 100, 0).ClickAt(50, 3).Click(s_rotate).ClickAt(0, 50);
        user.ClickAt(100, 50).MoveTo(70, 90).Type("-90").Press(Qt::Key_Return).UntilRunning("");

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.end[0], drawn.start[0]);
        QCOMPARE(drawn.end[1] - drawn.start[1], -100.0);
    }

    void unitOfTheRadiusIsTheOneShown()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.cm").Click(s_circle).ClickAt(0, 0).MoveTo(40, 0);
        user.Type("2.5").Press(Qt::Key_Return);

        QCOMPARE(RunToOne(user).radius, 25.0);
    }

    void heightThatIsOnlyShownIsNotRounded()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.inch").Click(s_rectangle).ClickAt(0, 0).MoveTo(50, 25);
        user.Type("1").Press(Qt::Key_Tab);
        user.Do([] { QCOMPARE(FindEditor()->text(), QString("0.984")); });
        user.Press(Qt::Key_Return);

        const DrawnEntity drawn = RunToOne(user);
        QCOMPARE(drawn.corners[2][1] - drawn.corners[0][1], 25.0);
        QVERIFY(qAbs(drawn.corners[2][0] - drawn.corners[0][0] - 25.4) <= Tolerance);
    }

private:
    /// Runs the program and replays its journal; returns the only entity drawn.
    DrawnEntity RunToOne(ScriptedUser& user) const
    {
        const int code = user.Run(m_pFixture->Draw());
        const QString replayed = m_pFixture->File("replayed");
        const Outcome outcome =
            RunSketcher({"--replay", m_pFixture->File("journal"), "--model", replayed});
        const bool isRepeated = code == 0 && outcome.code == 0 && outcome.error.isEmpty() &&
                                ReadBytes(replayed) == ReadBytes(m_pFixture->File("model"));
        const std::vector<DrawnEntity> drawn = ReadEntities(replayed);
        if (!isRepeated || drawn.size() != 1)
            QTest::qFail("not one entity that is repeated as it is", __FILE__, __LINE__);
        return drawn.empty() ? DrawnEntity{QString(), {}, {}, {}, 0.0, {}, std::vector<Point>(4)}
                             : drawn.front();
    }
};

VESK_TESTS(TypeShapesTest);
#include "TypeShapesTest.moc"

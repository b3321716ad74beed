#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Command/TypedValue.h"
#include "Dimension/ActionViewInput.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <vector>

using vesk::ActionViewInput;
using Point = DrawnEntity::Point;

namespace
{

const QString s_rectangle = QStringLiteral("Sketcher.Rectangle");
const QString s_circle = QStringLiteral("Sketcher.Circle");
const QString s_threePoints = QStringLiteral("Sketcher.Arc3Points");
const QString s_arcCentre = QStringLiteral("Sketcher.ArcCentre");
const QString s_rotate = QStringLiteral("Sketcher.Rotate");

/// Delivers a value as the dimension editor does.
std::function<void()> Deliver(ActionViewInput::Kind kind, double value)
{
    return [kind, value] {
        const std::wstring text = QString::number(value, 'g', 17).toStdWString();
        const vesk::EditorTextScope editor({text, false, std::nullopt});
        vesk::ActionManager::ProcessViewInput(ScriptedUser::FindView(), {kind, value, {}, {}});
    };
}

/// Draws each kind, by clicks and by values without an exact decimal representation.
void DrawEveryKind(ScriptedUser& user)
{
    user.Click(s_rectangle).ClickAt(-150, -100).ClickAt(-90, -40).ClickAt(-150, 0).MoveTo(-90, 50);
    user.Do(Deliver(ActionViewInput::WidthEntered, 100.0 / 3.0));
    user.Do(Deliver(ActionViewInput::HeightCommitted, 0.1));
    user.Click(s_circle).ClickAt(0, 0).ClickAt(17, 23).ClickAt(80, 80).MoveTo(20, 40);
    user.Do(Deliver(ActionViewInput::RadiusCommitted, 1.0 / 7.0));
    user.Click(s_threePoints).ClickAt(-140, 100).ClickAt(-60, 110).ClickAt(-93, 137);
    user.ClickAt(-140, 60).ClickAt(-61, 77).MoveTo(-100, 0);
    user.Do(Deliver(ActionViewInput::RadiusCommitted, 61.7));
    user.Click(s_arcCentre).ClickAt(60, -90).ClickAt(107, -80).ClickAt(70, -150);
    user.ClickAt(-20, -90).ClickAt(20, -90).Do(
        Deliver(ActionViewInput::CentralAngleCommitted, -123.456));
    user.Press(Qt::Key_Escape).UntilRunning("");
}

}

/// Drawing and rotating rectangles, circles and arcs, as a user of the whole program.
class DrawShapesTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void everyKindIsDrawn()
    {
        ScriptedUser user;

        DrawEveryKind(user);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Types(), QStringList({"rectangle", "rectangle", "circle", "circle", "arc", "arc",
                                       "arc", "arc"}));
        QCOMPARE(Entities()[3].radius, 1.0 / 7.0);
        QCOMPARE(Entities()[5].radius, 61.7);
        QCOMPARE(Entities()[7].normal, Point({0.0, 0.0, 1.0}));
        VerifyReplay();
    }

    void everyShapeIsOneUndoStepWhileItsActionRuns()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(0, 0).ClickAt(30, 0).ClickAt(100, 0).ClickAt(130, 0);
        user.Click("Sketcher.Undo").Do([] { QVERIFY(ScriptedUser::IsRunning(s_circle)); });
        user.ClickAt(-100, 0).ClickAt(-100, 40);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Entities().size(), std::size_t{2});
        QCOMPARE(Entities()[1].radius, 40.0);
        VerifyReplay();
    }

    void escapeEndsEveryAction_data()
    {
        QTest::addColumn<QString>("command");

        QTest::newRow("rectangle") << s_rectangle;
        QTest::newRow("circle") << s_circle;
        QTest::newRow("three points") << s_threePoints;
        QTest::newRow("centre") << s_arcCentre;
        QTest::newRow("rotation") << s_rotate;
    }

    void escapeEndsEveryAction()
    {
        QFETCH(QString, command);
        ScriptedUser user;

        user.Click(command).UntilRunning(command).ClickAt(0, 0).Press(Qt::Key_Escape);
        user.UntilRunning("");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Entities().size(), std::size_t{0});
        VerifyReplay();
    }

    void shortcutsBeginTheActions_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("command");

        QTest::newRow("rectangle") << int(Qt::Key_R) << s_rectangle;
        QTest::newRow("circle") << int(Qt::Key_I) << s_circle;
        QTest::newRow("three points") << int(Qt::Key_3) << s_threePoints;
        QTest::newRow("centre") << int(Qt::Key_4) << s_arcCentre;
        QTest::newRow("rotation") << int(Qt::Key_T) << s_rotate;
    }

    void shortcutsBeginTheActions()
    {
        QFETCH(int, key);
        QFETCH(QString, command);
        ScriptedUser user;

        user.Do([] { ScriptedUser::FindView()->setFocus(); });
        user.Press(Qt::Key(key), Qt::ControlModifier).UntilRunning(command);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void selectedShapesAreTurned()
    {
        ScriptedUser user;

        DrawEveryKind(user);
        user.Drag(160, 160, -160, -160).Click(s_rotate).ClickAt(3, 150).ClickAt(150, 150);
        user.Do(Deliver(ActionViewInput::CentralAngleCommitted, 90)).UntilRunning("");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const std::vector<DrawnEntity> drawn = Entities();
        QCOMPARE(drawn.size(), std::size_t{8});
        const std::vector<Point>& corners = drawn[0].corners;
        QCOMPARE(corners[1][0], corners[0][0]);
        QCOMPARE(corners[1][1] - corners[0][1], 60.0);
        QCOMPARE(drawn[2].centre[0] - corners[0][0], -100.0);
        QCOMPARE(drawn[2].centre[1] - corners[0][1], 150.0);
        QCOMPARE(drawn[3].radius, 1.0 / 7.0);
        VerifyReplay();
    }

    void aTurnIsOneUndoStep()
    {
        ScriptedUser user;

        user.DrawLine(0, 0, 100, 0).DrawLine(0, 80, 100, 80).Drag(160, 160, -50, -60);
        user.Click(s_rotate).ClickAt(50, 40).ClickAt(150, 40).ClickAt(50, 140).UntilRunning("");
        user.Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].GetWay(0), 100.0);
        QCOMPARE(lines[1].GetWay(1), 0.0);
        QCOMPARE(lines[1].start[1] - lines[0].start[1], 80.0);
        VerifyReplay();
    }

    void withNothingSelectedEntitiesArePicked()
    {
        ScriptedUser user;

        user.DrawLine(0, 0, 100, 0).Click(s_rotate).ClickAt(50, 3).ClickAt(50, 60);
        user.ClickAt(150, 60).Do(Deliver(ActionViewInput::CentralAngleCommitted, 180));
        user.UntilRunning("");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].GetWay(0), -100.0);
        QCOMPARE(lines[0].GetWay(1), 0.0);
        VerifyReplay();
    }

    void shapesArePickedErasedAndGivenAnotherPen()
    {
        ScriptedUser user;

        user.Click(s_circle).ClickAt(0, 0).ClickAt(60, 0).Press(Qt::Key_Escape).UntilRunning("");
        user.Click(s_rectangle).ClickAt(100, 0).ClickAt(160, 50).Press(Qt::Key_Escape);
        user.UntilRunning("").ClickAt(0, 57).ChooseItem("Sketcher.LineColour", 1);
        user.Click("Sketcher.Erase").ClickAt(103, 25);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Types(), QStringList("circle"));
        QVERIFY(ReadBytes(m_pFixture->File("model")).contains("\"colour\":\"red\""));
        VerifyReplay();
    }

    void everyCutOfTheJournalLeavesWhatWasFinished()
    {
        ScriptedUser user;
        user.Click(s_circle).ClickAt(0, 0).MoveTo(40, 0);
        user.Do(Deliver(ActionViewInput::RadiusCommitted, 1.0 / 3.0));
        user.Press(Qt::Key_Escape).UntilRunning("").Click(s_rotate).ClickAt(2, 0);
        user.ClickAt(100, 0).ClickAt(200, 0).Do(
            Deliver(ActionViewInput::CentralAngleCommitted, 90));
        QCOMPARE(user.UntilRunning("").Run(m_pFixture->Draw()), 0);
        const QList<QByteArray> lines = ReadBytes(Journal()).split('\n');
        QByteArray cut;
        std::vector<Point> centres;

        for (const QByteArray& line : lines.mid(0, lines.size() - 1))
        {
            cut += line + '\n';
            WriteFile(m_pFixture->File("cut"), cut + "{\"n\":99,\"ki");
            const Outcome outcome = RunSketcher(
                {"--replay", m_pFixture->File("cut"), "--model", m_pFixture->File("replayed")});
            QCOMPARE(outcome.code, 0);
            const auto drawn = ReadEntities(m_pFixture->File("replayed"));
            const bool isNew =
                !drawn.empty() && (centres.empty() || centres.back() != drawn[0].centre);
            if (isNew)
                centres.push_back(drawn[0].centre);
        }

        QCOMPARE(centres.size(), std::size_t{2});
        QCOMPARE(centres[1], Entities()[0].centre);
    }

private:
    std::vector<DrawnEntity> Entities() const { return ReadEntities(m_pFixture->File("model")); }

    QStringList Types() const
    {
        QStringList types;
        for (const DrawnEntity& entity : Entities())
            types << entity.type;
        return types;
    }
};

VESK_TESTS(DrawShapesTest);
#include "DrawShapesTest.moc"

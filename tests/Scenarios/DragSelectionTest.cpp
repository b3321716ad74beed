#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"
#include "View/SketchView.h"

#include <QApplication>
#include <QImage>

#include <vector>

namespace
{

/// From left to right: one line inside the box from (-50, -50) to (50, 50), one that leaves it on
/// the right, one outside.
void DrawThreeLines(ScriptedUser& user)
{
    user.DrawLine(-30, -20, -30, 20).DrawLine(0, 10, 90, 10).DrawLine(120, -20, 120, 20);
}

}

/// Selecting entities with a box.
class DragSelectionTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void dragToTheRightSelectsWhatIsInside()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.Drag(-50, -50, 50, 50).Press(Qt::Key_Escape).Drag(-50, 50, 50, -50);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {}, {1}}));
    }

    void dragToTheLeftSelectsWhatIsTouched()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.Drag(50, 50, -50, -50).Press(Qt::Key_Escape).Drag(50, -50, -50, 50);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1, 2}, {}, {1, 2}}));
    }

    void dragReplacesTheSelection()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.ClickAt(120, 0).Drag(50, 50, -50, -50).Drag(-90, -90, -60, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{3}, {1, 2}, {}}));
    }

    void dragWithCtrlAdds()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.ClickAt(120, 0).Drag(-50, -50, 50, 50, Qt::ControlModifier);
        user.Drag(150, 50, -50, -50, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{3}, {3, 1}, {3, 1, 2}}));
    }

    void shortDragIsAClick()
    {
        const int distance = QApplication::startDragDistance();
        ScriptedUser user;

        DrawThreeLines(user);
        user.Drag(-34, 0, -34 + distance - 1, 0).Press(Qt::Key_Escape);
        user.Drag(-34, 0, -34 + distance, 0);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {}}));
    }

    void escapeEndsTheDragAndKeepsTheSelection()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.ClickAt(120, 0).PressAt(-50, -50).DragTo(50, 50).Press(Qt::Key_Escape);
        user.DragTo(40, 40).ReleaseAt(40, 40);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{3}}));
    }

    void commandThatBeginsEndsTheDrag()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.PressAt(-50, -50).DragTo(50, 50).Press(Qt::Key_L, Qt::ControlModifier);
        user.UntilRunning("Sketcher.Line").ReleaseAt(50, 50).Press(Qt::Key_Escape);
        user.UntilRunning("").DragTo(90, 90).ReleaseAt(90, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections());
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 3);
    }

    void lostReleaseEndsTheDrag()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.PressAt(-50, -50).DragTo(50, 50).MoveTo(60, 60).ReleaseAt(60, 60);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections());
    }

    void boxShowsWhatItWillSelect()
    {
        QColor window;
        QColor crossing;
        QColor none;
        const auto inBox = [] {
            const SketchView* pView = ScriptedUser::FindView();
            return ScriptedUser::FindView()->grab().toImage().pixelColor(pView->width() / 2 - 26,
                                                                         pView->height() / 2 - 36);
        };
        ScriptedUser user;

        user.PressAt(-50, -50).DragTo(50, 50).Do([&] { window = inBox(); });
        user.ReleaseAt(50, 50).Do([&] { none = inBox(); });
        user.PressAt(50, 50).DragTo(-50, -50).Do([&] { crossing = inBox(); });
        user.ReleaseAt(-50, -50);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY(window.blue() > window.green() && window.blue() > window.red());
        QVERIFY(crossing.green() > crossing.blue() && crossing.green() > crossing.red());
        QCOMPARE(none.green(), none.blue());
    }

    void replaySelectsTheSame()
    {
        ScriptedUser user;

        DrawThreeLines(user);
        user.Drag(50, 50, -50, -50).ChooseItem("Sketcher.LineColour", 1);
        user.Drag(-50, -50, 50, 50).ChooseItem("Sketcher.LineStyle", 1);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0].style + ' ' + lines[0].colour, QString("dashed red"));
        QCOMPARE(lines[1].style + ' ' + lines[1].colour, QString("solid red"));
        VerifyReplay();
    }
};

VESK_TESTS(DragSelectionTest);
#include "DragSelectionTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"
#include "View/SketchView.h"

#include <QComboBox>
#include <QKeyEvent>

#include <vector>

namespace
{

const QString s_style = QStringLiteral("Sketcher.LineStyle");
const QString s_colour = QStringLiteral("Sketcher.LineColour");

/// Two lines, far enough from each other to be picked separately.
void DrawTwoLines(ScriptedUser& user)
{
    user.DrawLine(-100, 0, 100, 0).DrawLine(-100, 80, 100, 80);
}

int ShownItem(const QString& boxId)
{
    return ScriptedUser::FindBox(boxId)->currentIndex();
}

}

/// Selecting entities with the mouse, and the pen used for them and for the next ones drawn.
class SelectionTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void clickSelectsWhatIsUnderItAlone()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 4).ClickAt(20, 76);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {2}}));
    }

    void clickWithCtrlAddsAndTakesOut()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 4).ClickAt(20, 80, Qt::ControlModifier);
        user.ClickAt(20, 0, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {1, 2}, {2}}));
    }

    void clickInTheVoidSelectsNothing()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).ClickAt(20, 40);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {}}));
    }

    void clickInTheVoidWithCtrlKeepsTheSelection()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).ClickAt(20, 40, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}}));
    }

    void escapeSelectsNothing()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Press(Qt::Key_Escape);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {}}));
    }

    void heldEscapeThatEndedAnActionKeepsTheSelection()
    {
        const auto press = [] {
            QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(ScriptedUser::FindView(), &event);
        };
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Click("Sketcher.Line").UntilRunning("Sketcher.Line");
        user.Do(press).UntilRunning("").Do(press).Do(press).Do([this] {
            QCOMPARE(Selected(), Selections({{1}}));
            QTest::keyRelease(ScriptedUser::FindView(), Qt::Key_Escape);
        });
        user.Do(press);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1}, {}}));
    }

    void erasedEntityLeavesTheSelection()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).ClickAt(20, 80, Qt::ControlModifier);
        user.Click("Sketcher.Erase").ClickAt(20, 0).Press(Qt::Key_Escape).UntilRunning("");
        user.ChooseItem(s_colour, 4);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 1);
        QCOMPARE(Model()[0].colour, QString("blue"));
    }

    void chosenPenHoldsForTheNextLines()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).ChooseItem(s_style, 1).ChooseItem(s_colour, 1);
        user.DrawLine(-100, 80, 100, 80).ChooseItem(s_style, 3).DrawLine(-100, -80, 100, -80);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"solid default", "dashed red", "dashdot red"}));
        QCOMPARE(Properties(),
                 QStringList({"pen style dashed", "pen colour red", "pen style dashdot"}));
        VerifyReplay();
    }

    void penChosenWhileALineIsDrawnHoldsForItsNextSegment()
    {
        ScriptedUser user;

        user.Click("Sketcher.Line").ClickAt(-100, 0).ClickAt(0, 0).ChooseItem(s_style, 2);
        user.ClickAt(0, 90).Do([] { QVERIFY(ScriptedUser::IsRunning("Sketcher.Line")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"solid default", "dotted default"}));
        VerifyReplay();
    }

    void chosenPenIsOneUndoStepOfAllThatIsSelected()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.DrawLine(-100, -80, 100, -80);
        user.ClickAt(20, 0).ClickAt(20, 80, Qt::ControlModifier).ChooseItem(s_style, 2);
        user.ChooseItem(s_colour, 3).Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"dotted default", "dotted default", "solid default"}));
        QCOMPARE(Properties(), QStringList({"selection style dotted", "selection colour green"}));
        VerifyReplay();
    }

    void undoneStylesComeBackTogether()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).ChooseItem(s_style, 1);
        user.ClickAt(20, 80, Qt::ControlModifier).ChooseItem(s_style, 2).Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"dashed default", "solid default"}));
        VerifyReplay();
    }

    void aPenChosenForASelectionIsNotTheNextLines()
    {
        ScriptedUser user;

        user.ChooseItem(s_colour, 4);
        DrawTwoLines(user);
        user.ClickAt(20, 0).ChooseItem(s_style, 1).ChooseItem(s_colour, 1).Do([] {
            QCOMPARE(ShownItem(s_style), 1);
            QCOMPARE(ShownItem(s_colour), 1);
        });
        user.ClickAt(20, 40).Do([] {
            QCOMPARE(ShownItem(s_style), 0);
            QCOMPARE(ShownItem(s_colour), 4);
        });
        user.DrawLine(-100, -80, 100, -80);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"dashed red", "solid blue", "solid blue"}));
        VerifyReplay();
    }

    void whatTheNextLineIsDrawnWithIsTheSameAfterAnUndo()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).ChooseItem(s_style, 3);
        user.ClickAt(20, 0).ChooseItem(s_style, 2).Click("Sketcher.Undo");
        user.Do([] { QCOMPARE(ShownItem(s_style), 0); });
        user.ClickAt(20, 40).Do([] { QCOMPARE(ShownItem(s_style), 3); });
        user.DrawLine(-100, 80, 100, 80);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"solid default", "dashdot default"}));
        VerifyReplay();
    }

    void aChoiceForSeveralPensIsGivenToAllOfThem()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).ChooseItem(s_style, 1).DrawLine(-100, 80, 100, 80);
        user.ClickAt(20, 0).ClickAt(20, 80, Qt::ControlModifier).Do([] {
            QCOMPARE(ShownItem(s_style), -1);
        });
        user.ChooseItem(s_style, 2).Do([] { QCOMPARE(ShownItem(s_style), 2); });
        user.ClickAt(20, 40).Do([] { QCOMPARE(ShownItem(s_style), 1); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Pens(), QStringList({"dotted default", "dotted default"}));
        QCOMPARE(Properties(), QStringList({"pen style dashed", "selection style dotted"}));
        VerifyReplay();
    }

    void boxesShowWhatTheSelectedHaveInCommon()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).ChooseItem(s_style, 1).DrawLine(-100, 80, 100, 80);
        user.ClickAt(20, 0).Do([] { QCOMPARE(ShownItem(s_style), 0); });
        user.ClickAt(20, 80, Qt::ControlModifier).Do([] {
            QCOMPARE(ShownItem(s_style), -1);
            QCOMPARE(ShownItem(s_colour), 0);
        });
        user.Press(Qt::Key_Escape).Do([] { QCOMPARE(ShownItem(s_style), 1); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Properties(), QStringList({"pen style dashed"}));
    }

private:
    QStringList Properties() const
    {
        QStringList told;
        for (const auto& record : RecordsOf<vesk::PropertyRecord>(ReadJournal(Journal())))
            told << QString::fromStdWString(record.object + L' ' + record.property + L' ' +
                                            record.value);
        return told;
    }

    QStringList Pens() const
    {
        QStringList pens;
        for (const DrawnLine& line : Model())
            pens << line.style + ' ' + line.colour;
        return pens;
    }
};

VESK_TESTS(SelectionTest);
#include "SelectionTest.moc"

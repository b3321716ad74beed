#include "Drawing.h"
#include "PaneDriver.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>

#include <vector>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");

QLineEdit* Field(const QString& name)
{
    return ScriptedUser::FindWindow()->findChild<QLineEdit*>("Sketcher.Property." + name);
}

QAbstractItemView* List()
{
    return PaneDriver::Widget("Entities").findChild<QAbstractItemView*>("Entities");
}

QString Cell(int row, int column)
{
    return List()->model()->index(row, column).data().toString();
}

/// What the inspector shows for the running action and the dimension input.
QString Inspected()
{
    return PaneDriver::Dock("Inspector").GetWidget() != nullptr
               ? PaneDriver::Widget("Inspector").widget()->findChild<QLabel*>()->text()
               : QString();
}

void ClickRow(ScriptedUser& user, int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    user.Until([row] { return List()->model()->rowCount() > row; });
    user.Do([row, modifiers] {
        List()->setFocus();
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifiers,
                          List()->visualRect(List()->model()->index(row, 1)).center());
    });
}

/// Types a value into a field as soon as it exists.
void Enter(ScriptedUser& user, const QString& name, const QString& text)
{
    user.Until([name] { return Field(name)->isVisible() && !Field(name)->text().isEmpty(); });
    user.Do([name, text] {
        Field(name)->setFocus();
        Field(name)->selectAll();
        QTest::keyClicks(Field(name), text);
        QTest::keyClick(Field(name), Qt::Key_Return);
    });
}

void DrawTwoLines(ScriptedUser& user)
{
    user.DrawLine(-100, 0, 100, 0).DrawLine(-100, 80, 100, 80);
}

}

/// Selecting and editing entities in the panes during a whole session.
class PaneEditTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void editsInThePaneAreRepeatedToTheLastBit()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        ClickRow(user, 0);
        Enter(user, "length", "33.333333333");
        user.Until([] { return Field("length")->text() == "33.333"; });
        Enter(user, "angle", "12.34567");
        user.Until([] { return Field("angle")->text() == "12.35"; });
        Enter(user, "start.y", "-7.1");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Records<vesk::CommandRecord>().size(), std::size_t{5});
        const DrawnLine line = ReadLines(m_pFixture->File("model"))[0];
        QVERIFY(qAbs(line.start[1] + 7.1) < 1e-12);
        VerifyReplay();
    }

    void selectionsInTheListAreRepeatedToo()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.DrawLine(-100, -80, 90, -90);
        ClickRow(user, 2);
        ClickRow(user, 0, Qt::ControlModifier);
        user.ChooseItem("Sketcher.LineColour", 1);
        Enter(user, "start.x", "-55.5");
        user.Click("Sketcher.Undo");
        ClickRow(user, 1);
        Enter(user, "end.y", "3");
        user.Click("Sketcher.Undo").Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto selections = Records<vesk::SelectionRecord>();
        QCOMPARE(selections.size(), std::size_t{3});
        QCOMPARE(selections[1].entities.size(), 2);
        VerifyReplay();
    }

    void anEditIsOneUndoStepOfAllThatIsSelected()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        ClickRow(user, 0);
        ClickRow(user, 1, Qt::ControlModifier);
        Enter(user, "length", "50");
        user.Until([] { return Cell(0, 2).contains("50.000") && Cell(1, 2).contains("50.000"); });
        user.Click("Sketcher.Undo");
        user.Until([] { return Cell(0, 2).contains("200.000"); }).Do([] {
            QVERIFY(Cell(1, 2).contains("200.000"));
            QCOMPARE(Field("length")->text(), QStringLiteral("200.000"));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        VerifyReplay();
    }

    void anEditWhileALineIsDrawnEndsNothing()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        ClickRow(user, 0);
        user.Click(s_line).ClickAt(-50, -60);
        Enter(user, "start.x", "-120");
        user.Do([] { QVERIFY(ScriptedUser::IsRunning(s_line)); });
        user.ClickAt(50, -60).Press(Qt::Key_Escape).UntilRunning("");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 3);
        VerifyReplay();
    }

    void aSelectionInTheDrawingIsShownInTheList()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 80);
        user.Until([] { return !List()->selectionModel()->selectedRows().isEmpty(); });
        user.Do([] {
            QCOMPARE(List()->selectionModel()->selectedRows().size(), 1);
            QCOMPARE(List()->selectionModel()->selectedRows()[0].row(), 1);
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Records<vesk::SelectionRecord>().size(), std::size_t{1});
    }

    void aChosenUnitIsShownAtOnce()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        ClickRow(user, 0);
        user.Until([] { return Field("length")->text() == "200.000"; });
        user.Click("Sketcher.Unit.cm");
        user.Until([] { return Field("length")->text() == "20.000"; });
        user.Do([] { QVERIFY(Cell(1, 2).contains(" 20.000")); });
        Enter(user, "length", "30");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY(qAbs(ReadLines(m_pFixture->File("model"))[0].GetLength() - 300.0) < 1e-9);
        VerifyReplay();
    }

    void aHiddenPaneIsInStepWhenItIsShown()
    {
        ScriptedUser user;

        user.Do([] { PaneDriver::Dock("Entities").Hide(); });
        DrawTwoLines(user);
        user.Do([] { QCOMPARE(List()->model()->rowCount(), 0); });
        user.Do([] { PaneDriver::Dock("Entities").Show(); });
        user.Until([] { return List()->model()->rowCount() == 2; });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void theInspectorTellsOfActionAndInput()
    {
        ScriptedUser user;

        user.Do([] { PaneDriver::Dock("Inspector").Raise(); });
        user.Until([] { return Inspected().contains(QStringLiteral("动作：无\n尺寸输入：无")); });
        user.Click(s_line).ClickAt(0, 0).MoveTo(50, 50);
        user.Until([] {
            return Inspected().contains(QStringLiteral("动作：Sketcher.Line（")) &&
                   Inspected().contains(QStringLiteral("尺寸输入：等待键入"));
        });
        user.Type("12");
        user.Until([] { return Inspected().contains(QStringLiteral("长度 “12”")); });
        user.Press(Qt::Key_Tab);
        user.Until([] { return Inspected().contains(QStringLiteral("已锁定 长度")); });
        user.Press(Qt::Key_Escape).Press(Qt::Key_Escape).Press(Qt::Key_Escape).UntilRunning("");
        user.Until([] { return Inspected().contains(QStringLiteral("动作：无\n尺寸输入：无")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

private:
    template <class Record>
    std::vector<Record> Records() const
    {
        return RecordsOf<Record>(ReadJournal(m_pFixture->File("journal")));
    }
};

VESK_TESTS(PaneEditTest);
#include "PaneEditTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"

#include <QLabel>
#include <QLineEdit>

#include <cmath>
#include <vector>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_strip = QStringLiteral("Sketcher.KeyStrip");

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

std::vector<vesk::InputState> Locked()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->GetLocked();
}

QLineEdit* FindEditor()
{
    return ScriptedUser::FindView()->findChild<QLineEdit*>("ViewInputLineEdit");
}

/// Moves the mouse this far from the centre, but not beyond the edge of the view; returns its
/// pixel.
QPoint MoveInside(const QPointF& cursor)
{
    const QRect inside = ScriptedUser::FindView()->rect().adjusted(2, 2, -2, -2);
    const QPoint pixel(static_cast<int>(qBound<double>(
                           inside.left(), inside.center().x() + cursor.x(), inside.right())),
                       static_cast<int>(qBound<double>(
                           inside.top(), inside.center().y() - cursor.y(), inside.bottom())));
    ScriptedUser::MovePointer(pixel);
    return pixel;
}

/// Whether a note beside the editor is visible.
bool IsShown(const char* name)
{
    const auto* pNote = ScriptedUser::FindView()->findChild<QLabel*>(QLatin1String(name));
    return pNote != nullptr && pNote->isVisible();
}

}

/// Lengths and angles as people type them, in the whole program.
class TypedValueTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void clearTextIsDrawnToTheLastBit_data()
    {
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("angle");
        QTest::addColumn<double>("millimetres");
        QTest::addColumn<double>("degrees");

        QTest::newRow("units") << "10cm"
                               << "0d" << 100.0 << 0.0;
        QTest::newRow("comma") << "3,5"
                               << "90" << 3.5 << 90.0;
        QTest::newRow("point first") << ".5"
                                     << "0" << 0.5 << 0.0;
        QTest::newRow("formula") << "sqrt(2)*50"
                                 << "2*45" << std::sqrt(2.0) * 50.0 << 90.0;
        QTest::newRow("parentheses first") << "(2+3)*4"
                                           << "(30+60)d" << 20.0 << 90.0;
        QTest::newRow("feet and inches") << "10'6\""
                                         << "-(90)" << 3200.4 << -90.0;
        QTest::newRow("feet and inches, rounded once") << "1'6\""
                                                       << "asin(sqrt(3)/2)" << 457.2 << 60.0;
        QTest::newRow("decimals, rounded once") << "0.1+0.2"
                                                << "-0" << 0.3 << 0.0;
        QTest::newRow("half an inch") << "1/2in"
                                      << "atan(1)*4" << 12.7 << 180.0;
    }

    void clearTextIsDrawnToTheLastBit()
    {
        QFETCH(QString, length);
        QFETCH(QString, angle);
        QFETCH(double, millimetres);
        QFETCH(double, degrees);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type(length).Press(Qt::Key_Tab).Type(angle);
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(QString::fromStdWString(values[0].text), length);
        QCOMPARE_EXACTLY(values[0].value, millimetres);
        QCOMPARE(QString::fromStdWString(values[1].text), angle);
        QCOMPARE_EXACTLY(values[1].value, degrees);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
    }

    void lineAtThirtyDegreesEndsHalfAsHigh()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Type("30");
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines[0].GetWay(1) == 25.0);
    }

    void lockedAngleIsShownAsItWasTyped()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Type("270");
        user.Press(Qt::Key_Tab).Press(Qt::Key_Tab);
        user.Do([] { QCOMPARE(FindEditor()->text(), QString("270.00")); }).Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QVERIFY(!values.empty());
        QVERIFY(values.back().value == 270.0);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
    }

    void replayGoesByTheValue()
    {
        ScriptedUser user;

        user.Click("Sketcher.Unit.inch").Click(s_line).ClickAt(3, 7).Type("sqrt(2)*3cm");
        user.Press(Qt::Key_Tab).Type("atan(3/4)").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 1);
        VerifyReplay();
    }

    void textWithABlankIsAWhole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("millimetres");

        QTest::newRow("feet and inches") << "10' 6\"" << 3200.4;
        QTest::newRow("half an inch") << "1/2 in" << 12.7;
        QTest::newRow("formula") << "20+ 2" << 22.0;
    }

    void textWithABlankIsAWhole()
    {
        QFETCH(QString, text);
        QFETCH(double, millimetres);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type(text).Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(1));
        QCOMPARE(values[0].value, millimetres);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
    }

    void unitAfterABlankIsToldAndOneUndoTakesTheValueBack_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QString>("text");

        QTest::newRow("length") << "Sketcher.Line"
                                << "10 cm";
        QTest::newRow("width") << "Sketcher.Rectangle"
                               << "10 m";
        QTest::newRow("radius") << "Sketcher.Circle"
                                << "10 inch";
    }

    void unitAfterABlankIsToldAndOneUndoTakesTheValueBack()
    {
        QFETCH(QString, command);
        QFETCH(QString, text);
        ScriptedUser user;

        user.Click(command).ClickAt(0, 0).MoveTo(70, 30).Type(text).Do([] {
            QVERIFY(!IsInputting());
            QVERIFY(ScriptedUser::FindView()->GetViewText().contains("空格"));
        });
        user.Press(Qt::Key_Z, Qt::ControlModifier).Press(Qt::Key_Escape).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(RecordsOf<vesk::ValueRecord>(ReadJournal(Journal())).size(), std::size_t(1));
        QCOMPARE(ReadEntities(m_pFixture->File("model")).size(), std::size_t(0));
    }

    void shiftTabTakesTheValueAndGoesOn_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("second");

        QTest::newRow("length and angle") << "Sketcher.Line" << int(vesk::InputState::IS_Angle);
        QTest::newRow("width and height")
            << "Sketcher.Rectangle" << int(vesk::InputState::IS_Height);
    }

    void shiftTabTakesTheValueAndGoesOn()
    {
        QFETCH(QString, command);
        QFETCH(int, second);
        ScriptedUser user;

        user.Click(command).ClickAt(0, 0).MoveTo(70, 30).Type("50");
        user.Press(Qt::Key_Backtab, Qt::ShiftModifier).Type("40").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(values[0].value, 50.0);
        QCOMPARE(int(values[1].field), second);
        QCOMPARE(values[1].value, 40.0);
    }

    void shownNumberIsConfirmedWhereverTheMouseHasMoved()
    {
        ScriptedUser user;
        QString shown;

        user.Click(s_line).ClickAt(0, 0).MoveTo(70, 30).Type("50").Press(Qt::Key_Tab);
        user.Do([&shown] { shown = FindEditor()->text(); }).MoveTo(10, 90);
        user.Do([&shown] { QCOMPARE(FindEditor()->text(), shown); }).Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(QString::number(values[1].value, 'f', 2), shown);
    }

    void closedEditorForgetsItsText()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Do([] {
            QVERIFY(!FindEditor()->close());
            QVERIFY(!IsInputting());
        });
        user.Type("7").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - 7.0) <= 1e-9);
    }

    void emptiedFieldFollowsTheCursorAgain()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).MoveTo(70, 30).Type("50").Press(Qt::Key_Tab);
        user.Type("90").Press(Qt::Key_Tab).Do([] { QCOMPARE(Locked().size(), std::size_t(2)); });
        user.Press(Qt::Key_Backspace).Do([] {
            QCOMPARE(Locked(), std::vector<vesk::InputState>{vesk::InputState::IS_Angle});
        });
        user.Press(Qt::Key_Return).Do([] { QVERIFY(IsInputting()); });
        user.Press(Qt::Key_Escape).ClickAt(40, 120);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetWay(0)) <= 1e-9);
        QVERIFY(qAbs(lines[0].GetWay(1) - 120.0) <= 1.0);
        VerifyReplay();
    }

    void wideEditorLiesInTheViewAndOffTheCursor_data()
    {
        QTest::addColumn<QPointF>("cursor");

        QTest::newRow("middle") << QPointF(70, 30);
        QTest::newRow("right") << QPointF(100000, 30);
        QTest::newRow("left") << QPointF(-100000, 10);
        QTest::newRow("corner") << QPointF(100000, -100000);
    }

    void wideEditorLiesInTheViewAndOffTheCursor()
    {
        QFETCH(QPointF, cursor);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Do([cursor] { MoveInside(cursor); });
        user.Type("1234567890.12345678901234").Do([cursor] {
            const QLineEdit& editor = *FindEditor();
            const SketchView& view = *ScriptedUser::FindView();
            const QRect covered(view.mapFromGlobal(editor.mapToGlobal(QPoint())), editor.size());
            QVERIFY(editor.width() > editor.fontMetrics().horizontalAdvance(editor.text()));
            QVERIFY(view.rect().contains(covered));
            QVERIFY(!covered.contains(MoveInside(cursor)));
        });
        user.Press(Qt::Key_Escape);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void coordinatesAreThoseUnderTheCursorAfterAZoom()
    {
        QString shown;
        QString expected;
        ScriptedUser user;

        user.Do([&shown, &expected] {
            SketchView& view = *ScriptedUser::FindView();
            const QPoint pixel = MoveInside({100, 50});
            view.Magnify(2.0);
            shown = ScriptedUser::FindWindow()->findChild<QLabel*>("CursorPosition")->text();
            const vesk::Vector3d world = view.GetCamera().ScreenToWorld(pixel.x(), pixel.y());
            expected = QStringLiteral("X %1   Y %2   mm")
                           .arg(world.x(), 0, 'f', 3)
                           .arg(world.y(), 0, 'f', 3);
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(shown, expected);
    }

    void coordinatesAreInTheUnitChosenLast()
    {
        QString shown;
        ScriptedUser user;

        user.Do([] {
                MoveInside({100, 50});
            })
            .Click("Sketcher.Unit.cm")
            .Do([&shown] {
                shown = ScriptedUser::FindWindow()->findChild<QLabel*>("CursorPosition")->text();
            });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY2(shown.endsWith("cm"), qPrintable(shown));
    }

    void confirmedValueAfterAFormulaIsNotRounded()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).MoveTo(70, 30).Type("100/2").Press(Qt::Key_Tab);
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const auto values = RecordsOf<vesk::ValueRecord>(ReadJournal(Journal()));
        QCOMPARE(values.size(), std::size_t(2));
        QCOMPARE(values[0].value, 50.0);
        const double degrees = std::atan2(30.0, 70.0) * 180.0 / std::acos(-1.0);
        QVERIFY(qAbs(values[1].value - degrees) < 1.0);
        QVERIFY(QString::fromStdWString(values[1].text).toDouble() != values[1].value);
    }

    void clickTakesAFormulaAndKeepsWhatIsUnclear()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("1,000").ClickAt(0, 100);
        user.Do([] { QVERIFY(IsInputting()); });
        user.Type("2*30").ClickAt(0, 100);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetWay(1) - 60.0) <= 1e-9);
    }

    void stripIsThereFromTheStart()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Do([] { QVERIFY(IsShown("InputKeys")); });
        user.Press(Qt::Key_Escape).Do([] { QVERIFY(!IsShown("InputKeys")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void commandHidesTheStripAndShowsItAgain()
    {
        ScriptedUser user;

        user.Click(s_strip).Click(s_line).ClickAt(0, 0).Type("5").Do([] {
            QVERIFY(IsInputting());
            QVERIFY(!IsShown("InputKeys"));
        });
        user.Press(Qt::Key_Escape).Click(s_strip).Click(s_line).ClickAt(0, 0).Type("5");
        user.Do([] { QVERIFY(IsShown("InputKeys")); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }
};

VESK_TESTS(TypedValueTest);
#include "TypedValueTest.moc"

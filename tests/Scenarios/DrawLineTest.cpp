#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Support/TestValues.h"
#include "View/IModelView.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <cstdint>

namespace
{

constexpr double Tolerance = 1e-9;

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_erase = QStringLiteral("Sketcher.Erase");

QLineEdit* FindEditor()
{
    return ScriptedUser::FindView()->findChild<QLineEdit*>(QStringLiteral("ViewInputLineEdit"));
}

bool IsInputting()
{
    return vesk::TemporaryDimensionMgr::GetInstance()->IsInputting();
}

bool IsRunning(const std::wstring& commandId)
{
    return vesk::ActionManager::GetRunningCommandId() == commandId;
}

}

/// Drawing lines by typing, as a user of the whole program.
class DrawLineTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void hintThatComesAndGoesLeavesTheViewWhereItIs()
    {
        QRect busy;
        QRect idle;
        const auto read = [](QRect& rect) {
            return [&rect] {
                QCoreApplication::sendPostedEvents();
                rect = ScriptedUser::FindView()->geometry();
            };
        };
        ScriptedUser user;

        user.Click(s_line).UntilRunning(s_line).Do(read(busy));
        user.Press(Qt::Key_Escape).UntilRunning({}).Do(read(idle)).Run();

        QVERIFY(idle.isValid());
        QCOMPARE(busy, idle);
    }

    /// The window is never narrower than its status bar requires.
    void longHintAsksForNoWiderWindow()
    {
        int before = 0;
        int after = 0;
        const auto read = [](int& width) {
            return [&width] {
                QCoreApplication::sendPostedEvents();
                width = ScriptedUser::FindWindow()->statusBar()->minimumSizeHint().width();
            };
        };
        ScriptedUser user;

        user.Do(read(before));
        user.Do([] { ScriptedUser::FindView()->SetViewText(std::wstring(300, L'汉')); });
        user.Do(read(after)).Run();

        QVERIFY(before > 0);
        QCOMPARE(after, before);
    }

    void typedLengthAndAngleAreExact_data()
    {
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("angle");

        QTest::newRow("plain") << "125.5"
                               << "30";
        QTest::newRow("quarter turn") << "80"
                                      << "90";
        QTest::newRow("negative angle") << "33.25"
                                        << "-45";
        QTest::newRow("long") << "123456.789"
                              << "17.25";
        QTest::newRow("short") << "0.001"
                               << "179.5";
        QTest::newRow("leading zeros") << "007.5"
                                       << "060";
        QTest::newRow("leading point") << ".5"
                                       << "10";
    }

    void typedLengthAndAngleAreExact()
    {
        QFETCH(QString, length);
        QFETCH(QString, angle);
        ScriptedUser user;

        user.Click(s_line).ClickAt(-100, -50).Type(length).Press(Qt::Key_Tab).Type(angle);
        user.Press(Qt::Key_Return).Press(Qt::Key_Escape);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - length.toDouble()) <= Tolerance);
        QVERIFY(qAbs(lines[0].GetAngle() - angle.toDouble()) <= Tolerance);
    }

    void lengthAloneFollowsTheCursor()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).MoveTo(60, 80).Type("50").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetWay(0) - 30.0) <= Tolerance);
        QVERIFY(qAbs(lines[0].GetWay(1) - 40.0) <= Tolerance);
    }

    void lengthTypedBeforeTheMouseMovedRunsAlongX()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(10, 20).Type("12.5").Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].GetLength(), 12.5);
        QCOMPARE(lines[0].end[1], lines[0].start[1]);
    }

    void segmentsFollowOneAnother()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("10").Press(Qt::Key_Return);
        user.Type("20").Press(Qt::Key_Tab).Type("90").Press(Qt::Key_Return);
        user.ClickAt(100, 100);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[1].start, lines[0].end);
        QCOMPARE(lines[2].start, lines[1].end);
        QCOMPARE(lines[1].GetWay(1), 20.0);
    }

    void refusedTextStaysSelectedUntilTheNextKey_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("letters") << "abc";
        QTest::newRow("no digits after the exponent") << "5e";
        QTest::newRow("too long") << "1e308";
        QTest::newRow("nan") << "nan";
        QTest::newRow("two points") << "1..2";
        QTest::newRow("zero") << "0";
        QTest::newRow("negative") << "-5";
        QTest::newRow("comma of thousands") << "1,500";
        QTest::newRow("sign") << "+";
    }

    void refusedTextStaysSelectedUntilTheNextKey()
    {
        QFETCH(QString, text);
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type(text).Press(Qt::Key_Return);
        user.Do([text] {
            QVERIFY(IsInputting());
            QCOMPARE(FindEditor()->text(), text);
            QCOMPARE(FindEditor()->selectedText(), text);
        });
        user.Type("7").Do([] { QCOMPARE(FindEditor()->text(), QStringLiteral("7")); });
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].GetLength(), 7.0);
    }

    void emptyTextIsRefused()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Press(Qt::Key_Backspace);
        user.Press(Qt::Key_Return).Do([] { QVERIFY(IsInputting()); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 0);
    }

    void escapeInTheEditorEndsOnlyTheInput()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Press(Qt::Key_Escape);
        user.Do([] {
            QVERIFY(!IsInputting());
            QVERIFY(IsRunning(L"Sketcher.Line"));
        });
        user.Press(Qt::Key_Escape).Until([] { return IsRunning(L""); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 0);
    }

    void heldEscapeCountsOnceEvenWhereTheRepetitionIsTorn()
    {
        const auto press = [](ulong time) {
            return [time] {
                QKeyEvent event(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
                event.setTimestamp(time);
                QCoreApplication::sendEvent(ScriptedUser::FindView(), &event);
            };
        };
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Do(press(1000)).Do(press(1500));
        user.Do([] {
            QVERIFY(!IsInputting());
            QVERIFY(IsRunning(L"Sketcher.Line"));
            QTest::keyRelease(ScriptedUser::FindView(), Qt::Key_Escape);
        });
        user.Do(press(1900)).Until([] { return IsRunning(L""); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void escapeThatIsPressedAsItIsReleasedIsHeld()
    {
        const auto send = [](QEvent::Type type, ulong time) {
            QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
            event.setTimestamp(time);
            QCoreApplication::sendEvent(ScriptedUser::FindView(), &event);
        };
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Do([send] {
            send(QEvent::KeyPress, 100);
            send(QEvent::KeyRelease, 140);
            send(QEvent::KeyPress, 140);
            QVERIFY(IsRunning(L"Sketcher.Line"));
            send(QEvent::KeyRelease, 180);
            send(QEvent::KeyPress, 186);
        });
        user.Until([] { return IsRunning(L""); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void escapeInTheViewFirstDropsWhatTabLocked()
    {
        const auto isLocked = [] {
            return vesk::TemporaryDimensionMgr::GetInstance()->IsLocked(
                vesk::InputState::IS_Length);
        };
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("5").Press(Qt::Key_Tab).Press(Qt::Key_Escape);
        user.Do([isLocked] { QVERIFY(isLocked()); });
        user.Press(Qt::Key_Escape).Do([isLocked] {
            QVERIFY(!isLocked());
            QVERIFY(IsRunning(L"Sketcher.Line"));
        });
        user.Press(Qt::Key_Escape).Until([] { return IsRunning(L""); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void lockedLengthHoldsWhileTheCursorMoves()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("50").Press(Qt::Key_Tab).Press(Qt::Key_Escape);
        user.MoveTo(60, 80).MoveTo(-30, 40).ClickAt(-30, 40);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetLength() - 50.0) <= Tolerance);
        QVERIFY(lines[0].GetWay(0) < 0.0);
    }

    void mouseMovesLeaveTheTypedTextAlone()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).MoveTo(50, 0).Type("42.125");
        user.MoveTo(10, 70).MoveTo(-90, 20).MoveTo(0, -60);
        user.Do([] { QCOMPARE(FindEditor()->text(), QStringLiteral("42.125")); });
        user.Press(Qt::Key_Return);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetWay(1) + 42.125) <= Tolerance);
    }

    void clickTakesWhatIsTyped()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Type("25").ClickAt(0, 100);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QVERIFY(qAbs(lines[0].GetWay(1) - 25.0) <= Tolerance);
    }

    void undoInsideTheActionGoesBackOneSegment()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(50, 0).ClickAt(50, 50);
        user.Click("Sketcher.Undo").ClickAt(90, 90);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[1].start, lines[0].end);
        QCOMPARE(lines[1].GetWay(0), 40.0);
    }

    void pickedLineIsErased()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(100, 0).ClickAt(100, 100);
        user.Click(s_erase).ClickAt(50, 4);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].GetWay(1), 100.0);
    }

    void buttonIsCheckedWhileItsActionRuns()
    {
        const auto isChecked = [](const QString& id) {
            return ScriptedUser::FindButton(id)->isChecked();
        };
        ScriptedUser user;

        user.Click(s_line).Until([isChecked] { return isChecked(s_line); });
        user.Click(s_erase).Until([isChecked] { return isChecked(s_erase) && !isChecked(s_line); });
        user.Press(Qt::Key_Escape).Until([isChecked] { return !isChecked(s_erase); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void runningButtonStartsItsCommandAnew()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).Click(s_line).ClickAt(10, 10).ClickAt(20, 10);
        user.Until([] { return ScriptedUser::FindButton(s_line)->isChecked(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QVector<DrawnLine> lines = ReadLines(m_pFixture->File("model"));
        QCOMPARE(lines.size(), 1);
        QCOMPARE(lines[0].start[0], 10.0);
    }

    void switchingToolsDoesNotGrowTheStack()
    {
        constexpr int Switches = 2000;
        constexpr std::intptr_t OneFrame = 64 * 1024;
        std::intptr_t lowest = 0;
        std::intptr_t highest = 0;
        ScriptedUser user;

        for (int i = 0; i < Switches; ++i)
        {
            user.Click(i % 2 == 0 ? s_line : s_erase);
            user.Do([&lowest, &highest] {
                const int local = 0;
                const auto place = reinterpret_cast<std::intptr_t>(&local);
                lowest = lowest == 0 ? place : std::min(lowest, place);
                highest = std::max(highest, place);
            });
        }
        user.Until([] { return IsRunning(L"Sketcher.Erase"); });
        user.Click(s_line).ClickAt(0, 0).ClickAt(30, 40);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY2(highest - lowest < OneFrame, qPrintable(QString::number(highest - lowest)));
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
    }
};

VESK_TESTS(DrawLineTest);
#include "DrawLineTest.moc"

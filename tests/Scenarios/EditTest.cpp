#include "Drawing.h"
#include "PaneDriver.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"
#include "View/SketchView.h"

#include "Dimension/TemporaryDimensionMgr.h"
#include "Model/KeptContent.h"
#include "Support/TestValues.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QStatusBar>

#include <array>

namespace
{

using Point = std::array<double, 3>;

const QString s_line = QStringLiteral("Sketcher.Line");

QLineEdit* FindEditor()
{
    return ScriptedUser::FindView()->findChild<QLineEdit*>(QStringLiteral("ViewInputLineEdit"));
}

/// How many commands of that id the journal has.
std::size_t CountCommands(const QString& journal, const std::wstring& commandId)
{
    std::size_t count = 0;
    for (const auto& record : RecordsOf<vesk::CommandRecord>(ReadJournal(journal)))
        count += record.commandId == commandId ? 1 : 0;
    return count;
}

void DrawTwoLines(ScriptedUser& user)
{
    user.DrawLine(-100, 0, 100, 0).DrawLine(-100, 80, 100, 80);
}

/// Opens the menu of the view at a world point.
void OpenMenuAt(double x, double y)
{
    SketchView& view = *ScriptedUser::FindView();
    double pixelX = 0.0;
    double pixelY = 0.0;
    double depth = 0.0;
    view.GetCamera().WorldToScreen({x, y, 0}, pixelX, pixelY, depth);
    const QPoint pixel(qRound(pixelX), qRound(pixelY));
    QContextMenuEvent event(QContextMenuEvent::Mouse, pixel, view.mapToGlobal(pixel));
    QCoreApplication::sendEvent(&view, &event);
}

}

/// Changing what is drawn, as a user of the whole program.
class EditTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void recordsOfTheJournalAreCopiedWhileEntitiesAreSelected()
    {
        ScriptedUser user;
        DrawTwoLines(user);
        user.Press(Qt::Key_A, Qt::ControlModifier).Do([] {
            PaneDriver::Dock("Journal").Raise();
            auto* pList = PaneDriver::Widget("Journal").findChild<QListView*>("JournalRecords");
            pList->setCurrentIndex(pList->model()->index(0, 0));
            pList->setFocus();
        });
        user.Press(Qt::Key_C, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(copied.startsWith("{\"n\":"), qPrintable(copied));
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Copy"), std::size_t(0));
    }

    void cleanupTestCase() { QGuiApplication::clipboard()->clear(); }

    void whatIsSelectedMovesByTypedDistanceAndAngle()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Click("Sketcher.Move").ClickAt(-50, -60).MoveTo(30, -20);
        user.Type("25").Press(Qt::Key_Tab).Type("90").Press(Qt::Key_Return).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const Point still = Model()[1].start;
        QVERIFY(Model()[0].start == (Point{still[0], still[1] - 80 + 25, 0}));
        QVERIFY(Model()[0].end == (Point{still[0] + 200, still[1] - 80 + 25, 0}));
        VerifyReplay();
    }

    void everyToolForWhatIsSelectedIsReplayed()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Click("Sketcher.CopyTo").ClickAt(-50, -60).ClickAt(-40, -150);
        user.ClickAt(7, 120).Press(Qt::Key_Escape).UntilRunning({});
        user.Click("Sketcher.Mirror").ClickAt(150, 20).ClickAt(170, 133).UntilRunning({});
        user.Click("Sketcher.Offset").ClickAt(20, 80).MoveTo(10, 60).Type("12.5");
        user.Press(Qt::Key_Return).Press(Qt::Key_Escape).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 6);
        VerifyReplay();
    }

    void shiftHoldsALineToMultiplesOf15Degrees()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(100, 4, Qt::ShiftModifier);
        user.Press(Qt::Key_Escape).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 1);
        QCOMPARE_EXACTLY(Model()[0].GetWay(1), 0.0);
        VerifyReplay();
    }

    void deleteErasesAllThatIsSelectedInOneStep()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.Press(Qt::Key_A, Qt::ControlModifier).Press(Qt::Key_Delete);
        user.Until([] { return !ScriptedUser::FindButton("Sketcher.Delete")->isEnabled(); });
        user.Press(Qt::Key_Z, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{1, 2}}));
        QCOMPARE(Model().size(), 2);
        VerifyReplay();
    }

    void keysOfATextFieldChangeNoDrawing_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

        QTest::newRow("Delete") << int(Qt::Key_Delete) << Qt::KeyboardModifiers();
        QTest::newRow("cut") << int(Qt::Key_X) << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("paste") << int(Qt::Key_V) << Qt::KeyboardModifiers(Qt::ControlModifier);
    }

    void keysOfATextFieldChangeNoDrawing()
    {
        QFETCH(int, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QGuiApplication::clipboard()->setText(QStringLiteral("7"));
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Click(s_line).ClickAt(0, -50).MoveTo(70, -90).Type("12");
        user.Press(static_cast<Qt::Key>(key), modifiers).Press(Qt::Key_Escape);
        user.Press(Qt::Key_Escape).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 2);
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Delete"), std::size_t{0});
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Cut"), std::size_t{0});
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Paste"), std::size_t{0});
    }

    void undoInAnOpenEditorUndoesItsTextFirst()
    {
        ScriptedUser user;

        user.Click(s_line).ClickAt(0, 0).ClickAt(100, 0).MoveTo(150, 60).Type("123");
        user.Press(Qt::Key_Z, Qt::ControlModifier).Do([] {
            QCOMPARE(FindEditor()->text(), QString("1"));
            QVERIFY(!FindEditor()->isUndoAvailable());
        });
        user.Press(Qt::Key_Z, Qt::ControlModifier).Press(Qt::Key_Escape).Press(Qt::Key_Escape);
        user.UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Undo"), std::size_t{1});
        QVERIFY(Model().isEmpty());
        VerifyReplay();
    }

    void pastedContentIsReplayedWithoutTheClipboard()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.Press(Qt::Key_A, Qt::ControlModifier).Press(Qt::Key_C, Qt::ControlModifier);
        user.Press(Qt::Key_V, Qt::ControlModifier).Press(Qt::Key_V, Qt::ControlModifier);
        user.Do([] { QGuiApplication::clipboard()->clear(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 6);
        QVERIFY(Model()[2].start != Model()[0].start);
        QVERIFY(Model()[4].start != Model()[2].start);
        KeptContent::Get().Forget();
        VerifyReplay();
    }

    void whatIsCutComesBackWhereItWas()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.ClickAt(20, 0).Press(Qt::Key_X, Qt::ControlModifier);
        user.Press(Qt::Key_V, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 2);
        const Point still = Model()[0].start;
        QVERIFY(Model()[1].start == (Point{still[0], still[1] - 80, 0}));
        VerifyReplay();
    }

    void aDuplicateDependsOnTheScaleOnlyOnce()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.Press(Qt::Key_A, Qt::ControlModifier).Choose("Sketcher.Zoom", "Sketcher.Zoom.In");
        user.Press(Qt::Key_D, Qt::ControlModifier);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 4);
        VerifyReplay();
    }

    void damagedContentIsToldAndChangesNothing()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.Do([] {
            auto* pData = new QMimeData;
            pData->setData(QStringLiteral("application/x-vesk-drawing"), "{\"format\":");
            QGuiApplication::clipboard()->setMimeData(pData);
        });
        user.Press(Qt::Key_V, Qt::ControlModifier).Do([] {
            QCOMPARE(ScriptedUser::FindWindow()->statusBar()->currentMessage(),
                     QString("剪贴板中的图元已损坏，未粘贴"));
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 2);
        VerifyReplay();
    }

    void spaceRunsTheLastToolAgain()
    {
        ScriptedUser user;

        user.DrawLine(-100, 0, 100, 0).Press(Qt::Key_Space).UntilRunning(s_line);
        user.ClickAt(0, 50).ClickAt(10, 50).Press(Qt::Key_Escape).UntilRunning({});

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Model().size(), 2);
        QCOMPARE(CountCommands(Journal(), L"Sketcher.Line"), std::size_t{2});
        VerifyReplay();
    }

    void theMenuDeletesWhatIsBelowIt()
    {
        ScriptedUser user;

        DrawTwoLines(user);
        user.Do([] { OpenMenuAt(20, 80); });
        user.Do([] {
            auto* pMenu = ScriptedUser::FindView()->findChild<QMenu*>("ContextMenu");
            QVERIFY(pMenu != nullptr);
            for (QAction* pAction : pMenu->actions())
            {
                if (pAction->property("CommandId") == QLatin1String("Sketcher.Delete"))
                    pAction->trigger();
            }
            pMenu->close();
        });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QCOMPARE(Selected(), Selections({{2}}));
        QCOMPARE(Model().size(), 1);
        QVERIFY(Model()[0].start[1] < 40);
        VerifyReplay();
    }
};

VESK_TESTS(EditTest);
#include "EditTest.moc"

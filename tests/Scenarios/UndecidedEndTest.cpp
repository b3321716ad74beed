#include "Drawing.h"
#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include "Recovery/UnsavedWork.h"

#include "Support/DialogUser.h"
#include "Support/TestValues.h"

#include <csignal>

/// Ways in which a session ends, and whether its work is offered afterwards.
class UndecidedEndTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void anEndWithoutADecisionIsOffered_data()
    {
        QTest::addColumn<QString>("during");
        QTest::addColumn<int>("signal");

        QTest::newRow("nothing") << "" << SIGTERM;
        QTest::newRow("nothing, interrupted") << "" << SIGINT;
        QTest::newRow("nothing, terminal gone") << "" << SIGHUP;
        QTest::newRow("a tool") << "tool" << SIGTERM;
        QTest::newRow("a tool, interrupted") << "tool" << SIGINT;
        QTest::newRow("a tool, terminal gone") << "tool" << SIGHUP;
        QTest::newRow("a value") << "value" << SIGTERM;
        QTest::newRow("a menu") << "menu" << SIGTERM;
        QTest::newRow("the question to save") << "Sketcher.New" << SIGTERM;
        QTest::newRow("the question to save, interrupted") << "Sketcher.New" << SIGINT;
        QTest::newRow("the question to save, terminal gone") << "Sketcher.New" << SIGHUP;
        QTest::newRow("a file dialog") << "Sketcher.SaveAs" << SIGTERM;
        QTest::newRow("the settings") << "Sketcher.Settings" << SIGTERM;
        QTest::newRow("the print preview") << "Sketcher.Print" << SIGTERM;
        QTest::newRow("the choice of a format") << "Sketcher.Export" << SIGTERM;
    }

    void anEndWithoutADecisionIsOffered()
    {
        QFETCH(QString, during);
        QFETCH(int, signal);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);
        DoHalf(user, during);
        user.Do([signal] { ::raise(signal); });
        user.Until([] { return !ScriptedUser::FindWindow()->isVisible(); });

        QCOMPARE(user.Run(Options()), 0);

        QCOMPARE(Undecided().size(), 1);
        QCOMPARE(FindUnsavedWork(Undecided().front())->steps, 1);
        QCOMPARE(LinesOf(Undecided().front()), 1);
    }

    void theEndOfTheDesktopSessionIsNoDecision()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Do(&QCoreApplication::quit);

        QCOMPARE(user.Run(Options()), 0);

        QCOMPARE(Undecided().size(), 1);
    }

    void whatWasSavedIsNotOffered()
    {
        const QString file = m_pFixture->File("part.vsk");
        const QString saved = m_pFixture->File("saved");
        const QString changed = m_pFixture->File("changed");
        vesk::test::DialogUser answers;
        answers.ChooseFile(file);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Press(Qt::Key_S, Qt::ControlModifier);
        user.Until([&file] { return QFile::exists(file) && !IsModified(); });
        user.Do([&saved] { QFile::copy(Journals().front(), saved); });
        user.DrawLine(0, 10, 50, 10).Do([&changed] { QFile::copy(Journals().front(), changed); });
        user.Click("Sketcher.Undo").Until([] { return !IsModified(); });

        QCOMPARE(user.Run(Options()), 0);

        QCOMPARE(answers.GetUnexpected(), QStringList());
        QVERIFY(!FindUnsavedWork(saved).has_value());
        QCOMPARE(FindUnsavedWork(changed)->steps, 1);
        QCOMPARE(LinesOf(changed), 2);
    }

    void whatTheUserDiscardsIsNotOffered()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);

        QCOMPARE(RunAndDiscard(user, Options()), 0);

        QCOMPARE(Journals().size(), 1);
        QCOMPARE(Undecided(), QStringList());
    }

    void nothingDrawnIsNothingToDecide()
    {
        ScriptedUser user;
        user.Do([] { ::raise(SIGTERM); });
        user.Until([] { return !ScriptedUser::FindWindow()->isVisible(); });

        QCOMPARE(user.Run(Options()), 0);

        QCOMPARE(Undecided(), QStringList());
    }

private:
    static bool IsModified() { return ScriptedUser::FindWindow()->isWindowModified(); }

    /// How many lines a replay of the journal draws.
    int LinesOf(const QString& journal) const
    {
        const QString model = m_pFixture->File("replayed");
        if (RunSketcher({"--replay", journal, "--model", model}).code != 0)
            QTest::qFail("the journal cannot be replayed", __FILE__, __LINE__);
        return ReadLines(model).size();
    }

    const ScopedVariable m_attended{"VESK_UNATTENDED", QString()};
};

VESK_TESTS(UndecidedEndTest);
#include "UndecidedEndTest.moc"

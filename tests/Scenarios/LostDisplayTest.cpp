#include "RecoveryUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherWindow.h"

#include "Recovery/UnsavedWork.h"

#include "HostUi/TerminationRequests.h"
#include "Support/TestValues.h"
#include "Support/XServer.h"

#include <QAbstractItemView>
#include <QProcess>

#include <unistd.h>

namespace
{

constexpr char DuringVariable[] = "VESK_LOST_DURING";
constexpr char ReadyVariable[] = "VESK_LOST_READY";

/// The session whose display goes away while it does that.
[[noreturn]] void DrawUntilLost(const QString& during)
{
    // As the program does: it may be writing to the display when that goes.
    vesk::SurviveFailedWrites();
    ScriptedUser user;
    user.DrawLine(0, 0, 50, 0);
    DoHalf(user, during);
    user.Do([] { WriteFile(qEnvironmentVariable(ReadyVariable), "ready"); });
    user.Until([] { return false; });
    user.Run(Options());
    ::_exit(0);
}

}

/// A display that goes away takes nothing along: the next start offers the work.
class LostDisplayTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("sketcher"));
        if (qEnvironmentVariableIsSet(DuringVariable))
            DrawUntilLost(qEnvironmentVariable(DuringVariable));
    }

    void theWorkIsOfferedAtTheNextStart_data()
    {
        QTest::addColumn<QString>("during");

        QTest::newRow("nothing") << "";
        QTest::newRow("a tool") << "tool";
        QTest::newRow("a value") << "value";
        QTest::newRow("a menu") << "menu";
        QTest::newRow("the question to save") << "Sketcher.New";
        QTest::newRow("a file dialog") << "Sketcher.SaveAs";
        QTest::newRow("the settings") << "Sketcher.Settings";
        QTest::newRow("the print preview") << "Sketcher.Print";
    }

    void theWorkIsOfferedAtTheNextStart()
    {
        QFETCH(QString, during);

        LoseDisplay(during);

        QCOMPARE(Undecided().size(), 1);
        QCOMPARE(FindUnsavedWork(Undecided().front())->steps, 1);
        int entities = 0;
        ScriptedUser user;
        user.Until(&IsOffered).Click("RecoveryGoOn").Until(&IsNothingOffered);
        user.Do([&entities] {
            auto* pList = ScriptedUser::FindWindow()->findChild<QAbstractItemView*>("Entities");
            entities = pList->model()->rowCount();
        });
        QCOMPARE(RunAndDiscard(user, Options()), 0);
        QCOMPARE(entities, 1);
    }

private:
    /// Runs a session on a display of its own until it has done that, and ends the display.
    void LoseDisplay(const QString& during) const
    {
        vesk::XServer server;
        QVERIFY2(server.Start(), qPrintable(server.GetError()));
        const QString ready = m_pFixture->File("ready");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(DuringVariable, during);
        environment.insert(ReadyVariable, ready);
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("DISPLAY", server.GetDisplay());
        QProcess session;
        session.setProcessEnvironment(environment);
        session.setProcessChannelMode(QProcess::MergedChannels);
        session.start(QCoreApplication::applicationFilePath(), {"LostDisplayTest"});
        QVERIFY(QTest::qWaitFor([&ready] { return QFile::exists(ready); }, vesk::test::PatienceMs));

        server.Kill();

        QVERIFY(session.waitForFinished(vesk::test::PatienceMs));
        QCOMPARE(session.exitStatus(), QProcess::NormalExit);
        QCOMPARE(session.exitCode(), 1);
    }

    const ScopedVariable m_attended{"VESK_UNATTENDED", QString()};
};

VESK_TESTS(LostDisplayTest);
#include "LostDisplayTest.moc"

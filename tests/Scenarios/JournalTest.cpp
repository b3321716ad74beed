#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QDir>

namespace
{

using vesk::CloseRecord;
using vesk::EndRecord;
using vesk::JournalRecord;
using vesk::MarkRecord;
using vesk::RedoRecord;
using vesk::UndoRecord;

const QByteArray s_firstVersion = "{\"n\":1,\"kind\":\"command\",\"id\":\"Sketcher.Line\"}\n"
                                  "{\"n\":2,\"kind\":\"point\",\"point\":[0,0,0]}\n"
                                  "{\"n\":3,\"kind\":\"point\",\"point\":[10,0,0]}\n"
                                  "{\"n\":1,\"kind\":\"end\",\"result\":\"done\"}\n"
                                  "{\"n\":4,\"kind\":\"property\",\"object\":\"drawing\","
                                  "\"property\":\"name\",\"value\":\"plan\"}\n";

const QByteArray s_undo = "{\"n\":5,\"kind\":\"command\",\"id\":\"Sketcher.Undo\"}\n"
                          "{\"n\":6,\"kind\":\"undo\",\"entity\":1}\n"
                          "{\"n\":5,\"kind\":\"end\",\"result\":\"done\"}\n";

}

/// What the journal holds besides the acts of the user, and replays that look at it.
class JournalTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void everyFinishedStepIsMarkedWithTheDrawing()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Click("Sketcher.Undo").Click("Sketcher.Redo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        const std::vector<MarkRecord> marks = RecordsOf<MarkRecord>(ReadJournal(Journal()));
        QCOMPARE(marks.size(), std::size_t(4)); // Two points, undo, redo.
        QCOMPARE(marks[2].digest, marks[0].digest);
        QCOMPARE(marks[3].digest, marks[1].digest);
        QVERIFY(marks[1].digest != marks[0].digest);
        QCOMPARE(marks[0].digest.size(), std::size_t(64));
        VerifyReplay();
    }

    void redoIsRecordedWithItsEntity_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("modifiers");

        QTest::newRow("Ctrl+Y") << Qt::Key_Y << int(Qt::ControlModifier);
        QTest::newRow("Ctrl+Shift+Z") << Qt::Key_Z << int(Qt::ControlModifier | Qt::ShiftModifier);
    }

    void redoIsRecordedWithItsEntity()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, modifiers);
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).DrawLine(0, 10, 50, 10).Click("Sketcher.Undo");
        user.Until([] { return ScriptedUser::FindButton("Sketcher.Redo")->isEnabled(); });
        user.Press(key, Qt::KeyboardModifiers(modifiers));

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        const std::vector<RedoRecord> redos = RecordsOf<RedoRecord>(ReadJournal(Journal()));
        QCOMPARE(redos.size(), std::size_t(1));
        QCOMPARE(redos[0].entity, 2);
        QCOMPARE(Model().size(), 2);
        VerifyReplay();
    }

    void anOrderlyEndIsTheLastRecord()
    {
        QCOMPARE(ScriptedUser().Run(m_pFixture->Draw()), 0);

        const std::vector<JournalRecord> records = ReadJournal(Journal());
        QVERIFY(std::holds_alternative<CloseRecord>(records.back().what));
    }

    void aTerminatedProgramEndsInOrderAndAKilledOneDoesNot_data()
    {
        QTest::addColumn<bool>("isTerminated");

        QTest::newRow("terminated") << true;
        QTest::newRow("killed") << false;
    }

    void aTerminatedProgramEndsInOrderAndAKilledOneDoesNot()
    {
        QFETCH(bool, isTerminated);
        RunningSketcher sketcher({"--journal", Journal()}, m_pFixture->File("ui"));

        if (isTerminated)
            sketcher.Terminate();
        else
            sketcher.Kill();

        QCOMPARE(RecordsOf<CloseRecord>(ReadJournal(Journal())).size(),
                 std::size_t(isTerminated ? 1 : 0));
    }

    void aReplayStopsAtTheFirstMarkThatDiffers()
    {
        Draw();
        QByteArray journal = ReadBytes(Journal());
        const std::vector<MarkRecord> marks = RecordsOf<MarkRecord>(ReadJournal(Journal()));
        const QByteArray right = QByteArray::fromStdString(marks[1].digest);
        const QByteArray wrong = QByteArray(64, '0');
        journal.replace(right, wrong);
        WriteFile(m_pFixture->File("changed"), journal);

        const Outcome outcome = RunSketcher(
            {"--replay", m_pFixture->File("changed"), "--model", m_pFixture->File("replayed")});

        QCOMPARE(outcome.code, 3);
        QCOMPARE(outcome.error, "sketcher: record 5: the drawing is different: expected " +
                                    QString(wrong) + ", actual " + QString(right) + '\n');
        QCOMPARE(ReadLines(m_pFixture->File("replayed")).size(), 1);
    }

    void aReplayEndsAfterTheRecordThatIsAskedFor()
    {
        Draw();

        const Outcome outcome = RunSketcher(
            {"--replay", Journal(), "--until", "5", "--model", m_pFixture->File("replayed")});

        QCOMPARE(outcome.code, 0);
        QCOMPARE(ReadLines(m_pFixture->File("replayed")).size(), 1);
        QCOMPARE(Model().size(), 2);
    }

    void aReplayInRealTimeGivesTheSameDrawing()
    {
        Draw();

        const Outcome outcome = RunSketcher(
            {"--replay", Journal(), "--speed", "real", "--model", m_pFixture->File("replayed")});

        QCOMPARE(outcome.code, 0);
        QCOMPARE(ReadBytes(m_pFixture->File("replayed")), ReadBytes(m_pFixture->File("model")));
    }

    void theWindowStaysUntilItIsClosed()
    {
        Draw();
        const QString ui = m_pFixture->File("ui");
        QVERIFY(QFile::remove(ScenarioFixture::LayoutFile()));
        RunningSketcher sketcher(
            {"--replay", Journal(), "--stay", "--model", m_pFixture->File("replayed")}, ui);

        QVERIFY(QTest::qWaitFor([&ui] { return ReadBytes(ui).contains("\"entities\": 2"); },
                                vesk::test::PatienceMs));

        QCOMPARE(sketcher.Terminate().code, 0);
        QCOMPARE(ReadBytes(m_pFixture->File("replayed")), ReadBytes(m_pFixture->File("model")));
        QVERIFY2(!QFile::exists(ScenarioFixture::LayoutFile()), "a replay writes no layout");
    }

    void recordsThatAreBroughtToDiskAreTheSame()
    {
        Options options = m_pFixture->Draw();
        options.repetition.isSynced = true;
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);

        QCOMPARE(user.Run(options), 0);

        VerifyReplay();
    }

    void aNewerJournalIsToldInOneLine()
    {
        WriteFile(Journal(), "{\"n\":0,\"kind\":\"journal\",\"version\":3,\"more\":[]}\n");

        const Outcome outcome = RunSketcher({"--replay", Journal()});

        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.error, "sketcher: " + Journal() +
                                    ": line 1: the journal has version 3, this program reads up "
                                    "to version 2\n");
    }

    void aNameIsNoStepInAJournalOfTheFirstVersionAndItsCopies()
    {
        const QString copy = m_pFixture->File("copy");
        WriteFile(Journal(), s_firstVersion);
        QCOMPARE(RunSketcher({"--replay", Journal(), "--journal", Journal()}).code, 0);
        QCOMPARE(RunSketcher({"--replay", Journal(), "--journal", copy}).code, 0);

        WriteFile(Journal(), s_firstVersion + s_undo);
        QCOMPARE(RunSketcher({"--replay", Journal()}).error, QString());
        const std::vector<JournalRecord> copied = ReadJournal(copy);
        QVERIFY(!std::holds_alternative<vesk::HeaderRecord>(copied.front().what));
    }

private:
    /// Two lines, one after the other.
    void Draw() const
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).DrawLine(0, 10, 50, 10);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }
};

VESK_TESTS(JournalTest);
#include "JournalTest.moc"

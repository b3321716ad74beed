#include "Replay/JournalReplayer.h"

#include "Command/IActionManager.h"
#include "Host/Replay/ReplayFixture.h"
#include "Journal/JournalFormat.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <functional>
#include <utility>

namespace vesk
{

namespace
{

using Fixture = ReplayFixture;

/// Assembles a journal.
using Writing = std::function<void(Fixture&)>;

QString FailureOf(const JournalReplayResult& result)
{
    return QString::fromStdString(result.failure);
}

}

}

Q_DECLARE_METATYPE(vesk::Writing)

namespace vesk
{

class JournalReplayerTest : public QObject
{
    Q_OBJECT

private slots:
    void stepsGoToTheActionOfTheirCommand();
    void theEventLoopIsOffMeanwhile();
    void anActionEndsAtItsMark();
    void aCommandIsJudgedWhenTheOneBeforeItHasEnded();
    void aPlainCommandInsideAnActionRunsBesideIt();
    void aPlainCommandThatEndedLaterRunsAfterTheAction();
    void aCommandRecordedWhileAnotherWasBeingEndedCountsAsAfterIt();
    void commandsThatWaitedForOneAnotherRunInOrder();
    void aRefusedCommandIsNotRun();
    void aRefusedCommandEndsNothing();
    void anUnfinishedActionKeepsItsSteps();
    void anUnfinishedActionEndsBeforeTheNext();
    void aPlainCommandBesideAnUnfinishedActionRunsBesideIt();
    void anUnfinishedPlainCommandIsRepeatedIfItsResultStands();
    void anUnfinishedPlainCommandWithoutResultIsNotRepeated();
    void unfinishedCommandsAreListedInOrder();
    void anActionThatEndsItselfNeedsNoMark();
    void selectionsPropertiesAndUndosGoToTheTarget();
    void theTargetIsToldHowFarTheReplayHasCome();
    void theTargetMayStopTheReplay();
    void commandsGetTheirParameters();
    void aPlainCommandThatWaitedAndDidNotGetItsMarkIsRepeated();
    void missingMarksSayWhatTheJournalSaidWithoutThem_data();
    void missingMarksSayWhatTheJournalSaidWithoutThem();
    void aReplayInsideAnActionIsRefused();
    void aReplayEndsAnActionThatRunsWithoutALoop();
    void anActionIsRepeatedInTheCurrentView();
    void aReplayWritesTheJournalOfItsOwn();
};

void JournalReplayerTest::stepsGoToTheActionOfTheirCommand()
{
    Fixture f;
    f.Command(L"Erase").Point(7, 5);
    f.records.push_back({3, ValueRecord{InputState::IS_Length, L"12", 12}});
    f.End(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QVERIFY(result.unfinishedCommands.empty());
    QCOMPARE(f.log, (Log{"Erase.begin", "Erase.point 7 on 5", "Erase.value 1 12 12", "Erase.end",
                         "Erase.delete"}));
}

void JournalReplayerTest::theEventLoopIsOffMeanwhile()
{
    Fixture f;
    f.Command(L"Line").End(1);
    f.Replay();
    QCOMPARE(f.loop.GetRunCount(), 0);

    f.Choose("Line");

    QCOMPARE(f.loop.GetRunCount(), 1);
}

void JournalReplayerTest::anActionEndsAtItsMark()
{
    Fixture f;
    f.Command(L"Line").End(1).Command(L"Undo").Undo(1).End(2);

    f.Replay();

    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo", "undo 1"}));
}

void JournalReplayerTest::aCommandIsJudgedWhenTheOneBeforeItHasEnded()
{
    Fixture f;
    f.isDisabled["Erase"] = true;
    f.scripts["Line"].onEnd = [&f] { f.isDisabled["Erase"] = false; };
    f.Command(L"Line").Command(L"Erase").End(2);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QVERIFY(f.Has("Erase.begin"));
}

void JournalReplayerTest::aPlainCommandInsideAnActionRunsBesideIt()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Undo").Undo(1).End(3).Point(2).End(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Undo", "undo 1", "Line.point 2", "Line.end",
                         "Line.delete"}));
}

void JournalReplayerTest::aPlainCommandThatEndedLaterRunsAfterTheAction()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Undo").End(1).Undo(1).End(3);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log,
             (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete", "Undo", "undo 1"}));
}

void JournalReplayerTest::aCommandRecordedWhileAnotherWasBeingEndedCountsAsAfterIt()
{
    Fixture f;
    f.Command(L"Line").Command(L"Erase").Point(1).End(1).Point(2, 1).End(2);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete", "Erase.begin",
                         "Erase.point 2 on 1", "Erase.end", "Erase.delete"}));
}

void JournalReplayerTest::commandsThatWaitedForOneAnotherRunInOrder()
{
    Fixture f;
    f.Command(L"Line").Command(L"Undo").Command(L"Erase").Command(L"Line");
    f.End(1).Undo(1).End(2).End(3).Point(9).End(4);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Undo", "Erase.begin", "undo 1",
                         "Erase.end", "Erase.delete", "Line.begin", "Line.point 9", "Line.end",
                         "Line.delete"}));
}

void JournalReplayerTest::aRefusedCommandIsNotRun()
{
    Fixture f;
    f.Command(L"Undo").End(1, true).Command(L"Unknown").End(2, true);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QVERIFY(f.log.empty());
}

void JournalReplayerTest::aRefusedCommandEndsNothing()
{
    Fixture f;
    f.Command(L"Line").Command(L"Undo").End(2, true).Point(1).End(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete"}));
}

void JournalReplayerTest::anUnfinishedActionKeepsItsSteps()
{
    Fixture f;
    f.Command(L"Line").Point(1).Point(2);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(result.unfinishedCommands, (std::vector<std::wstring>{L"Line"}));
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.point 2", "Line.end", "Line.delete"}));
    QVERIFY(IActionManager::CurrentAction() == nullptr);
}

void JournalReplayerTest::anUnfinishedActionEndsBeforeTheNext()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Erase").Point(2, 1).End(3);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(result.unfinishedCommands, (std::vector<std::wstring>{L"Line"}));
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete", "Erase.begin",
                         "Erase.point 2 on 1", "Erase.end", "Erase.delete"}));
}

void JournalReplayerTest::aPlainCommandBesideAnUnfinishedActionRunsBesideIt()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Undo").Undo(1).End(3).Point(2);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Undo", "undo 1", "Line.point 2", "Line.end",
                         "Line.delete"}));
}

void JournalReplayerTest::anUnfinishedPlainCommandIsRepeatedIfItsResultStands()
{
    Fixture f;
    f.Command(L"Undo").Undo(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(result.unfinishedCommands, (std::vector<std::wstring>{L"Undo"}));
    QCOMPARE(f.log, (Log{"Undo", "undo 1"}));
}

void JournalReplayerTest::anUnfinishedPlainCommandWithoutResultIsNotRepeated()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Undo");

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(result.unfinishedCommands, (std::vector<std::wstring>{L"Line", L"Undo"}));
    QVERIFY(!f.Has("Undo"));
}

void JournalReplayerTest::unfinishedCommandsAreListedInOrder()
{
    Fixture f;
    f.Command(L"Line").Command(L"Zoom").End(2).Command(L"Erase").Command(L"Undo").End(4, true);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(result.unfinishedCommands, (std::vector<std::wstring>{L"Line", L"Erase"}));
}

void JournalReplayerTest::anActionThatEndsItselfNeedsNoMark()
{
    Fixture f;
    f.scripts["Line"].isFinished = true;
    f.Command(L"Line").Command(L"Erase").End(1).Point(1, 1).End(2);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.end", "Line.delete", "Erase.begin",
                         "Erase.point 1 on 1", "Erase.end", "Erase.delete"}));
}

void JournalReplayerTest::selectionsPropertiesAndUndosGoToTheTarget()
{
    Fixture f;
    f.records = {{1, SelectionRecord{{4, 2}}},
                 {2, PropertyRecord{L"drawing", L"name", L"plan"}},
                 {3, UndoRecord{5}}};

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"select 2", "property plan", "undo 5"}));
}

void JournalReplayerTest::theTargetIsToldHowFarTheReplayHasCome()
{
    Fixture f;
    f.Command(L"Line").Point(1).End(1);

    const JournalReplayResult result = f.Replay();

    QVERIFY(!result.isStopped);
    QCOMPARE(f.progress, (Log{"0 of 3", "1 of 3", "2 of 3"}));
}

void JournalReplayerTest::theTargetMayStopTheReplay()
{
    Fixture f;
    f.Command(L"Line").Point(1).Point(2).End(1);
    f.stopAt = 2;

    const JournalReplayResult result = f.Replay();

    QVERIFY(result.isStopped);
    QCOMPARE(FailureOf(result), QString());
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete"}));
}

void JournalReplayerTest::commandsGetTheirParameters()
{
    Fixture f;
    CommandParameters seen;
    ICommandManager::Get()->AddCommand(MakeOwner<Command>(
        L"Colour", Command::Kind::Plain, [&seen](IUiView*, const CommandParameters& parameters) {
            seen = parameters;
            return OwnerPtr<IAction>();
        }));
    CommandParameters parameters;
    parameters.Add(L"Colour", CommandParameterValue(7));
    f.records = {{1, CommandRecord{L"Colour", parameters}}, {1, EndRecord{1, false}}};

    f.Replay();

    QCOMPARE(seen, parameters);
}

void JournalReplayerTest::aPlainCommandThatWaitedAndDidNotGetItsMarkIsRepeated()
{
    Fixture f;
    f.Command(L"Line").Point(1).Command(L"Undo").End(1).Undo(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString());
    QVERIFY(f.log ==
            (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete", "Undo", "undo 1"}));
}

void JournalReplayerTest::missingMarksSayWhatTheJournalSaidWithoutThem_data()
{
    QTest::addColumn<Writing>("write");
    QTest::addColumn<QString>("marks");
    const auto row = [](const char* name, const Writing& write, const char* marks) {
        QTest::newRow(name) << write << QString(marks);
    };
    row(
        "whole", [](Fixture& f) { f.Command(L"Line").Point(1).End(1); }, "");
    row(
        "an action", [](Fixture& f) { f.Command(L"Line").Point(1); }, "1 done");
    row(
        "an action that was to be ended",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Erase"); }, "1 done, 3 done");
    row(
        "two that waited",
        [](Fixture& f) { f.Command(L"Line").Command(L"Erase").Command(L"Line"); },
        "1 done, 2 done, 3 done");
    row(
        "an action that another one followed",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Erase").Point(2, 1).End(3); }, "");
    row(
        "an action that another one followed at once",
        [](Fixture& f) { f.Command(L"Line").Command(L"Erase").Point(2, 1); }, "2 done");
    row(
        "both of them",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Erase").Point(2, 1); }, "3 done");
    row(
        "a plain command without result", [](Fixture& f) { f.Command(L"Undo"); }, "1 refused");
    row(
        "a plain command with its result",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Undo").Undo(1); }, "3 done, 1 done");
    row(
        "a plain command that waited",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Undo").End(1).Undo(1); }, "3 done");
    row(
        "a plain command beside an action",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Zoom").End(3).Point(2); }, "1 done");
    row(
        "one that was refused",
        [](Fixture& f) { f.Command(L"Line").Point(1).Command(L"Erase").End(3, true); }, "1 done");
}

void JournalReplayerTest::missingMarksSayWhatTheJournalSaidWithoutThem()
{
    QFETCH(Writing, write);
    QFETCH(QString, marks);
    Fixture f;
    write(f);

    const JournalReplayResult broken = f.Replay();
    const Log before = std::exchange(f.log, {});
    QStringList found;
    for (const EndRecord& mark : broken.missingMarks)
    {
        found << QString::number(mark.command) + (mark.isRefused ? " refused" : " done");
        f.End(mark.command, mark.isRefused);
    }
    const JournalReplayResult completed = f.Replay();

    QCOMPARE(found.join(", "), marks);
    QCOMPARE(FailureOf(broken), QString());
    QCOMPARE(FailureOf(completed), QString());
    QVERIFY(f.log == before);
    QVERIFY(completed.missingMarks.empty());
}

void JournalReplayerTest::aReplayInsideAnActionIsRefused()
{
    Fixture f;
    f.Command(L"Undo").End(1);
    QString failure;
    f.loop.Post([&] { failure = FailureOf(f.Replay()); });

    f.Choose("Line");

    QCOMPARE(failure, QString("a command is running"));
    QVERIFY(!f.Has("Undo"));
}

void JournalReplayerTest::aReplayEndsAnActionThatRunsWithoutALoop()
{
    Fixture f;
    ActionManager::SetEventLoop(nullptr);
    f.Choose("Erase");
    f.Point(1);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString("record 1: a point without a running command"));
    QCOMPARE(f.log, (Log{"Erase.begin", "Erase.end", "Erase.delete"}));
}

void JournalReplayerTest::anActionIsRepeatedInTheCurrentView()
{
    Fixture f;
    RecordingView other(2);
    f.GetViews().AddView(&other);
    f.GetViews().SetCurrentView(&other);
    f.Command(L"Line").End(1);

    f.Replay();

    QCOMPARE(f.scripts["Line"].pView, static_cast<IUiView*>(&other));
    f.GetViews().RemoveView(&other);
}

void JournalReplayerTest::aReplayWritesTheJournalOfItsOwn()
{
    Fixture f;
    f.records = {{3, CommandRecord{L"Line", {}}}, {8, CommandRecord{L"Zoom", {}}},
                 {8, EndRecord{8, false}},        {3, EndRecord{3, false}},
                 {9, CommandRecord{L"Undo", {}}}, {9, EndRecord{9, true}}};

    f.Replay();

    QCOMPARE(
        JournalManager::GetInstance().GetLastLines(),
        (Log{R"({"n":1,"kind":"command","id":"Line"})", R"({"n":2,"kind":"command","id":"Zoom"})",
             R"({"n":2,"kind":"end","result":"done"})",
             R"({"n":1,"kind":"end","result":"done"})"}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalReplayerTest);
#include "JournalReplayerTest.moc"

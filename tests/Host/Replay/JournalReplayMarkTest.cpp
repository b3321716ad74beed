#include "Replay/JournalReplayer.h"

#include "Host/Replay/ReplayFixture.h"
#include "Journal/JournalFormat.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

using Fixture = ReplayFixture;

QString ReasonOf(const JournalReplayResult& result)
{
    return QString::fromStdString(result.failure);
}

}

/// How a replay treats the records of version 2.
class JournalReplayMarkTest : public QObject
{
    Q_OBJECT

private slots:
    void redosAndMarksGoToTheTarget();
    void headerAndCloseDoNothing();
    void anUnfinishedPlainCommandIsRepeatedIfItsMarkOrRedoStands_data();
    void anUnfinishedPlainCommandIsRepeatedIfItsMarkOrRedoStands();
    void commandsCanTellAReplay();
    void aTargetNeedNotKnowMarksAndRedos();
};

void JournalReplayMarkTest::redosAndMarksGoToTheTarget()
{
    Fixture f;
    f.records = {{1, RedoRecord{5}}, {2, MarkRecord{"a1", 7}}};

    QCOMPARE(ReasonOf(f.Replay()), QString());

    QCOMPARE(f.log, (Log{"redo 5", "mark a1"}));
}

void JournalReplayMarkTest::headerAndCloseDoNothing()
{
    Fixture f;
    f.records = {{0, HeaderRecord{}}, {1, CloseRecord{}}};

    const JournalReplayResult result = f.Replay();

    QCOMPARE(ReasonOf(result), QString());
    QCOMPARE(result.repeatedCount, std::size_t(2));
    QCOMPARE(f.log, Log());
}

void JournalReplayMarkTest::anUnfinishedPlainCommandIsRepeatedIfItsMarkOrRedoStands_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("mark") << QByteArray(R"({"n":2,"kind":"mark","digest":"a1"})");
    QTest::newRow("redo") << QByteArray(R"({"n":2,"kind":"redo","entity":5})");
}

void JournalReplayMarkTest::anUnfinishedPlainCommandIsRepeatedIfItsMarkOrRedoStands()
{
    QFETCH(QByteArray, line);
    Fixture f;
    JournalRecord record;
    std::string error;
    QVERIFY(JournalFormat::FromLine(line.toStdString(), record, error));
    f.Command(L"Zoom");
    f.records.push_back(record);

    f.Replay();

    QVERIFY(f.Has("Zoom"));
}

void JournalReplayMarkTest::commandsCanTellAReplay()
{
    Fixture f;
    bool isReplaying = false;
    f.AddPlain("Ask", [&] { isReplaying = JournalReplayer::IsReplaying(); });
    f.Command(L"Ask").End(1);

    f.Replay();
    QVERIFY(isReplaying);
    QVERIFY(!JournalReplayer::IsReplaying());

    f.Choose("Ask");
    QVERIFY(!isReplaying);
}

void JournalReplayMarkTest::aTargetNeedNotKnowMarksAndRedos()
{
    struct PlainTarget final : IJournalReplayTarget
    {
        bool ReplaySelection(const SelectionRecord&) override { return true; }
        bool ReplayProperty(const PropertyRecord&) override { return true; }
        bool VerifyUndo(const UndoRecord&) override { return false; }
    } target;
    const std::vector<JournalRecord> records = {
        {1, RedoRecord{5}}, {2, MarkRecord{"0f", 7}}, {3, UndoRecord{6}}};

    QCOMPARE(ReasonOf(JournalReplayer::Replay(records, target)),
             QString("record 3: the undo had a different result: expected entity 6"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalReplayMarkTest);
#include "JournalReplayMarkTest.moc"

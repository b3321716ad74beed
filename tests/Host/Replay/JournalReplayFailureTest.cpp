#include "Host/Replay/ReplayFixture.h"
#include "Journal/JournalFormat.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <stdexcept>

namespace vesk
{

namespace
{

using Fixture = ReplayFixture;

QString FailureOf(const JournalReplayResult& result)
{
    return QString::fromStdString(result.failure);
}

}

/// Replays of journals that fail before their end.
class JournalReplayFailureTest : public QObject
{
    Q_OBJECT

private slots:
    void aStepBehindTheMarkIsAFailure();
    void whatCannotBeDoneIsNamed_data();
    void whatCannotBeDoneIsNamed();
    void aFailureStopsTheReplayAndEndsTheAction();
    void aValueThatCannotBeRepeatedIsAFailure();
    void anExceptionStopsTheReplayAndEndsTheAction();
    void aDisabledCommandIsAFailure();
    void whatWasRepeatedIsCounted();
    void aCommandThatCannotDoWhatItsParametersSayIsAFailure();
};

void JournalReplayFailureTest::aStepBehindTheMarkIsAFailure()
{
    Fixture f;
    f.Command(L"Line").End(1).Point(1);

    QCOMPARE(FailureOf(f.Replay()), QString("record 2: a point without a running command"));
}

void JournalReplayFailureTest::whatCannotBeDoneIsNamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("failure");
    QTest::newRow("unknown command") << R"({"n":12,"kind":"command","id":"Sketcher.Foo"})"
                                     << R"(record 12: unknown command "Sketcher.Foo")";
    QTest::newRow("point without action") << R"({"n":12,"kind":"point","point":[1,2,3]})"
                                          << "record 12: a point without a running command";
    QTest::newRow("value without action")
        << R"({"n":12,"kind":"value","field":"length","text":"1","value":1})"
        << "record 12: a value without a running command";
    QTest::newRow("unknown property")
        << R"({"n":12,"kind":"property","object":"layer","property":"name","value":"a"})"
        << R"(record 12: the property "name" of "layer" cannot be set)";
    QTest::newRow("missing entity") << R"({"n":12,"kind":"selection","entities":[13]})"
                                    << "record 12: an entity to be selected does not exist";
    QTest::newRow("another undo") << R"({"n":12,"kind":"undo","entity":13})"
                                  << "record 12: the undo had a different result: expected "
                                     "entity 13, actual 5";
    QTest::newRow("another redo") << R"({"n":12,"kind":"redo","entity":13})"
                                  << "record 12: the redo had a different result: expected "
                                     "entity 13, actual 5";
    QTest::newRow("another drawing")
        << R"({"n":12,"kind":"mark","digest":"0f"})"
        << "record 12: the drawing is different: expected 0f, actual a1";
}

void JournalReplayFailureTest::whatCannotBeDoneIsNamed()
{
    QFETCH(QString, line);
    QFETCH(QString, failure);
    Fixture f;
    JournalRecord record;
    std::string error;
    QVERIFY(JournalFormat::FromLine(line.toStdString(), record, error));
    f.records = {record};

    QCOMPARE(FailureOf(f.Replay()), failure);
}

void JournalReplayFailureTest::aFailureStopsTheReplayAndEndsTheAction()
{
    Fixture f;
    f.scripts["Line"].canReplay = false;
    f.Command(L"Line").Point(1).Point(2).End(1).Command(L"Undo").End(4);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result), QString("record 2: the point cannot be replayed"));
    QCOMPARE(f.log, (Log{"Line.begin", "Line.point 1", "Line.end", "Line.delete"}));
}

void JournalReplayFailureTest::aValueThatCannotBeRepeatedIsAFailure()
{
    Fixture f;
    f.scripts["Line"].canReplay = false;
    f.Command(L"Line");
    f.records.push_back({2, ValueRecord{InputState::IS_Length, L"12", 12}});

    QCOMPARE(FailureOf(f.Replay()), QString("record 2: the value cannot be replayed"));
}

void JournalReplayFailureTest::anExceptionStopsTheReplayAndEndsTheAction()
{
    Fixture f;
    f.AddPlain("Fail", [] { throw std::runtime_error("command"); });
    f.Command(L"Line").Point(1).Command(L"Fail").End(3).End(1);

    QVERIFY_EXCEPTION_THROWN(f.Replay(), std::runtime_error);

    QVERIFY(f.log == (Log{"Line.begin", "Line.point 1", "Fail", "Line.end", "Line.delete"}));
    QVERIFY(ActionManager::GetRunningCommandId().empty());
}

void JournalReplayFailureTest::aDisabledCommandIsAFailure()
{
    Fixture f;
    f.isDisabled["Undo"] = true;
    f.Command(L"Line").Command(L"Undo").End(1).End(2);

    QCOMPARE(FailureOf(f.Replay()), QString(R"(record 2: the command "Undo" is disabled)"));
    QVERIFY(!f.Has("Undo"));
}

void JournalReplayFailureTest::whatWasRepeatedIsCounted()
{
    Fixture f;
    f.isDisabled["Undo"] = true;
    f.Command(L"Line").Point(1).End(1).Command(L"Undo").End(3).Command(L"Zoom").End(4);

    const JournalReplayResult result = f.Replay();

    QCOMPARE(result.failedNumber, 3);
    QCOMPARE(result.repeatedCount, std::size_t(3));
    f.isDisabled.clear();
    const JournalReplayResult whole = f.Replay();
    QCOMPARE(whole.failedNumber, 0);
    QCOMPARE(whole.repeatedCount, f.records.size());
}

void JournalReplayFailureTest::aCommandThatCannotDoWhatItsParametersSayIsAFailure()
{
    Fixture f;
    f.Command(L"Zoom").End(1).Command(L"Undo").End(2);
    f.impossible = L"Undo";

    const JournalReplayResult result = f.Replay();

    QCOMPARE(FailureOf(result),
             QString(R"(record 2: the command "Undo" cannot do what its parameters say)"));
    QVERIFY(f.log == (Log{"Zoom"}));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalReplayFailureTest);
#include "JournalReplayFailureTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace
{

/// Longer than any test.
constexpr int Days = 1000000000;

/// Gives the marks of a journal these times, in order; the last one to all that are left.
QByteArray WithTimes(const QByteArray& journal, const QList<int>& times)
{
    const QRegularExpression time(QStringLiteral("\"t\":\\d+"));
    const QString text = QString::fromUtf8(journal);
    QString timed;
    int end = 0;
    int count = 0;
    for (auto matches = time.globalMatch(text); matches.hasNext();)
    {
        const QRegularExpressionMatch match = matches.next();
        timed += text.mid(end, match.capturedStart() - end);
        timed += QStringLiteral("\"t\":%1").arg(times[qMin(count++, times.size() - 1)]);
        end = match.capturedEnd();
    }
    return (timed + text.mid(end)).toUtf8();
}

}

/// Replays that somebody watches: at the speed of the recording, up to a record, in a window that
/// stays.
class WatchedReplayTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init()
    {
        ScenarioTest::init();
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).DrawLine(0, 10, 50, 10);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
    }

    void itTakesAsLongAsTheRecording()
    {
        SetTimes({100, 900, 1000, 1500});
        QElapsedTimer elapsed;
        elapsed.start();

        const Outcome outcome = Replay({"--speed", "real"});

        QVERIFY(elapsed.elapsed() >= 1500);
        QCOMPARE(outcome.code, 0);
        QCOMPARE(ReadLines(Replayed()).size(), 2);
    }

    void aPauseIsAPause()
    {
        SetTimes({0, 0, Days});
        RunningSketcher sketcher({"--replay", Journal(), "--speed", "real", "--model", Replayed()},
                                 Ui());

        QVERIFY(WaitForEntities(1));

        QCOMPARE(sketcher.Terminate().code, 0);
        QCOMPARE(ReadLines(Replayed()).size(), 1);
    }

    void atFullSpeedThereIsNoPause_data()
    {
        QTest::addColumn<QStringList>("options");

        QTest::newRow("by default") << QStringList();
        QTest::newRow("asked for") << QStringList({"--speed", "max"});
    }

    void atFullSpeedThereIsNoPause()
    {
        QFETCH(QStringList, options);
        SetTimes({0, 0, Days});

        QCOMPARE(Replay(options).code, 0);

        QCOMPARE(ReadLines(Replayed()).size(), 2);
    }

    void itEndsAfterTheRecordThatIsAskedFor_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("lines");

        QTest::newRow("first point") << "2" << QStringList() << 0;
        QTest::newRow("second point") << "4" << QStringList() << 1;
        QTest::newRow("its mark") << "5" << QStringList() << 1;
        QTest::newRow("beyond the end") << "1000" << QStringList() << 2;
        QTest::newRow("before a pause") << "5" << QStringList({"--speed", "real"}) << 1;
    }

    void itEndsAfterTheRecordThatIsAskedFor()
    {
        QFETCH(QString, last);
        QFETCH(QStringList, options);
        QFETCH(int, lines);
        SetTimes({0, 0, Days});

        QCOMPARE(Replay(options + QStringList({"--until", last})).code, 0);

        QCOMPARE(ReadLines(Replayed()).size(), lines);
    }

    void theWindowStaysAtThatRecord()
    {
        RunningSketcher sketcher({"--replay", Journal(), "--until", "5", "--stay"}, Ui());

        QVERIFY(WaitForEntities(1));

        QCOMPARE(sketcher.Terminate().code, 0);
    }

    void theWindowStaysAtAFailureWhichIsTheExitCode()
    {
        const auto marks = RecordsOf<vesk::MarkRecord>(ReadJournal(Journal()));
        const QByteArray last = QByteArray::fromStdString(marks.back().digest);
        WriteFile(Journal(), ReadBytes(Journal()).replace(last, QByteArray(64, '0')));
        RunningSketcher sketcher({"--replay", Journal(), "--stay"}, Ui());

        QVERIFY(WaitForEntities(2));

        const Outcome outcome = sketcher.Terminate();
        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.error.contains("the drawing is different"), qPrintable(outcome.error));
    }

private:
    QString Replayed() const { return m_pFixture->File("replayed"); }
    QString Ui() const { return m_pFixture->File("ui"); }

    void SetTimes(const QList<int>& times) const
    {
        WriteFile(Journal(), WithTimes(ReadBytes(Journal()), times));
    }

    Outcome Replay(const QStringList& options) const
    {
        return RunSketcher(QStringList({"--replay", Journal(), "--model", Replayed()}) + options);
    }

    bool WaitForEntities(int count) const
    {
        const QByteArray shown = "\"entities\": " + QByteArray::number(count);
        return QTest::qWaitFor([&] { return ReadBytes(Ui()).contains(shown); },
                               vesk::test::PatienceMs);
    }
};

VESK_TESTS(WatchedReplayTest);
#include "WatchedReplayTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");
const QString s_erase = QStringLiteral("Sketcher.Erase");

/// Produces every kind of record, with values without an exact decimal representation.
void DrawSomething(ScriptedUser& user)
{
    user.Click(s_line).ClickAt(-30, -20).Type("33.333333333").Press(Qt::Key_Tab);
    user.Type("12.34567").Press(Qt::Key_Return);
    user.MoveTo(71, 43).Type("20.1").Press(Qt::Key_Return);
    user.ClickAt(-77, 90).Click("Sketcher.Undo").ClickAt(-80, 91).Click("Sketcher.ZoomAll");
    user.Click(s_erase).ClickAt(-30, -20).Press(Qt::Key_Escape);
}

/// Without the program and the times, which are those of the recording.
QList<QByteArray> SortedLines(const QString& path)
{
    QString journal = QString::fromUtf8(ReadBytes(path));
    journal.remove(QRegularExpression(
        QStringLiteral("(,\"program\":\"[^\"]*\")?,\"time\":\"[^\"]*\"|,\"t\":\\d+")));
    QList<QByteArray> lines = journal.toUtf8().split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

}

/// Replaying the journals of whole sessions.
class ReplayTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void init()
    {
        ScenarioTest::init();
        ScriptedUser user;
        DrawSomething(user);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QVERIFY(!ReadLines(m_pFixture->File("model")).isEmpty());
    }

    void replayGivesTheSameModelToTheLastBit_data()
    {
        QTest::addColumn<QStringList>("environment");

        QTest::newRow("as drawn") << QStringList();
        QTest::newRow("another locale") << QStringList{"LC_ALL=de_DE.UTF-8", "LANG=de_DE.UTF-8"};
        QTest::newRow("another scale") << QStringList{"QT_SCALE_FACTOR=2"};
    }

    void replayGivesTheSameModelToTheLastBit()
    {
        QFETCH(QStringList, environment);

        const Outcome outcome = RunSketcher(
            {"--replay", Journal(), "--model", Replayed(), "--log", m_pFixture->File("log2")},
            environment);

        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(ReadBytes(Replayed()), ReadBytes(m_pFixture->File("model")));
        QCOMPARE(ReadBytes(m_pFixture->File("log2")), QByteArray());
    }

    void replayRecordsWhatItRepeats()
    {
        const QString again = m_pFixture->File("again");

        const Outcome outcome = RunSketcher({"--replay", Journal(), "--journal", again});

        // Where one command ended another, only the order of completion mark and record may differ.
        QCOMPARE(outcome.code, 0);
        QCOMPARE(SortedLines(again), SortedLines(Journal()));
    }

    void everyCutLeavesWhatWasFinished()
    {
        const QByteArray whole = ReadBytes(Journal());
        const QList<QByteArray> lines = whole.split('\n');
        QByteArray cut = lines.front() + '\n';
        QVERIFY(cut == vesk::HeaderOf(whole));
        int drawnBefore = 0;

        for (const QByteArray& line : lines.mid(1, 8))
        {
            // A killed process leaves at most a partial last line.
            cut += line + '\n';
            WriteFile(m_pFixture->File("cut"), cut + "{\"n\":99,\"ki");
            const Outcome outcome =
                RunSketcher({"--replay", m_pFixture->File("cut"), "--model", Replayed()});

            QCOMPARE(outcome.code, 0);
            QCOMPARE(outcome.error.trimmed(),
                     QStringLiteral("sketcher: unfinished in the journal: Sketcher.Line"));
            const int drawn = ReadLines(Replayed()).size();
            QVERIFY(drawn >= drawnBefore);
            drawnBefore = drawn;
        }
        QCOMPARE(drawnBefore, 1);
    }

    void unknownCommandIsNamed()
    {
        WriteFile(m_pFixture->File("bad"),
                  ReadBytes(Journal()) +
                      "{\"n\":1000,\"kind\":\"command\",\"id\":\"Nobody.Knows\"}\n");

        const Outcome outcome =
            RunSketcher({"--replay", m_pFixture->File("bad"), "--model", Replayed()});

        QCOMPARE(outcome.code, 3);
        QVERIFY2(outcome.error.contains("Nobody.Knows"), qPrintable(outcome.error));
        QCOMPARE(ReadBytes(Replayed()), ReadBytes(m_pFixture->File("model")));
    }

    void unusableJournalsAndOptionsAreToldInOneLine_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("bad line") << QStringList{"--replay", "BAD"};
        QTest::newRow("no journal") << QStringList{"--replay", "/nonexistent/journal"};
        QTest::newRow("unknown option") << QStringList{"--nonsense"};
        QTest::newRow("argument") << QStringList{"drawing"};
        QTest::newRow("missing value") << QStringList{"--replay"};
        QTest::newRow("unwritable") << QStringList{"--model", "/nonexistent/model", "--help"};
    }

    void unusableJournalsAndOptionsAreToldInOneLine()
    {
        QFETCH(QStringList, arguments);
        WriteFile(m_pFixture->File("bad"), "{\"n\":1}\n" + ReadBytes(Journal()));
        arguments.replaceInStrings("BAD", m_pFixture->File("bad"));

        const Outcome outcome = RunSketcher(arguments);

        QCOMPARE(outcome.code, 2);
        QCOMPARE(outcome.error.count('\n'), 1);
    }

private:
    QString Replayed() const { return m_pFixture->File("replayed"); }
};

VESK_TESTS(ReplayTest);
#include "ReplayTest.moc"

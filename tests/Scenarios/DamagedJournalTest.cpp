#include "Drawing.h"
#include "ScenarioTest.h"
#include "Session.h"
#include "SketcherProcess.h"

#include "Documents/Documents.h"
#include "Model/KeptContent.h"

#include "Command/ActionManager.h"
#include "Journal/JournalFormat.h"
#include "Replay/JournalReplayer.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QLoggingCategory>
#include <QRegularExpression>

#include <cstddef>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

QDir Corpus()
{
    return QDir(QStringLiteral(VESK_JOURNALS));
}

/// What a replay of a journal says and gives.
struct Repetition
{
    std::string complaint; ///< Empty if there is none.
    std::string digest;    ///< Of the drawing.
    std::string mark;      ///< The last digest in the journal; empty for none.
    std::size_t marks = 0; ///< Their number.
    bool isRead = false;
};

/// Replays one journal after the other in the same program.
class Repeater
{
public:
    explicit Repeater(const QString& folder) : m_path(folder + "/damaged"), m_session(Options()) {}

    Repetition Repeat(const QByteArray& journal)
    {
        WriteFile(m_path, journal);
        std::vector<JournalRecord> records;
        Repetition repetition;
        if (!JournalFormat::ReadFile(m_path.toStdString(), records, repetition.complaint))
            return repetition;
        repetition.isRead = true;
        ActionManager::RunCommand(Documents::NewId, {});
        repetition.complaint = JournalReplayer::Replay(records, m_session).failure;
        repetition.digest = m_session.VerifyMark(MarkRecord());
        const auto marks = RecordsOf<MarkRecord>(records);
        repetition.marks = marks.size();
        repetition.mark = marks.empty() ? std::string() : marks.back().digest;
        // The controls are refreshed once in a while.
        if (++m_count % 200 == 0)
            QCoreApplication::processEvents();
        return repetition;
    }

private:
    const QString m_path;
    Session m_session;
    int m_count = 0;
};

/// A journal as its lines, each with its terminator.
QList<QByteArray> LinesOf(const QByteArray& journal)
{
    QList<QByteArray> lines;
    for (int begin = 0; begin < journal.size(); begin += lines.back().size())
        lines << journal.mid(begin, journal.indexOf('\n', begin) + 1 - begin);
    return lines;
}

QByteArray WithoutLine(QList<QByteArray> lines, int index)
{
    lines.removeAt(index);
    return lines.join();
}

QByteArray WithLineTwice(QList<QByteArray> lines, int index)
{
    lines.insert(index, lines[index]);
    return lines.join();
}

QByteArray WithLineAfterTheNext(QList<QByteArray> lines, int index)
{
    if (index + 1 < lines.size())
        lines.swapItemsAt(index, index + 1);
    return lines.join();
}

using Damage = QByteArray (*)(QList<QByteArray> lines, int index);

}

Q_DECLARE_METATYPE(Damage)

/// A journal with a fault is refused, stopped at, or gives the drawing all the same: never another
/// one without a word.
///
/// A file of version 1 has no marks, by which another drawing would be noticed; only its reading is
/// tested.
class DamagedJournalTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    /// A platform without a screen says with each replay what it does not support.
    void initTestCase() { QLoggingCategory::setFilterRules("default.warning=false"); }

    void everyChangedByteIsNoticedOrHarmless_data() { AddJournals(); }

    void everyChangedByteIsNoticedOrHarmless()
    {
        QFETCH(QString, name);
        const QByteArray journal = Read(name);
        Repeater repeater(m_pFixture->File(""));
        const Repetition whole = repeater.Repeat(journal);
        QVERIFY2(whole.marks == 0 || whole.complaint.empty(), whole.complaint.c_str());

        for (int position = 0; position < journal.size(); ++position)
        {
            for (const int bit : BitsToFlip(position))
            {
                QByteArray damaged = journal;
                damaged[position] = static_cast<char>(damaged[position] ^ (1 << bit));
                const Repetition repetition = repeater.Repeat(damaged);
                QVERIFY2(IsHonest(repetition, whole),
                         qPrintable(QString("byte %1, bit %2").arg(position).arg(bit)));
            }
        }
    }

    void everyMissingOrMisplacedLineIsNoticedOrHarmless_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<Damage>("damage");
        for (const QString& name : Corpus().entryList({"*.jsonl"}))
        {
            QTest::newRow(qPrintable("dropped: " + name)) << name << Damage(&WithoutLine);
            QTest::newRow(qPrintable("doubled: " + name)) << name << Damage(&WithLineTwice);
            QTest::newRow(qPrintable("exchanged: " + name))
                << name << Damage(&WithLineAfterTheNext);
        }
    }

    void everyMissingOrMisplacedLineIsNoticedOrHarmless()
    {
        QFETCH(QString, name);
        QFETCH(Damage, damage);
        const QList<QByteArray> lines = LinesOf(Read(name));
        Repeater repeater(m_pFixture->File(""));
        const Repetition whole = repeater.Repeat(lines.join());
        QVERIFY2(whole.marks == 0 || whole.complaint.empty(), whole.complaint.c_str());

        // What a program does about a missing header is tested below.
        for (int line = 1; line < lines.size(); ++line)
        {
            const Repetition repetition = repeater.Repeat(damage(lines, line));
            QVERIFY2(IsHonest(repetition, whole),
                     qPrintable(QString("line %1: %2").arg(line + 1).arg(lines[line].constData())));
        }
    }

    void aMissingHeaderIsNoticedOrHarmless_data() { AddJournals(); }

    void aMissingHeaderIsNoticedOrHarmless()
    {
        QFETCH(QString, name);
        WriteFile(m_pFixture->File("headless"), WithoutLine(LinesOf(Read(name)), 0));
        const QString before = m_pFixture->File("before");
        const QString after = m_pFixture->File("after");

        QCOMPARE(RunSketcher({"--replay", Corpus().filePath(name), "--model", before}).code, 0);
        const Outcome outcome =
            RunSketcher({"--replay", m_pFixture->File("headless"), "--model", after});

        const bool isVersion1 = !Read(name).contains("\"kind\":\"journal\"");
        const bool isSame = outcome.code == 0 && ReadBytes(before) == ReadBytes(after);
        QVERIFY2(isVersion1 || isSame || (outcome.code != 0 && !outcome.error.isEmpty()),
                 qPrintable(outcome.error));
    }

    void everyPrefixGivesWhatWasDoneThere_data() { AddJournals(); }

    void everyPrefixGivesWhatWasDoneThere()
    {
        QFETCH(QString, name);
        const QByteArray journal = Read(name);
        Repeater repeater(m_pFixture->File(""));
        Repetition before = repeater.Repeat(journal);
        std::string next = before.mark;

        for (int size = journal.size(); size >= 0; --size)
        {
            const Repetition repetition = repeater.Repeat(journal.left(size));
            QVERIFY2(next.empty() || repetition.complaint.empty(), repetition.complaint.c_str());
            next = repetition.marks < before.marks ? before.mark : next;
            // A step is finished before its mark is written, and there is no other drawing between.
            const bool isDone = repetition.digest == repetition.mark || repetition.digest == next;
            QVERIFY2(isDone || next.empty() || repetition.marks == 0,
                     qPrintable(QString::number(size)));
            before = repetition;
        }
    }

    void cleanupTestCase()
    {
        qInfo() << m_count << "damaged journals," << m_unreadable << "refused by the reader,"
                << m_stopped << "stopped at a record," << m_harmless << "with the same drawing";
    }

private:
    static void AddJournals()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : Corpus().entryList({"*.jsonl"}))
            QTest::newRow(qPrintable(name)) << name;
    }

    static QByteArray Read(const QString& name)
    {
        KeptContent::Get().SetSource(Corpus().filePath(name));
        return ReadBytes(Corpus().filePath(name));
    }

    /// VESK_DAMAGE=all flips each bit of a byte.
    static std::vector<int> BitsToFlip(int position)
    {
        if (qEnvironmentVariable("VESK_DAMAGE") == "all")
            return {0, 1, 2, 3, 4, 5, 6, 7};
        return {position % 8};
    }

    /// True if the fault is named with its line or record, or the drawing is that of the last mark.
    bool IsHonest(const Repetition& repetition, const Repetition& whole)
    {
        static const QRegularExpression s_place("^(line|record) \\d+: ");
        ++m_count;
        if (!repetition.complaint.empty())
        {
            ++(repetition.isRead ? m_stopped : m_unreadable);
            return s_place.match(QString::fromStdString(repetition.complaint)).hasMatch();
        }
        ++m_harmless;
        const bool isMarked = repetition.digest == repetition.mark;
        return whole.mark.empty() || isMarked || repetition.digest == whole.digest;
    }

    int m_count = 0;
    int m_unreadable = 0;
    int m_stopped = 0;
    int m_harmless = 0;
};

VESK_TESTS(DamagedJournalTest);
#include "DamagedJournalTest.moc"

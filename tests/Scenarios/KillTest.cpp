#include "RandomUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Session.h"
#include "SittingWatch.h"

#include "Model/DocumentFile.h"
#include "Model/Sketch.h"
#include "Recovery/UnsavedWork.h"

#include "Foundation/FileRewriting.h"
#include "Foundation/Text.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QThread>

#include <deque>
#include <random>
#include <set>
#include <unistd.h>

using namespace vesk;

namespace
{

constexpr char FolderVariable[] = "VESK_KILLED_FOLDER";
constexpr char SeedVariable[] = "VESK_KILLED_SEED";

QString JournalIn(const QString& folder)
{
    return folder + "/journal";
}

/// Tells in another file what the journal was given, after it was.
class Witness final : public IJournalObserver
{
public:
    explicit Witness(const QString& path) : m_file(path)
    {
        if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
            ::_exit(1);
        JournalManager::GetInstance().AddObserver(this);
    }

    void OnRecord(const JournalRecord& record) override
    {
        m_file.write(QByteArray::fromStdString(JournalFormat::ToLine(record)) + '\n');
    }

    void OnUiObject(const IJournalUiObject&, int) override {}

private:
    QFile m_file;
};

/// Saves a growing drawing again and again.
class Saver final : public QObject
{
public:
    explicit Saver(const QString& path) : m_path(path) { startTimer(5); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        for (int i = 0; i < 20; ++i)
            m_sketch.AddLine({0, 0, 0}, {++m_length, 1, 0});
        RewriteFile(m_path.toStdString(), DocumentFile::ToText(m_sketch.GetContent()));
    }

private:
    const QString m_path;
    Sketch m_sketch;
    double m_length = 0;
};

/// Enough that a session is hardly ever over before it is killed.
constexpr unsigned SittingsPerSession = 12;

/// The session that is killed: a user who does anything.
[[noreturn]] void DrawUntilKilled(const QString& folder, unsigned seed)
{
    Witness witness(folder + "/witness");
    Saver saver(folder + "/drawing.vsk");
    SittingTally tally;
    SittingWatch watch(tally);
    ScriptedUser user;
    std::deque<RandomUser> users;
    for (unsigned i = 0; i < SittingsPerSession; ++i)
        users.emplace_back(seed * SittingsPerSession + i, user, watch).Plan();
    Options options;
    options.journal = JournalIn(folder);
    options.log = folder + "/log";
    user.Run(options);
    ::_exit(0);
}

/// VESK_KILLS selects another number.
unsigned CountKills()
{
    const int count = qEnvironmentVariableIntValue("VESK_KILLS");
    return count > 0 ? static_cast<unsigned>(count) : 30;
}

QByteArray WholeLines(const QByteArray& text)
{
    return text.left(text.lastIndexOf('\n') + 1);
}

/// What a replay says about commands that have no end.
QString UnfinishedIn(const std::vector<JournalRecord>& records)
{
    std::set<int> ended;
    for (const auto& end : RecordsOf<EndRecord>(records))
        ended.insert(end.command);
    QString text;
    for (const JournalRecord& record : records)
    {
        const auto* pCommand = std::get_if<CommandRecord>(&record.what);
        if (pCommand != nullptr && ended.count(record.number) == 0)
            text += QString::fromStdString(
                "sketcher: unfinished in the journal: " + ToUtf8(pCommand->commandId) + '\n');
    }
    return text;
}

}

/// A session that is killed at any moment loses nothing that was completed.
class KillTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("sketcher"));
        if (qEnvironmentVariableIsSet(FolderVariable))
            DrawUntilKilled(qEnvironmentVariable(FolderVariable),
                            qEnvironmentVariable(SeedVariable).toUInt());
    }

    void nothingCompletedIsLost_data()
    {
        QTest::addColumn<unsigned>("seed");

        for (unsigned seed = 1; seed <= CountKills(); ++seed)
            QTest::newRow(QByteArray::number(seed).constData()) << seed;
    }

    void nothingCompletedIsLost()
    {
        QFETCH(unsigned, seed);
        const QString folder = m_pFixture->File("killed");
        QVERIFY(QDir().mkpath(folder));

        KillAtRandom(folder, seed);

        const QString journal = JournalIn(folder);
        std::vector<JournalRecord> records;
        std::string error;
        QVERIFY2(JournalFormat::ReadFile(journal.toStdString(), records, error), error.c_str());
        const QByteArray bytes = ReadBytes(journal);
        const QByteArray told = WholeLines(ReadBytes(folder + "/witness"));
        QVERIFY(bytes.mid(bytes.indexOf('\n') + 1).startsWith(told));
        const Outcome outcome = RunSketcher({"--replay", journal});
        QVERIFY2(outcome.code == 0, qPrintable(outcome.error));
        QCOMPARE(outcome.error, UnfinishedIn(records));
        const QByteArray drawing = ReadBytes(folder + "/drawing.vsk");
        QVERIFY(drawing.isEmpty() || DocumentFile::FromText(drawing.toStdString()).outcome ==
                                         DocumentReading::Outcome::Whole);
        Note(bytes, records, !drawing.isEmpty());
    }

    void everyCutOfAJournalIsWhatWasCompletedBefore()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).DrawLine(0, 0, 0, 50).Click("Sketcher.Undo");
        user.Click("Sketcher.Redo").Click("Sketcher.ZoomAll");
        user.Click("Sketcher.Circle").ClickAt(0, 0).ClickAt(30, 0);
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        const QByteArray whole = ReadBytes(Journal());
        const QString cut = m_pFixture->File("cut");
        QVERIFY(whole.count('\n') > 25);

        for (int size = 0; size <= whole.size(); ++size)
        {
            WriteFile(cut, whole.left(size));
            std::vector<JournalLine> lines;
            std::string torn;
            std::string error;
            QVERIFY2(JournalFormat::ReadLines(cut.toStdString(), lines, torn, error),
                     error.c_str());
            QCOMPARE(static_cast<int>(lines.size()), whole.left(size).count('\n'));
            QCOMPARE(QByteArray::fromStdString(torn),
                     whole.left(size).mid(WholeLines(whole.left(size)).size()));
            const bool isAtLineEnd = size == 0 || whole[size - 1] == '\n';
            if (isAtLineEnd)
                VerifyCut(cut);
        }
    }

    void cleanupTestCase()
    {
        qInfo() << m_kills << "sessions killed," << m_ended << "after they had ended;" << m_records
                << "records read," << m_inCommands << "killed within a command," << m_unmarked
                << "between a record and its mark," << m_torn << "with a torn line;" << m_drawings
                << "drawing files read";
    }

private:
    /// Starts a session, and kills it soon after its journal has reached a random size.
    static void KillAtRandom(const QString& folder, unsigned seed)
    {
        std::mt19937 random(seed);
        const qint64 size = std::uniform_int_distribution<int>(1, 10000)(random);
        const auto delay = std::uniform_int_distribution<unsigned long>(0, 4000)(random);
        QProcess session;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(FolderVariable, folder);
        environment.insert(SeedVariable, QString::number(seed));
        session.setProcessEnvironment(environment);
        session.setProcessChannelMode(QProcess::MergedChannels);
        session.start(QCoreApplication::applicationFilePath(), {"KillTest"});
        QVERIFY(session.waitForStarted());
        QElapsedTimer waiting;
        waiting.start();
        while (QFileInfo(JournalIn(folder)).size() < size && waiting.elapsed() < test::PatienceMs &&
               !session.waitForFinished(0))
            QThread::usleep(100);
        QThread::usleep(delay);
        session.kill();
        session.waitForFinished();
    }

    /// A replay of the cut journal gives the drawing of its last mark, and what is completed in it
    /// ends with that mark.
    void VerifyCut(const QString& cut) const
    {
        const std::vector<JournalRecord> records = ReadJournal(cut);
        const auto marks = RecordsOf<MarkRecord>(records);
        const auto completed = RecordsOf<MarkRecord>(CompletedOf(records));
        QCOMPARE(completed.size(), marks.size());
        QCOMPARE(Session(m_pFixture->Replay(cut, m_pFixture->File("cut-model"))).Run(), 0);
    }

    void Note(const QByteArray& bytes, const std::vector<JournalRecord>& records, bool hasDrawing)
    {
        ++m_kills;
        m_records += static_cast<int>(records.size());
        m_drawings += hasDrawing ? 1 : 0;
        m_torn += bytes.isEmpty() || bytes.endsWith('\n') ? 0 : 1;
        m_inCommands += UnfinishedIn(records).isEmpty() ? 0 : 1;
        if (records.empty())
            return;
        const auto& last = records.back().what;
        m_ended += std::holds_alternative<CloseRecord>(last) ? 1 : 0;
        m_unmarked += std::holds_alternative<PointRecord>(last) ? 1 : 0;
    }

    int m_kills = 0;
    int m_ended = 0;
    int m_records = 0;
    int m_inCommands = 0;
    int m_unmarked = 0;
    int m_torn = 0;
    int m_drawings = 0;
};

VESK_TESTS(KillTest);
#include "KillTest.moc"

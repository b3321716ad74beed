#include "RandomUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Session.h"
#include "SittingWatch.h"

#include "Documents/Documents.h"
#include "Model/DocumentFile.h"
#include "Model/Sketch.h"
#include "Recovery/UnsavedWork.h"
#include "SketcherWindow.h"

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
#include <utility>

using namespace vesk;

namespace
{

constexpr char FolderVariable[] = "VESK_KILLED_FOLDER";
constexpr char SeedVariable[] = "VESK_KILLED_SEED";

QString JournalIn(const QString& folder)
{
    return folder + "/journal";
}

QString DrawingIn(const QString& folder)
{
    return folder + "/drawing.vsk";
}

/// True while a program writes the drawing, and after one was killed meanwhile.
bool IsHalfWritten(const QString& folder)
{
    return !QDir(folder).entryList({"drawing.vsk.*"}, QDir::Files).isEmpty();
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

/// Saves what has changed, again and again, also while a tool runs.
class Saver final : public QObject
{
public:
    Saver() { startTimer(20); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        if (ScriptedUser::FindWindow()->isWindowModified())
            ScriptedUser::FindButton("Sketcher.Save")->click();
    }
};

/// A drawing that takes a while to write.
QByteArray MakeDrawing()
{
    Sketch sketch;
    for (int i = 0; i < 1000; ++i)
        sketch.AddLine({i % 40 * 15.0 - 300, i / 40 * 20.0 - 250, 0},
                       {i % 7 * 50.0 - 150, i % 11 * 40.0 - 200, 0});
    return QByteArray::fromStdString(DocumentFile::ToText(sketch.GetContent()));
}

/// Enough that a session is hardly ever over before it is killed.
constexpr unsigned SittingsPerSession = 12;

/// The session that is killed: a user who does anything.
[[noreturn]] void DrawUntilKilled(const QString& folder, unsigned seed)
{
    Witness witness(folder + "/witness");
    const Saver saver;
    SittingTally tally;
    SittingWatch watch(tally);
    ScriptedUser user;
    std::deque<RandomUser> users;
    for (unsigned i = 0; i < SittingsPerSession; ++i)
        users.emplace_back(seed * SittingsPerSession + i, user, watch).Plan();
    Options options;
    options.journal = JournalIn(folder);
    options.document = DrawingIn(folder);
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

/// The digest of the drawing in a file; empty if the file is not whole.
std::string DigestOf(const QString& path)
{
    const DocumentReading reading = DocumentFile::FromText(ReadBytes(path).toStdString());
    return reading.outcome == DocumentReading::Outcome::Whole ? reading.digest : std::string();
}

/// What a journal says about the drawing file.
struct Savings
{
    std::string last;  ///< The digest of the drawing that was saved last; empty for none.
    std::string begun; ///< Of one of which nothing says that it was saved; empty for none.
};

Savings SavingsIn(const std::vector<JournalRecord>& records)
{
    Savings savings;
    int begun = 0;
    for (const JournalRecord& record : records)
    {
        const auto* pCommand = std::get_if<CommandRecord>(&record.what);
        if (pCommand != nullptr && pCommand->commandId == Documents::SaveId)
        {
            begun = record.number;
            savings.begun = Documents::GetSavedDigest(pCommand->parameters);
        }
        const auto* pEnd = std::get_if<EndRecord>(&record.what);
        if (pEnd != nullptr && pEnd->command == begun)
            savings.last = std::exchange(savings.begun, {});
    }
    return savings;
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
        WriteFile(DrawingIn(folder), MakeDrawing());
        const std::string before = DigestOf(DrawingIn(folder));

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
        VerifyDrawing(folder, before, records);
        Note(bytes, records, IsHalfWritten(folder));
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
                << "between a record and its mark," << m_torn << "with a torn line," << m_inSavings
                << "while it saved," << m_halfWritten << "of them while the file was written;"
                << m_savings << "had saved before";
    }

private:
    /// Starts a session, and kills it soon after its journal has reached a random size, or while it
    /// saves for the first, second or third time.
    static void KillAtRandom(const QString& folder, unsigned seed)
    {
        std::mt19937 random(seed);
        const qint64 size = std::uniform_int_distribution<int>(1, 10000)(random);
        const auto delay = std::uniform_int_distribution<unsigned long>(0, 4000)(random);
        const bool isSaving = seed % 2 == 0;
        int savings = std::uniform_int_distribution<int>(1, 3)(random);
        bool wasWriting = false;
        const auto isDue = [&] {
            if (!isSaving)
                return QFileInfo(JournalIn(folder)).size() >= size;
            const bool isWriting = IsHalfWritten(folder);
            savings -= isWriting && !wasWriting ? 1 : 0;
            wasWriting = isWriting;
            return savings == 0;
        };
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
        while (!isDue() && waiting.elapsed() < test::PatienceMs && !session.waitForFinished(0))
            QThread::usleep(isSaving ? 20 : 100);
        QThread::usleep(isSaving ? delay / 4 : delay);
        session.kill();
        session.waitForFinished();
    }

    /// The file has what it had before or what the session saved, and what is in no file is
    /// offered.
    static void VerifyDrawing(const QString& folder, const std::string& before,
                              const std::vector<JournalRecord>& records)
    {
        const std::string saved = DigestOf(DrawingIn(folder));
        const Savings savings = SavingsIn(records);
        const std::string last = savings.last.empty() ? before : savings.last;
        QVERIFY(!saved.empty());
        QVERIFY(saved == last || saved == savings.begun);
        const auto marks = RecordsOf<MarkRecord>(records);
        const bool isWorkLost = !marks.empty() && marks.back().digest != saved;
        const bool isOffered = FindUnsavedWork(JournalIn(folder)).has_value();
        QVERIFY(isOffered || !isWorkLost);
        QVERIFY(!isOffered || isWorkLost || !savings.begun.empty());
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

    void Note(const QByteArray& bytes, const std::vector<JournalRecord>& records,
              bool isHalfWritten)
    {
        ++m_kills;
        m_records += static_cast<int>(records.size());
        m_inSavings += isHalfWritten || !SavingsIn(records).begun.empty() ? 1 : 0;
        m_halfWritten += isHalfWritten ? 1 : 0;
        m_savings += SavingsIn(records).last.empty() ? 0 : 1;
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
    int m_inSavings = 0;
    int m_halfWritten = 0;
    int m_savings = 0;
};

VESK_TESTS(KillTest);
#include "KillTest.moc"

#include "Drawing.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "SketcherWindow.h"
#include "Support/FileSizeLimit.h"
#include "Support/SmallDisk.h"
#include "View/SketchView.h"

#include "HostUi/LayoutFile.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QStatusBar>

#include <csignal>
#include <memory>

using vesk::FileSizeLimit;
using vesk::SmallDisk;

namespace
{

const QString s_line = QStringLiteral("Sketcher.Line");

/// Enough lines that the files made from them occupy several pages.
QByteArray MakeJournal(int lineCount)
{
    QByteArray journal = "{\"n\":1,\"kind\":\"command\",\"id\":\"Sketcher.Line\"}\n";
    for (int i = 0; i <= lineCount; ++i)
        journal += QStringLiteral("{\"n\":%1,\"kind\":\"point\",\"point\":[%2,0,0]}\n")
                       .arg(i + 2)
                       .arg(i * 1.5)
                       .toLatin1();
    return journal + "{\"n\":1,\"kind\":\"end\",\"result\":\"done\"}\n";
}

QByteArray WholeLines(const QByteArray& text)
{
    return text.left(text.lastIndexOf('\n') + 1);
}

/// The complete walk takes minutes and is enabled through the environment; without it, only some
/// steps are taken.
bool IsWalkComplete()
{
    return qEnvironmentVariable("VESK_FULL_DISK") == QLatin1String("all");
}

void AddShortages()
{
    QTest::addColumn<bool>("isByPages");
    QTest::newRow("by bytes") << false;
    QTest::newRow("by pages") << true;
}

/// A folder with room for a limited number of bytes per file, or of pages, from Begin until End.
/// The steps are bytes or pages.
class Shortage
{
public:
    Shortage(bool isByPages, const QString& folder)
        : m_pDisk(isByPages ? std::make_unique<SmallDisk>(DiskPages) : nullptr),
          m_folder(isByPages ? m_pDisk->File("home") : folder)
    {
        QDir().mkpath(m_folder);
    }

    bool IsPossible() const { return m_pDisk == nullptr || m_pDisk->IsMounted(); }
    QString Folder() const { return m_folder; }
    int StepsOf(int size) const
    {
        return m_pDisk == nullptr ? size : (size + SmallDisk::PageSize - 1) / SmallDisk::PageSize;
    }

    /// Lets a file that already has `taken` steps grow by this many.
    void Begin(int steps, int taken = 0)
    {
        if (m_pDisk != nullptr)
            m_pDisk->LeavePages(steps);
        else
            m_pLimit = std::make_unique<FileSizeLimit>(static_cast<rlim_t>(taken + steps));
    }

    void End()
    {
        m_pLimit.reset();
        if (m_pDisk != nullptr)
            QFile::remove(m_pDisk->File("filler"));
    }

private:
    static constexpr int DiskPages = 16;

    std::unique_ptr<SmallDisk> m_pDisk;
    std::unique_ptr<FileSizeLimit> m_pLimit;
    QString m_folder;
};

QString PaneState()
{
    const auto* pState = ScriptedUser::FindWindow()->findChild<QLabel*>("JournalState");
    return pState->isVisible() ? pState->text() : QString();
}

}

/// Full disks, home folders that cannot be written, and termination requests.
class FullDiskTest final : public ScenarioTest
{
    Q_OBJECT

public:
    static void initMain() { SmallDisk::Prepare(); }

private slots:
    void initTestCase() { QCoreApplication::setApplicationName(QStringLiteral("sketcher")); }

    void whateverIsWrittenIsOldOrNew_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("isByPages");
        for (const char* pOption : {"--model", "--ui-tree", "--screenshot", "--journal"})
        {
            QTest::newRow(QByteArray(pOption) + " by bytes") << QString(pOption) << false;
            QTest::newRow(QByteArray(pOption) + " by pages") << QString(pOption) << true;
        }
    }

    void whateverIsWrittenIsOldOrNew()
    {
        QFETCH(QString, option);
        QFETCH(bool, isByPages);
        const QString journal = m_pFixture->File("repeated");
        const QString sample = m_pFixture->File("sample");
        WriteFile(journal, MakeJournal(isByPages ? 400 : 4));
        QCOMPARE(RunSketcher({"--replay", journal, option, sample}).code, 0);
        const QByteArray whole = ReadBytes(sample);
        std::unique_ptr<SmallDisk> pDisk;
        if (isByPages)
            pDisk = std::make_unique<SmallDisk>(whole.size() / SmallDisk::PageSize + 8);
        if (pDisk != nullptr && !pDisk->IsMounted())
            QSKIP("cannot mount a disk here; only the rows by bytes are run");
        const QString path = pDisk != nullptr ? pDisk->File("file") : m_pFixture->File("file");
        const int unit = isByPages ? SmallDisk::PageSize : 1;
        const int steps = (whole.size() + unit - 1) / unit;
        const int stride = isByPages || IsWalkComplete() ? 1 : std::max(1, steps / 6);

        // A journal is truncated before it is written, which frees the page it had.
        const bool isJournal = option == QLatin1String("--journal");
        const int own = isJournal && isByPages ? 1 : 0;

        for (int step = own; step < steps + stride; step += stride)
        {
            const int room = std::min(step, steps);
            if (pDisk != nullptr)
                QFile::remove(pDisk->File("filler"));
            WriteFile(path, "old");
            if (pDisk != nullptr)
                pDisk->LeavePages(room - own);
            const QStringList arguments{"--replay", journal, option, path};
            const Outcome outcome =
                isByPages ? RunSketcher(arguments) : RunSketcherWithin(room, arguments);

            const bool isWritten = room == steps;
            const QByteArray left = isJournal ? WholeLines(whole.left(room * unit)) : "old";
            QCOMPARE(ReadBytes(path), isWritten ? whole : left);
            QCOMPARE(outcome.code, isWritten ? 0 : 2);
            const QString line = "sketcher: cannot write " + path + '\n';
            QCOMPARE(outcome.error, isWritten ? QString() : line);
        }
    }

    void theLayoutIsOldOrNew_data() { AddShortages(); }

    void theLayoutIsOldOrNew()
    {
        QFETCH(bool, isByPages);
        ScriptedUser first;
        first.Until([] { return ScriptedUser::FindWindow()->isVisible(); });
        QCOMPARE(first.Run(Options()), 0);
        const QByteArray whole = ReadBytes(ScenarioFixture::LayoutFile());
        Shortage shortage(isByPages, m_pFixture->File("home"));
        if (!shortage.IsPossible())
            QSKIP("cannot mount a disk here; only the rows by bytes are run");
        const ScopedVariable home("XDG_CONFIG_HOME", shortage.Folder());
        const QString layout = ScenarioFixture::LayoutFile();
        const int steps = shortage.StepsOf(whole.size());
        const int stride = isByPages || IsWalkComplete() ? 1 : std::max(1, steps / 6);

        for (int room = 0; room <= steps; room += stride)
        {
            shortage.End();
            QVERIFY(vesk::LayoutFile::Write(layout, "old"));
            const QByteArray old = ReadBytes(layout);
            ScriptedUser user;
            user.Until([] { return ScriptedUser::FindWindow()->isVisible(); });
            user.Do([&] { shortage.Begin(room); });

            QCOMPARE(user.Run(Options()), 0);

            shortage.End();
            const QByteArray left = ReadBytes(layout);
            QCOMPARE(left == old, room < steps);
            QCOMPARE(vesk::LayoutFile::Read(layout).content, vesk::LayoutFile::Content::Layout);
        }
    }

    void theLogIsOldAndWhatCouldBeAdded_data() { AddShortages(); }

    void theLogIsOldAndWhatCouldBeAdded()
    {
        QFETCH(bool, isByPages);
        Shortage shortage(isByPages, m_pFixture->File("home"));
        if (!shortage.IsPossible())
            QSKIP("cannot mount a disk here; only the rows by bytes are run");
        Options options;
        options.log = shortage.Folder() + "/log";
        const QByteArray old = QByteArray(9, '.') + '\n';
        const int taken = shortage.StepsOf(old.size());
        const std::vector<int> rooms =
            isByPages ? std::vector{0, 1} : std::vector{0, 1, 2, 100, 500};
        for (const int room : rooms)
        {
            shortage.End();
            WriteFile(options.log, old);
            ScriptedUser user;
            user.Do([&] {
                shortage.Begin(room, taken);
                vesk::DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(m_pFixture.get());
                vesk::DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(
                    "file", 1, "function", std::wstring(2 * SmallDisk::PageSize, L'm'), L"", L"");
                vesk::DebugMessageMgr::GetDebugMessageMgr()->AddObserver(m_pFixture.get());
            });

            QCOMPARE(user.Run(options), 2);

            shortage.End();
            QVERIFY(ReadBytes(options.log).startsWith(old));
            QCOMPARE(shortage.StepsOf(ReadBytes(options.log).size()), taken + room);
        }
    }

    void theUserIsToldForAsLongAsNothingIsKept()
    {
        QStringList said;
        std::unique_ptr<FileSizeLimit> pFull;
        const auto note = [&said] {
            said << ScriptedUser::States() + "|" + PaneState() + "|" +
                        ScriptedUser::FindWindow()->statusBar()->currentMessage();
        };
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0).Do(note);
        user.Do([&] { pFull = std::make_unique<FileSizeLimit>(0); });
        user.DrawLine(0, 0, 0, 50).Until([] { return !PaneState().isEmpty(); }).Do(note);
        user.DrawLine(0, 0, 60, 50).Do([&pFull] { pFull.reset(); });
        user.DrawLine(0, 0, 70, 50).Until([] { return PaneState().isEmpty(); }).Do(note);

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(said.value(0), QStringLiteral("||"));
        QCOMPARE(said.value(1), QStringLiteral("日志未保存|操作没有存入日志文件|"
                                               "日志文件无法写入，从现在起所做的操作没有保存"));
        QCOMPARE(said.value(2), QStringLiteral("||日志文件又可写入，缺少的记录已补上"));
        QVERIFY(ReadLines(m_pFixture->File("model")).size() == 4);
        VerifyReplay();
    }

    void aSessionThatCouldNotKeepItsJournalEndsSo()
    {
        std::unique_ptr<FileSizeLimit> pFull;
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);
        user.Do([&] { pFull = std::make_unique<FileSizeLimit>(100); });
        user.DrawLine(0, 0, 0, 50);
        Options options;
        options.journal = m_pFixture->File("journal");

        QCOMPARE(user.Run(options), 2);
    }

    void aHomeThatCannotBeWrittenKeepsNobodyFromDrawing()
    {
        WriteFile(m_pFixture->File("home"), "no folder");
        const ScopedVariable config("XDG_CONFIG_HOME", m_pFixture->File("home/config"));
        const ScopedVariable data("XDG_DATA_HOME", m_pFixture->File("home/data"));
        QString said;
        ScriptedUser user;
        user.Until([] { return ScriptedUser::FindWindow()->isVisible(); });
        user.Do([&said] { said = ScriptedUser::States(); });
        user.DrawLine(0, 0, 50, 0).Until([] { return !PaneState().isEmpty(); });
        Options options;
        options.model = m_pFixture->File("model");

        const int code = user.Run(options);
        const Outcome named =
            RunSketcher({"--replay", options.model, "--log", m_pFixture->File("home/log")});

        QCOMPARE(code, 0);
        QCOMPARE(said, QStringLiteral("日志未保存；面板布局不会保存；警告未记录"));
        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
        QCOMPARE(named.code, 2);
    }

    void aRequestToEndEndsAsClosingDoes_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aRequestToEndEndsAsClosingDoes()
    {
        QFETCH(int, signal);
        const QString journal = m_pFixture->File("repeated");
        const QString model = m_pFixture->File("model");
        const QString picture = m_pFixture->File("picture.png");
        WriteFile(journal, MakeJournal(4));
        WriteFile(model, "old");
        RunningSketcher program({"--open", journal, "--model", model, "--screenshot", picture},
                                m_pFixture->File("ui"));
        QTRY_VERIFY(nlohmann::json::parse(ReadBytes(m_pFixture->File("ui")))["entities"] == 4);

        ::kill(static_cast<pid_t>(program.GetProcessId()), signal);
        const Outcome outcome = program.Wait();

        QCOMPARE(outcome.code, 0);
        QCOMPARE(outcome.error, QString());
        QCOMPARE(ReadLines(model).size(), 4);
        QVERIFY(ReadBytes(picture).startsWith("\x89PNG"));
        QVERIFY(QFileInfo::exists(ScenarioFixture::LayoutFile()));
    }

    void aRequestEndsARunningToolToo()
    {
        ScriptedUser user;
        user.Click(s_line).ClickAt(0, 0).ClickAt(50, 0).UntilRunning(s_line);
        user.Do([] { ::raise(SIGTERM); });
        user.Until([] { return !ScriptedUser::FindWindow()->isVisible(); });

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(ReadLines(m_pFixture->File("model")).size(), 1);
        const std::vector<vesk::JournalRecord> records = ReadJournal(Journal());
        QVERIFY(std::holds_alternative<vesk::EndRecord>(records.back().what));
    }
};

VESK_TESTS(FullDiskTest);
#include "FullDiskTest.moc"

#include "Drawing.h"
#include "PaneDriver.h"
#include "RandomUser.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "Session.h"
#include "SittingWatch.h"
#include "SketcherProcess.h"
#include "Support/TestValues.h"
#include "Support/XServer.h"

#include <QApplication>
#include <QDockWidget>
#include <QProcess>
#include <QStyleFactory>
#include <QTemporaryDir>

#include <set>
#include <unistd.h>

namespace
{

constexpr char FolderVariable[] = "VESK_RECORDED_FOLDER";

constexpr int ActsByDefault = 1000;

/// VESK_ACTS selects another number.
int CountActs()
{
    const int count = qEnvironmentVariableIntValue("VESK_ACTS");
    return count > 0 ? count : ActsByDefault;
}

/// The session that is recorded.
[[noreturn]] void Record(const QString& folder)
{
    SittingTally tally;
    SittingWatch watch(tally);
    ScriptedUser user;
    RandomUser random(20261123, user, watch);
    random.Plan(CountActs());
    Options options;
    options.journal = folder + "/journal";
    options.model = folder + "/model";
    options.log = folder + "/log";
    const int code = user.Run(options);
    WriteFile(folder + "/platform", QGuiApplication::platformName().toUtf8());
    WriteFile(folder + "/acts", QByteArray::number(tally.acts));
    ::_exit(code);
}

/// Something about the window or the application that a replay must not depend on.
using Setting = void (*)();

void FloatAllPanes()
{
    for (const QString& name : PaneDriver::Names())
    {
        PaneDriver::Dock(name).Show();
        PaneDriver::Widget(name).setFloating(true);
    }
    ScriptedUser::FindWindow()->show();
}

void ShrinkWindow()
{
    ScriptedUser::FindWindow()->resize(640, 480);
    ScriptedUser::FindWindow()->show();
}

void ChangeTheme()
{
    QPalette dark(Qt::black);
    dark.setColor(QPalette::Base, Qt::darkBlue);
    QApplication::setStyle(QStyleFactory::create("windows"));
    QApplication::setPalette(dark);
    QApplication::setFont(QFont("monospace", 20));
}

}

Q_DECLARE_METATYPE(Setting)

/// A long session in real windows, with everything that can be done in them, is replayed to the
/// last bit whatever language, scale, window or theme the replay has.
class LongSessionTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QCoreApplication::setApplicationName(QStringLiteral("sketcher"));
        if (qEnvironmentVariableIsSet(FolderVariable))
            Record(qEnvironmentVariable(FolderVariable));
        vesk::XServer server;
        QVERIFY2(server.Start(), qPrintable(server.GetError()));

        QProcess session;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(FolderVariable, m_folder.path());
        environment.insert("QT_QPA_PLATFORM", "xcb");
        environment.insert("DISPLAY", server.GetDisplay());
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(name, m_folder.filePath("home"));
        session.setProcessEnvironment(environment);
        session.setProcessChannelMode(QProcess::MergedChannels);
        session.start(QCoreApplication::applicationFilePath(), {"LongSessionTest"});
        session.waitForFinished(-1);

        QVERIFY2(session.exitStatus() == QProcess::NormalExit && session.exitCode() == 0,
                 session.readAll().constData());
        QCOMPARE(ReadBytes(m_folder.filePath("platform")), QByteArray("xcb"));
        m_records = ReadJournal(Recorded());
    }

    void theSessionHasEverythingInIt()
    {
        QStringList missing = RandomUser::AllCommands();
        for (const auto& command : RecordsOf<vesk::CommandRecord>(m_records))
            missing.removeAll(QString::fromStdWString(command.commandId));

        QVERIFY(ReadBytes(m_folder.filePath("acts")).toInt() >= CountActs());
        QVERIFY(!RecordsOf<vesk::UndoRecord>(m_records).empty());
        QVERIFY(!RecordsOf<vesk::RedoRecord>(m_records).empty());
        QVERIFY(!RecordsOf<vesk::ValueRecord>(m_records).empty());
        QVERIFY(!RecordsOf<vesk::SelectionRecord>(m_records).empty());
        QVERIFY(DigestsIn(m_records).size() >= static_cast<std::size_t>(CountActs() / 100));
        // A short session has no time for everything.
        if (CountActs() < 20 * ActsByDefault)
            return;
        QVERIFY(!RecordsOf<vesk::PropertyRecord>(m_records).empty());
        QCOMPARE(missing.join(QLatin1Char(' ')), QString());
    }

    void anotherProgramReplaysIt_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QStringList>("environment");

        QTest::newRow("without a screen") << "" << QStringList();
        QTest::newRow("German") << "de_DE" << QStringList();
        QTest::newRow("Turkish") << "tr_TR" << QStringList();
        QTest::newRow("at twice the scale") << "" << QStringList("QT_SCALE_FACTOR=2");
        QTest::newRow("all of it") << "tr_TR" << QStringList("QT_SCALE_FACTOR=1.5");
    }

    void anotherProgramReplaysIt()
    {
        QFETCH(QString, locale);
        QFETCH(QStringList, environment);
        const QString model = m_pFixture->File("replayed");
        if (!locale.isEmpty())
            environment << MakeLocale(locale);

        const Outcome outcome =
            RunSketcher({"--replay", Recorded(), "--model", model}, environment);

        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.code, 0);
        QCOMPARE(ReadBytes(model), ReadBytes(m_folder.filePath("model")));
    }

    void anotherWindowReplaysIt_data()
    {
        QTest::addColumn<Setting>("set");

        QTest::newRow("all panes floating") << Setting(&FloatAllPanes);
        QTest::newRow("a small window") << Setting(&ShrinkWindow);
        QTest::newRow("another theme") << Setting(&ChangeTheme);
    }

    void anotherWindowReplaysIt()
    {
        QFETCH(Setting, set);
        const QString again = m_pFixture->File("again");
        const QString model = m_pFixture->File("replayed");
        Options options = m_pFixture->Replay(Recorded(), model);
        options.journal = again;
        {
            Session session(options);
            set();
            QCOMPARE(session.Run(), 0);
        }

        QCOMPARE(ReadBytes(model), ReadBytes(m_folder.filePath("model")));
        QVERIFY(DigestsIn(ReadJournal(again)) == DigestsIn(m_records));
    }

    void cleanupTestCase()
    {
        qInfo() << ReadBytes(m_folder.filePath("acts")).toInt() << "acts," << m_records.size()
                << "records," << DigestsIn(m_records).size() << "drawings,"
                << ReadEntities(m_folder.filePath("model")).size() << "entities at the end";
    }

private:
    QString Recorded() const { return m_folder.filePath("journal"); }

    /// The drawings that the session went through.
    static std::set<std::string> DigestsIn(const std::vector<vesk::JournalRecord>& records)
    {
        std::set<std::string> digests;
        for (const vesk::MarkRecord& mark : RecordsOf<vesk::MarkRecord>(records))
            digests.insert(mark.digest);
        return digests;
    }

    /// Compiles a locale, since the machine may have none but C, and returns what selects it.
    QStringList MakeLocale(const QString& name) const
    {
        const QString full = name + ".UTF-8";
        const QStringList environment = {"LOCPATH=" + m_pFixture->File(""), "LC_ALL=" + full,
                                         "LANG=" + full};
        QProcess::execute("localedef",
                          {"--no-archive", "-i", name, "-f", "UTF-8", m_pFixture->File(full)});
        QProcess query;
        query.setEnvironment(QProcess::systemEnvironment() + environment);
        query.start("locale", {"decimal_point"});
        query.waitForFinished();
        if (query.readAllStandardOutput().trimmed() != ",")
            QTest::qFail("the locale cannot be used", __FILE__, __LINE__);
        return environment;
    }

    QTemporaryDir m_folder;
    std::vector<vesk::JournalRecord> m_records;
};

VESK_TESTS(LongSessionTest);
#include "LongSessionTest.moc"

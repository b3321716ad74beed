#include "Foundation/DebugMessageMgr.h"

#include "Host/Foundation/LogFile.h"
#include "Journal/JournalManager.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>
#include <vector>

namespace vesk
{

namespace
{

DebugMessageMgr& Manager()
{
    return *DebugMessageMgr::GetDebugMessageMgr();
}

void Warn(int line = 1, const std::wstring& message = L"pArgs为空")
{
    Manager().ShowDebugWarn("QtButton.cpp", line, "vesk::QtButton::On", message, L"vesk-ui",
                            L"2026-11-21");
}

void WarnTimes(int count, int line = 1)
{
    for (int i = 0; i < count; ++i)
        Warn(line);
}

/// Listens while it lives.
class Observer final : public IDebugWarningObserver
{
public:
    explicit Observer(std::function<void(const DebugWarning&)> action = nullptr)
        : m_action(std::move(action))
    {
        Manager().AddObserver(this);
    }
    ~Observer() override { Manager().RemoveObserver(this); }

    void OnDebugWarning(const DebugWarning& warning) override
    {
        ++m_count;
        if (m_action)
            m_action(warning);
    }

    int GetCount() const { return m_count; }

private:
    std::function<void(const DebugWarning&)> m_action;
    std::atomic<int> m_count{0};
};

}

class DebugMessageMgrTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Manager().CloseLog(); }

    void aWarningIsOneLineWithAllItsFields();
    void theTimeIsNowInUtc();
    void theCountTellsHowOftenThePlaceWarned();
    void anotherLineIsAnotherPlace();
    void theLineCarriesTheEndOfTheJournal();
    void aLineIsWrittenAtOnce();
    void noMessageForgesALine_data();
    void noMessageForgesALine();
    void invalidCharactersBecomeReplacements();
    void invalidBytesOfAFileNameBecomeReplacements();
    void aPlaceWritesTenLinesAndAClosingOne();
    void aPlaceWithTenWarningsGetsNoClosingLine();
    void aNewLogCountsAnew();
    void openingAnotherLogClosesTheFirst();
    void openingAppends();
    void aPathThatCannotBeWrittenIsToldAndLeavesTheOldLog();
    void withoutLogWarningsGoToStandardError();
    void afterAFailedOpeningWarningsGoToStandardError();
    void observersHearTheWarningAfterItWasLogged();
    void observersHearSuppressedWarningsToo();
    void anObserverAddedTwiceHearsOnce();
    void aRemovedObserverHearsNothing();
    void anObserverMayUseTheManagerInItsCall();
    void anObserverRemovedByAnotherIsNotCalled();
    void anObserverMayRemoveItself();
    void anExceptionOfAnObserverReachesNobody();
    void aWarningOfAnotherThreadIsToldInThatThread();
    void removingAnObserverWaitsForItsRunningCall();
    void warningsOfManyThreadsAreWholeLines();
};

void DebugMessageMgrTest::aWarningIsOneLineWithAllItsFields()
{
    const LogFile log;
    QVERIFY(Manager().OpenLog(log.GetPath()));

    Warn(42);

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 1);
    const QJsonObject& record = records[0];
    QCOMPARE(record["file"].toString(), QString("QtButton.cpp"));
    QCOMPARE(record["line"].toInt(), 42);
    QCOMPARE(record["function"].toString(), QString("vesk::QtButton::On"));
    QCOMPARE(record["message"].toString(), QString::fromUtf8("pArgs为空"));
    QCOMPARE(record["person"].toString(), QString("vesk-ui"));
    QCOMPARE(record["date"].toString(), QString("2026-11-21"));
    QCOMPARE(record["count"].toInt(), 1);
    QVERIFY(record["journal"].isArray());
    QVERIFY(log.Read().endsWith('\n'));
}

void DebugMessageMgrTest::theTimeIsNowInUtc()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    Warn();
    const qint64 after = QDateTime::currentMSecsSinceEpoch();

    const QString text = log.ReadRecords().value(0)["time"].toString();
    const qint64 time = QDateTime::fromString(text, Qt::ISODateWithMs).toMSecsSinceEpoch();
    QVERIFY2(QRegularExpression("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z$")
                 .match(text)
                 .hasMatch(),
             qPrintable(text));
    QVERIFY(time >= before && time <= after);
}

void DebugMessageMgrTest::theCountTellsHowOftenThePlaceWarned()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(3);

    QCOMPARE(log.ReadRecords().value(2)["count"].toInt(), 3);
}

void DebugMessageMgrTest::anotherLineIsAnotherPlace()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1);
    Warn(2);

    QCOMPARE(log.ReadRecords().value(1)["count"].toInt(), 1);
}

void DebugMessageMgrTest::theLineCarriesTheEndOfTheJournal()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    for (int i = 0; i < 25; ++i)
        JournalManager::GetInstance().Add(UndoRecord{i});

    Warn();

    const QJsonArray journal = log.ReadRecords().value(0)["journal"].toArray();
    QCOMPARE(journal.size(), 20);
    QCOMPARE(journal.last().toString().toStdString(),
             JournalManager::GetInstance().GetLastLines().back());
}

void DebugMessageMgrTest::aLineIsWrittenAtOnce()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn();

    QCOMPARE(log.Read().count('\n'), 1);
}

void DebugMessageMgrTest::noMessageForgesALine_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("line feed") << "a\n{\"file\":\"forged\"}";
    QTest::newRow("carriage return") << "a\r{}";
    QTest::newRow("quote and backslash") << "a\",\"count\":99,\"b\":\"\\";
    QTest::newRow("vertical tab and form feed") << QString("a\vb\fc");
    QTest::newRow("escape, delete and zero") << QString("a\x1b[2Jb\x7f") + QChar(0) + "c";
    QTest::newRow("file, group and record separator") << QString("a\x1c\x1d\x1e") + "b";
    QTest::newRow("next line") << QString("a%1b").arg(QChar(0x85));
    QTest::newRow("line separator") << QString("a%1%1b").arg(QChar(0x2028));
    QTest::newRow("paragraph separator") << QString("a%1b").arg(QChar(0x2029));
}

void DebugMessageMgrTest::noMessageForgesALine()
{
    QFETCH(QString, message);
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1, message.toStdWString());

    QString line = QString::fromUtf8(log.Read());
    line.chop(1);
    const QRegularExpression lineEnd("[\\x{0A}-\\x{0D}\\x{1C}-\\x{1E}\\x{85}\\x{2028}\\x{2029}]");
    QVERIFY2(!line.contains(lineEnd), qPrintable(line));
    QCOMPARE(log.ReadRecords().value(0)["message"].toString(), message);
}

void DebugMessageMgrTest::invalidCharactersBecomeReplacements()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1, {L'a', static_cast<wchar_t>(0xD83D), L'b'});

    QCOMPARE(log.ReadRecords().value(0)["message"].toString(), QString("a%1b").arg(QChar(0xFFFD)));
}

void DebugMessageMgrTest::invalidBytesOfAFileNameBecomeReplacements()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Manager().ShowDebugWarn("a\xFF.cpp", 1, "f\xC3", L"", L"", L"");

    const QJsonObject record = log.ReadRecords().value(0);
    QCOMPARE(record["file"].toString(), QString("a%1.cpp").arg(QChar(0xFFFD)));
    QCOMPARE(record["function"].toString(), QString("f%1").arg(QChar(0xFFFD)));
}

void DebugMessageMgrTest::aPlaceWritesTenLinesAndAClosingOne()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(13, 7);
    QCOMPARE(log.ReadRecords().size(), 10);
    Manager().CloseLog();

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 11);
    QCOMPARE(records[9]["count"].toInt(), 10);
    QCOMPARE(records[10]["file"].toString(), QString("QtButton.cpp"));
    QCOMPARE(records[10]["line"].toInt(), 7);
    QCOMPARE(records[10]["count"].toInt(), 13);
    QCOMPARE(records[10]["suppressed"].toInt(), 3);
}

void DebugMessageMgrTest::aPlaceWithTenWarningsGetsNoClosingLine()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(10);
    Manager().CloseLog();

    QCOMPARE(log.ReadRecords().size(), 10);
}

void DebugMessageMgrTest::aNewLogCountsAnew()
{
    const LogFile first;
    const LogFile second;
    Manager().OpenLog(first.GetPath());
    WarnTimes(12);

    Manager().OpenLog(second.GetPath());
    Warn();

    QCOMPARE(second.ReadRecords().size(), 1);
    QCOMPARE(second.ReadRecords().value(0)["count"].toInt(), 1);
}

void DebugMessageMgrTest::openingAnotherLogClosesTheFirst()
{
    const LogFile first;
    const LogFile second;
    Manager().OpenLog(first.GetPath());
    WarnTimes(11);

    QVERIFY(Manager().OpenLog(second.GetPath()));
    Warn();

    QCOMPARE(first.ReadRecords().value(10)["suppressed"].toInt(), 1);
    QCOMPARE(first.ReadRecords().size(), 11);
}

void DebugMessageMgrTest::openingAppends()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Warn(1);
    Manager().CloseLog();

    Manager().OpenLog(log.GetPath());
    Warn(2);

    QCOMPARE(log.ReadRecords().size(), 2);
}

void DebugMessageMgrTest::aPathThatCannotBeWrittenIsToldAndLeavesTheOldLog()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    QVERIFY(!Manager().OpenLog(log.GetPath() + "/no/such/folder.log"));
    QVERIFY(!Manager().OpenLog(std::string()));

    QVERIFY(log.Read().isEmpty());
}

namespace
{

/// What this program, started anew, writes to standard error; empty unless it exits with 0.
QByteArray RunAnew(const QString& argument)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {argument});
    const bool isDone = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return isDone && process.exitCode() == 0 ? process.readAllStandardError() : QByteArray();
}

}

void DebugMessageMgrTest::withoutLogWarningsGoToStandardError()
{
    const QVector<QJsonObject> records = LogFile::Parse(RunAnew("--warn"));

    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["message"].toString(), QString::fromUtf8("pArgs为空"));
}

void DebugMessageMgrTest::afterAFailedOpeningWarningsGoToStandardError()
{
    const QVector<QJsonObject> records = LogFile::Parse(RunAnew("--warn-after-failed-opening"));

    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["message"].toString(), QString::fromUtf8("pArgs为空"));
}

void DebugMessageMgrTest::observersHearTheWarningAfterItWasLogged()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    DebugWarning heard;
    int lineCount = -1;
    const Observer observer([&](const DebugWarning& warning) {
        heard = warning;
        lineCount = log.ReadRecords().size();
    });

    Warn(5);

    QCOMPARE(lineCount, 1);
    QCOMPARE(heard.file, std::string("QtButton.cpp"));
    QCOMPARE(heard.line, 5);
    QCOMPARE(heard.function, std::string("vesk::QtButton::On"));
    QCOMPARE(heard.message, std::wstring(L"pArgs为空"));
    QCOMPARE(heard.person, std::wstring(L"vesk-ui"));
    QCOMPARE(heard.date, std::wstring(L"2026-11-21"));
}

void DebugMessageMgrTest::observersHearSuppressedWarningsToo()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const Observer observer;

    WarnTimes(15);

    QCOMPARE(observer.GetCount(), 15);
}

void DebugMessageMgrTest::anObserverAddedTwiceHearsOnce()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer observer;

    Manager().AddObserver(&observer);
    Manager().AddObserver(nullptr);
    Warn();

    QCOMPARE(observer.GetCount(), 1);
}

void DebugMessageMgrTest::aRemovedObserverHearsNothing()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer observer;

    Manager().RemoveObserver(&observer);
    Warn();

    QCOMPARE(observer.GetCount(), 0);
}

void DebugMessageMgrTest::anObserverMayUseTheManagerInItsCall()
{
    const LogFile log;
    const LogFile next;
    Manager().OpenLog(log.GetPath());
    Observer late;
    Manager().RemoveObserver(&late);
    const Observer observer([&](const DebugWarning&) {
        Manager().OpenLog(next.GetPath());
        Manager().AddObserver(&late);
    });

    Warn();
    Warn();

    QCOMPARE(late.GetCount(), 1);
    QCOMPARE(log.ReadRecords().size(), 1);
}

void DebugMessageMgrTest::anObserverRemovedByAnotherIsNotCalled()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer* pSecond = nullptr;
    const Observer first([&](const DebugWarning&) { Manager().RemoveObserver(pSecond); });
    Observer second;
    pSecond = &second;

    Warn();

    QCOMPARE(second.GetCount(), 0);
}

void DebugMessageMgrTest::anObserverMayRemoveItself()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer* pSelf = nullptr;
    Observer observer([&](const DebugWarning&) { Manager().RemoveObserver(pSelf); });
    pSelf = &observer;

    WarnTimes(2);

    QCOMPARE(observer.GetCount(), 1);
}

void DebugMessageMgrTest::anExceptionOfAnObserverReachesNobody()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const Observer thrower([](const DebugWarning&) { throw std::runtime_error("observer"); });
    const Observer other;

    WarnTimes(2);

    QCOMPARE(other.GetCount(), 2);
}

void DebugMessageMgrTest::aWarningOfAnotherThreadIsToldInThatThread()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    std::thread::id heardIn;
    const Observer observer([&](const DebugWarning&) { heardIn = std::this_thread::get_id(); });

    std::thread thread([] { Warn(); });
    const std::thread::id raisedIn = thread.get_id();
    thread.join();

    QVERIFY(heardIn == raisedIn);
}

void DebugMessageMgrTest::removingAnObserverWaitsForItsRunningCall()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    std::promise<void> entered;
    std::atomic<bool> isLeft{false};
    Observer observer([&](const DebugWarning&) {
        entered.set_value();
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        isLeft = true;
    });
    std::thread thread([] { Warn(); });
    entered.get_future().wait();

    Manager().RemoveObserver(&observer);
    const bool wasLeft = isLeft;
    thread.join();

    QVERIFY(wasLeft);
}

void DebugMessageMgrTest::warningsOfManyThreadsAreWholeLines()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const Observer observer;
    std::vector<std::thread> threads;

    for (int i = 0; i < 8; ++i)
        threads.emplace_back([i] { WarnTimes(100, i / 2); });
    for (std::thread& thread : threads)
        thread.join();
    Manager().CloseLog();

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(observer.GetCount(), 800);
    QCOMPARE(records.size(), 4 * 11);
    QVERIFY(!records.contains(QJsonObject()));
    QCOMPARE(records.last()["count"].toInt(), 200);
}

}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString argument = application.arguments().value(1);
    if (argument == "--warn-after-failed-opening")
        vesk::Manager().OpenLog("/no/such/folder/warnings.log");
    if (argument.startsWith("--warn"))
    {
        vesk::Warn();
        return 0;
    }
    vesk::DebugMessageMgrTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "DebugMessageMgrTest.moc"

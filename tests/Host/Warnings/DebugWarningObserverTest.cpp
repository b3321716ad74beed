#include "Warnings/DebugMessageMgr.h"

#include "Host/Warnings/LogFile.h"
#include "Host/Warnings/RaiseWarning.h"
#include "Journal/JournalManager.h"
#include "Support/TestValues.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

namespace vesk
{

namespace
{

/// Registered while it exists.
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

class DebugWarningObserverTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Manager().CloseLog();
        JournalManager::GetInstance().Close();
    }

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
    void anObserverMayRemoveItselfOnceItsOtherCallsHaveEnded();
    void warningsOfManyThreadsAreWholeLines();
    void observersOfManyThreadsComeAndGo();
    void whatManyThreadsAskForIsWhole();
};

void DebugWarningObserverTest::observersHearTheWarningAfterItWasLogged()
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

void DebugWarningObserverTest::observersHearSuppressedWarningsToo()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const Observer observer;

    WarnTimes(15);

    QCOMPARE(observer.GetCount(), 15);
}

void DebugWarningObserverTest::anObserverAddedTwiceHearsOnce()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer observer;

    Manager().AddObserver(&observer);
    Manager().AddObserver(nullptr);
    Warn();

    QCOMPARE(observer.GetCount(), 1);
}

void DebugWarningObserverTest::aRemovedObserverHearsNothing()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer observer;

    Manager().RemoveObserver(&observer);
    Warn();

    QCOMPARE(observer.GetCount(), 0);
}

void DebugWarningObserverTest::anObserverMayUseTheManagerInItsCall()
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

void DebugWarningObserverTest::anObserverRemovedByAnotherIsNotCalled()
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

void DebugWarningObserverTest::anObserverMayRemoveItself()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Observer* pSelf = nullptr;
    Observer observer([&](const DebugWarning&) { Manager().RemoveObserver(pSelf); });
    pSelf = &observer;

    WarnTimes(2);

    QCOMPARE(observer.GetCount(), 1);
}

void DebugWarningObserverTest::anExceptionOfAnObserverReachesNobody()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const Observer thrower([](const DebugWarning&) { throw std::runtime_error("observer"); });
    const Observer other;

    WarnTimes(2);

    QCOMPARE(other.GetCount(), 2);
}

void DebugWarningObserverTest::aWarningOfAnotherThreadIsToldInThatThread()
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

void DebugWarningObserverTest::removingAnObserverWaitsForItsRunningCall()
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

void DebugWarningObserverTest::anObserverMayRemoveItselfOnceItsOtherCallsHaveEnded()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    std::promise<void> entered;
    std::promise<void> othersEnded;
    Observer* pSelf = nullptr;
    Observer observer([&](const DebugWarning& warning) {
        if (warning.line != 1)
            return;
        entered.set_value();
        othersEnded.get_future().wait();
        Manager().RemoveObserver(pSelf);
    });
    pSelf = &observer;
    std::thread first([] { Warn(1); });
    entered.get_future().wait();

    std::thread second([] { Warn(2); });
    second.join();
    othersEnded.set_value();
    first.join();
    Warn(3);

    QCOMPARE(observer.GetCount(), 2);
}

void DebugWarningObserverTest::warningsOfManyThreadsAreWholeLines()
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

void DebugWarningObserverTest::observersOfManyThreadsComeAndGo()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    std::atomic<int> deafCount{0};
    std::vector<std::thread> threads;

    for (int i = 0; i < 8; ++i)
        threads.emplace_back([&deafCount] {
            for (int round = 0; round < 1000; ++round)
            {
                for (int passing = 0; passing < 100; ++passing)
                    const Observer brief;
                const Observer observer;
                Warn();
                deafCount += observer.GetCount() == 0 ? 1 : 0;
            }
        });
    for (std::thread& thread : threads)
        thread.join();

    QCOMPARE(int(deafCount), 0);
}

void DebugWarningObserverTest::whatManyThreadsAskForIsWhole()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const std::string path = Manager().GetLogPath();
    const std::wstring message = L"a message that is too long to be kept in the string itself";
    std::atomic<int> tornCount{0};
    std::vector<std::thread> threads;

    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] {
            for (int round = 0; round < 500; ++round)
            {
                Warn(1000 * i + round, message);
                const std::optional<ShownDebugWarning> shown = Manager().GetShownWarning();
                tornCount += shown.has_value() && shown->message != message ? 1 : 0;
                tornCount += Manager().GetLogPath() != path ? 1 : 0;
            }
        });
    for (int i = 0; i < 500; ++i)
        JournalManager::GetInstance().Add(UndoRecord{i});
    for (std::thread& thread : threads)
        thread.join();

    QCOMPARE(int(tornCount), 0);
    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 4 * 500);
    QVERIFY(!records.contains(QJsonObject()));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DebugWarningObserverTest);
#include "DebugWarningObserverTest.moc"

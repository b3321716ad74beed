#include "Journal/JournalManager.h"

#include "Host/AllocationCounter.h"
#include "HostCore.h"
#include "Journal/IJournalData.h"
#include "Journal/IJournalUiObject.h"
#include "Journal/JournalFormat.h"
#include "Journal/NqIJournalFactory.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"

#include <QTemporaryDir>

#include <atomic>
#include <functional>
#include <thread>

namespace vesk
{

namespace
{

JournalManager& Journal()
{
    return JournalManager::GetInstance();
}

/// Counts notifications and runs a function on each. Registered while it exists.
class Observer final : public IJournalObserver
{
public:
    explicit Observer(std::function<void()> act = nullptr) : m_act(std::move(act))
    {
        Journal().AddObserver(this);
    }
    ~Observer() override { Journal().RemoveObserver(this); }

    void OnRecord(const JournalRecord& record) override
    {
        numbers.push_back(record.number);
        if (m_act)
            m_act();
    }

    void OnUiObject(const IJournalUiObject& object, int kind) override
    {
        kinds.push_back(kind);
        uiObject = std::any_cast<int>(object.GetUiObject());
    }

    std::vector<int> numbers;
    std::vector<int> kinds;
    int uiObject = 0;

private:
    std::function<void()> m_act;
};

/// Counts warnings. Registered while it exists.
class WarningObserver final : public IDebugWarningObserver
{
public:
    WarningObserver() { DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this); }
    ~WarningObserver() override { DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this); }

    void OnDebugWarning(const DebugWarning&) override { ++count; }

    int count = 0;
};

OwnerPtr<IJournalCommandData> MakeData(const wchar_t* id = L"Line")
{
    auto opData = OwnerPtrCast<IJournalCommandData>(
        NqIJournalFactory::GetImpl()->CreateJournalData(L"JournalCommandData"));
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(true));
    opData->SetCommandId(id);
    opData->SetCommandParameters(parameters);
    return opData;
}

void Announce(const wchar_t* id)
{
    IJournalManager::Get()->AddCommandData(MakeData(id));
}

}

class JournalManagerTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Journal().Close(); }

    void recordsAreNumberedAndAnEndRepeatsItsCommand();
    void eachRecordIsInTheFileBeforeItsNumberIsKnown();
    void closingForgetsNumbersAndLines();
    void withoutAFileRecordsAreNumberedToo();
    void theNumberOfAnAnnouncedCommandIsTakenOnce();
    void theNumberOfAnotherCommandIsNotTaken();
    void recordsInBetweenDoNotTakeTheNumber();
    void aCommandThatNobodyAnnouncedHasNoNumberToTake();
    void theLastTwentyLinesAreKept();
    void lastLinesAreForgottenWhenTheFileIsClosed();
    void recordOfAPointAllocatesNothing();
    void theLastLinesMayBeAskedForFromAnyThread();
    void observersHearEveryRecord();
    void anObserverAddedTwiceHearsOnce();
    void anObserverMayRemoveItself();
    void anObserverRemovedByAnotherHearsNothingMore();
    void aFullDiskIsToldByTheStateAndRaisesNoWarning();
    void withoutAFileNothingIsKept();
    void aCommandRecordHoldsTheIdOrTheParametersToo();
    void emptyPointersAreIgnored();
    void aWidgetIsToldToTheObservers();
    void theFactoryMakesCommandDataOnly();
    void withoutAFactoryThereIsNoUiObject();

private:
    std::string m_error;
};

void JournalManagerTest::recordsAreNumberedAndAnEndRepeatsItsCommand()
{
    QCOMPARE(Journal().Add(CommandRecord{L"Line", {}}), 1);
    QCOMPARE(Journal().Add(PointRecord{{1, 2, 3}, {}}), 2);
    QCOMPARE(Journal().Add(EndRecord{1, false}), 1);
    QCOMPARE(Journal().Add(UndoRecord{1}), 3);
}

void JournalManagerTest::eachRecordIsInTheFileBeforeItsNumberIsKnown()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QString::fromUtf8("日志.jsonl"));
    QVERIFY(Journal().Open(path.toStdString(), m_error));
    QByteArray seen;
    const Observer observer([&] { seen = ReadLinesAfterHeader(path); });

    Journal().Add(UndoRecord{1});
    QCOMPARE(seen, QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":1}\n"));

    // Longer than any buffer.
    Journal().Add(PropertyRecord{L"drawing", L"name", std::wstring(100000, L'a')});
    QCOMPARE(seen.count('\n'), 2);
    QVERIFY(seen.endsWith("\"}\n"));
}

void JournalManagerTest::closingForgetsNumbersAndLines()
{
    const HostCore core;
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    Journal().Open(path.toStdString(), m_error);
    Announce(L"Line");

    Journal().Close();

    QVERIFY(Journal().GetLastLines().empty());
    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
    QCOMPARE(Journal().Add(UndoRecord{2}), 1);
    QCOMPARE(ReadLinesAfterHeader(path).count('\n'), 1);
}

void JournalManagerTest::withoutAFileRecordsAreNumberedToo()
{
    const Observer observer;

    Journal().Add(UndoRecord{1});
    Journal().Add(UndoRecord{2});

    QCOMPARE(observer.numbers, (std::vector<int>{1, 2}));
    QCOMPARE(Journal().GetLastLines().size(), std::size_t(2));
}

void JournalManagerTest::theNumberOfAnAnnouncedCommandIsTakenOnce()
{
    const HostCore core;
    Journal().Add(UndoRecord{1});
    Announce(L"Line");

    QCOMPARE(Journal().TakeAnnounced(L"Line"), 2);
    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
}

void JournalManagerTest::theNumberOfAnotherCommandIsNotTaken()
{
    const HostCore core;
    Announce(L"Line");
    Announce(L"Erase");

    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
    QCOMPARE(Journal().TakeAnnounced(L"Erase"), 2);
}

void JournalManagerTest::recordsInBetweenDoNotTakeTheNumber()
{
    const HostCore core;
    Announce(L"Line");
    Journal().Add(UndoRecord{1});
    Journal().Add(CommandRecord{L"Erase", {}});

    QCOMPARE(Journal().TakeAnnounced(L"Line"), 1);
}

void JournalManagerTest::aCommandThatNobodyAnnouncedHasNoNumberToTake()
{
    Journal().Add(CommandRecord{L"Line", {}});

    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
}

void JournalManagerTest::theLastTwentyLinesAreKept()
{
    for (int i = 1; i <= 25; ++i)
        Journal().Add(UndoRecord{i});

    const std::vector<std::string> lines = Journal().GetLastLines();

    QCOMPARE(lines.size(), std::size_t(20));
    QCOMPARE(lines.front(), JournalFormat::ToLine({6, UndoRecord{6}}));
    QCOMPARE(lines.back(), JournalFormat::ToLine({25, UndoRecord{25}}));
}

void JournalManagerTest::lastLinesAreForgottenWhenTheFileIsClosed()
{
    for (int i = 1; i <= 25; ++i)
        Journal().Add(UndoRecord{i});

    Journal().Close();
    Journal().Add(UndoRecord{30});

    QCOMPARE(Journal().GetLastLines(),
             std::vector<std::string>{JournalFormat::ToLine({1, UndoRecord{30}})});
}

void JournalManagerTest::recordOfAPointAllocatesNothing()
{
    const QTemporaryDir folder;
    std::string error;
    QVERIFY(Journal().Open(folder.filePath("j").toStdString(), error));
    const PointRecord record{{1.0 / 3.0, -2.0 / 3.0, 1e-300}, 2000000000};
    for (int i = 0; i < 60; ++i)
        Journal().Add(record);

    const std::size_t before = AllocationCounter::s_count;
    Journal().Add(record);
    const std::size_t after = AllocationCounter::s_count;

    QCOMPARE(after - before, std::size_t{0});
}

void JournalManagerTest::theLastLinesMayBeAskedForFromAnyThread()
{
    std::atomic<bool> isDone{false};
    std::atomic<bool> isGood{true};
    std::thread reader([&] {
        while (!isDone)
        {
            const std::vector<std::string> lines = Journal().GetLastLines();
            if (lines.size() > 20 || (!lines.empty() && lines.back().back() != '}'))
                isGood = false;
        }
    });

    for (int i = 1; i <= 5000; ++i)
        Journal().Add(UndoRecord{i});
    isDone = true;
    reader.join();

    QVERIFY(isGood);
}

void JournalManagerTest::observersHearEveryRecord()
{
    const Observer observer;
    Journal().AddObserver(nullptr);

    Journal().Add(CommandRecord{L"Line", {}});
    Journal().Add(EndRecord{1, false});

    QCOMPARE(observer.numbers, (std::vector<int>{1, 1}));
}

void JournalManagerTest::anObserverAddedTwiceHearsOnce()
{
    Observer observer;
    Journal().AddObserver(&observer);

    Journal().Add(UndoRecord{1});

    QCOMPARE(observer.numbers, (std::vector<int>{1}));
}

void JournalManagerTest::anObserverMayRemoveItself()
{
    Observer* pFirst = nullptr;
    Observer first([&] { Journal().RemoveObserver(pFirst); });
    pFirst = &first;
    const Observer second;

    Journal().Add(UndoRecord{1});
    Journal().Add(UndoRecord{2});

    QCOMPARE(first.numbers, (std::vector<int>{1}));
    QCOMPARE(second.numbers, (std::vector<int>{1, 2}));
}

void JournalManagerTest::anObserverRemovedByAnotherHearsNothingMore()
{
    Observer* pSecond = nullptr;
    const Observer first([&] { Journal().RemoveObserver(pSecond); });
    Observer second;
    pSecond = &second;

    Journal().Add(UndoRecord{1});

    QVERIFY(second.numbers.empty());
}

void JournalManagerTest::aFullDiskIsToldByTheStateAndRaisesNoWarning()
{
    const WarningObserver warnings;
    QVERIFY(Journal().Open("/dev/full", m_error));
    QVERIFY2(!Journal().IsKept(), "not even the header");

    QCOMPARE(Journal().Add(UndoRecord{1}), 1);
    QCOMPARE(Journal().Add(UndoRecord{2}), 2);

    QVERIFY(!Journal().IsKept());
    QVERIFY(!Journal().Close());
    QCOMPARE(warnings.count, 0);
}

void JournalManagerTest::withoutAFileNothingIsKept()
{
    QVERIFY(!Journal().IsKept());

    Journal().Add(UndoRecord{1});

    QVERIFY(!Journal().IsKept());
    QVERIFY2(Journal().Close(), "no file misses anything");
}

void JournalManagerTest::aCommandRecordHoldsTheIdOrTheParametersToo()
{
    const HostCore core;

    IJournalManager::Get()->AddCommandData(MakeData());
    IJournalManager::Get()->AddCommandDataWithParameters(MakeData());

    const std::vector<std::string> lines = Journal().GetLastLines();
    QCOMPARE(lines.at(0), std::string(R"({"n":1,"kind":"command","id":"Line"})"));
    QCOMPARE(lines.at(1),
             std::string(R"({"n":2,"kind":"command","id":"Line","parameters":{"Clicked":true}})"));
    QCOMPARE(Journal().TakeAnnounced(L"Line"), 2);
}

void JournalManagerTest::emptyPointersAreIgnored()
{
    const Observer observer;

    IJournalManager::Get()->AddCommandData(nullptr);
    IJournalManager::Get()->AddCommandDataWithParameters(nullptr);
    IJournalManager::Get()->AddUiObject(nullptr, 3, 0);

    QVERIFY(observer.numbers.empty());
    QVERIFY(observer.kinds.empty());
}

void JournalManagerTest::aWidgetIsToldToTheObservers()
{
    const HostCore core;
    const Observer observer;
    OwnerPtr<IJournalUiObject> opObject = IJournalUiObject::Create();
    QVERIFY(opObject != nullptr);
    opObject->SetUiObject(42);

    IJournalManager::Get()->AddUiObject(std::move(opObject), 3, 0);

    QCOMPARE(observer.kinds, (std::vector<int>{3}));
    QCOMPARE(observer.uiObject, 42);
}

void JournalManagerTest::theFactoryMakesCommandDataOnly()
{
    const HostCore core;

    const OwnerPtr<IJournalCommandData> opData = MakeData();

    QCOMPARE(opData->GetCommandId(), std::wstring(L"Line"));
    QVERIFY(opData->GetCommandParameters().Find(L"Clicked") != nullptr);
    QVERIFY(NqIJournalFactory::GetImpl()->CreateJournalData(L"Other") == nullptr);
}

void JournalManagerTest::withoutAFactoryThereIsNoUiObject()
{
    QVERIFY(NqIJournalFactory::GetImpl() == nullptr);
    QVERIFY(IJournalUiObject::Create() == nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalManagerTest);
#include "JournalManagerTest.moc"

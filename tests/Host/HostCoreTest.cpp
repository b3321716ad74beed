#include "HostCore.h"

#include "Command/Command.h"
#include "Command/IActionManager.h"
#include "Command/ICommandManager.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Host/Command/ActionStandIns.h"
#include "Host/Dimension/HandlerStandIns.h"
#include "Journal/CommandParameters.h"
#include "Journal/JournalManager.h"
#include "Journal/NqIJournalFactory.h"
#include "Support/TestValues.h"

#include <memory>

namespace vesk
{

class HostCoreTest : public QObject
{
    Q_OBJECT

private slots:
    void itInstallsTheViewsAndTheJournal();
    void itLeavesEverythingAsItWas();
    void itEndsTheActionThatRuns();
    void itLeavesAnotherJournalFactoryInPlace();
};

void HostCoreTest::itInstallsTheViewsAndTheJournal()
{
    HostCore core;

    QCOMPARE(IUiDocumentViewManager::Get(),
             static_cast<IUiDocumentViewManager*>(&core.GetViewManager()));
    QVERIFY(NqIJournalFactory::GetImpl() != nullptr);
}

void HostCoreTest::itLeavesEverythingAsItWas()
{
    TemporaryDimensionMgr& dimensions = *TemporaryDimensionMgr::GetInstance();
    HandlerScript script;
    const StandInHandlerFactory factory(script);
    auto pCore = std::make_unique<HostCore>();
    ICommandManager::Get()->AddCommand(
        MakeOwner<Command>(L"Line", Command::Kind::Plain, Command::Execution()));
    JournalManager::GetInstance().Add(UndoRecord{1});
    dimensions.SetContext(MakeOwner<StandInContext>(1));
    dimensions.SetLocked(InputState::IS_Length, true);

    pCore.reset();

    QVERIFY(ICommandManager::Get()->GetCommand(L"Line") == nullptr);
    QVERIFY(IUiDocumentViewManager::Get() == nullptr);
    QVERIFY(NqIJournalFactory::GetImpl() == nullptr);
    QVERIFY(JournalManager::GetInstance().GetLastLines().empty());
    QVERIFY(!dimensions.HasHandler());
    QVERIFY(dimensions.GetLocked().empty());
}

void HostCoreTest::itEndsTheActionThatRuns()
{
    Log log;
    ActionScript script;
    auto pCore = std::make_unique<HostCore>();
    ICommandManager::Get()->AddCommand(MakeOwner<Command>(
        L"Line", Command::Kind::Interactive, [&](IUiView*, const CommandParameters&) {
            return MakeOwner<StandInAction>("Line", log, script);
        }));
    ActionManager::SendCommand(L"Line", {}, nullptr);

    pCore.reset();

    QCOMPARE(log, (Log{"Line.begin", "Line.end", "Line.delete"}));
    QVERIFY(IActionManager::CurrentAction() == nullptr);
}

void HostCoreTest::itLeavesAnotherJournalFactoryInPlace()
{
    const HostCore outer;
    NqIJournalFactory* pOuter = NqIJournalFactory::GetImpl();
    auto pInner = std::make_unique<HostCore>();
    NqIJournalFactory::SetImpl(pOuter);

    pInner.reset();

    QCOMPARE(NqIJournalFactory::GetImpl(), pOuter);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::HostCoreTest);
#include "HostCoreTest.moc"

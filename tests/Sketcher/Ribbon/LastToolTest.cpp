#include "Ribbon/LastTool.h"

#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "RecordedLines.h"
#include "Support/HostFixture.h"
#include "Support/IdleAction.h"
#include "Support/TestValues.h"

using namespace vesk;

namespace
{

/// Two tools, of which one ends at once, and a command that is none. The host runs no event loop.
struct Fixture
{
    Fixture()
    {
        Add(L"First", Command::Kind::Interactive);
        Add(L"Second", Command::Kind::Interactive);
        Add(L"Plain", Command::Kind::Plain);
    }
    ~Fixture() { ActionManager::Reset(); }

    static void Add(const std::wstring& id, Command::Kind kind)
    {
        ICommandManager::Get()->AddCommand(MakeOwner<Command>(
            id, kind, [kind](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
                return kind == Command::Kind::Plain ? nullptr : MakeOwner<test::IdleAction>();
            }));
    }

    static void Run(const wchar_t* commandId) { ActionManager::RunCommand(commandId, {}); }

    test::HostFixture host;
    LastTool lastTool;
};

}

class LastToolTest final : public QObject
{
    Q_OBJECT

private slots:
    void theLastToolRunsAgainAsACommandOfItsOwn()
    {
        Fixture f;
        f.Run(L"First");
        f.Run(L"Second");
        ActionManager::Reset();
        f.Run(L"Plain");
        const RecordedLines lines;

        f.lastTool.Repeat();

        QCOMPARE(ActionManager::GetRunningCommandId(), std::wstring(L"Second"));
        QCOMPARE(lines.Get().filter("\"command\"").filter("Second").size(), 1);
    }

    void nothingHappensBeforeTheFirstTool()
    {
        Fixture f;
        f.Run(L"Plain");
        const RecordedLines lines;

        f.lastTool.Repeat();

        QVERIFY(f.lastTool.GetCommandId().empty());
        QVERIFY(lines.Get().isEmpty());
    }

    void aRunningToolIsNotDisturbed()
    {
        Fixture f;
        f.Run(L"First");
        const RecordedLines lines;

        f.lastTool.Repeat();

        QVERIFY(lines.Get().isEmpty());
    }
};

VESK_TESTS(LastToolTest);
#include "LastToolTest.moc"

#include "Support/HostFixture.h"

#include "Command/ActionManager.h"
#include "Command/ICommandManager.h"
#include "Control/ControlDefinitionChangeByUser.h"
#include "Foundation/IPublishConfig.h"
#include "Foundation/NqStyleSheetHelper.h"
#include "Foundation/TranslatorManager.h"

namespace vesk::test
{

HostFixture::HostFixture() : view(1, &window)
{
    core.GetViewManager().AddView(&view);
    // A warning fails the test; a dialog would only block it.
    DebugMessageMgr::GetDebugMessageMgr()->SetAttended(false);
}

HostFixture::~HostFixture()
{
    ActionManager::Reset();
    ActionManager::SetEventLoop(nullptr);
    core.GetViewManager().RemoveView(&view);
    LineEditTextChangeFlag::m_textChangeByUser = false;
    RadioButtonGroupStateChangeFlag::m_stateChangeByUser = false;
    NqStyleSheetHelper::Instance()->SetCurrentStyleData({});
    TranslatorManager::Get()->SetTranslator(nullptr);
    IPublishConfig::RemoveConfigRecord(PublishConfigRecordNames::InHouseMode);
}

Command* HostFixture::AddCommand(const std::wstring& id,
                                 std::function<void(const CommandParameters&)> execute)
{
    auto opCommand = MakeOwner<Command>(
        id, Command::Kind::Plain,
        [execute = std::move(execute)](IUiView*, const CommandParameters& parameters) {
            execute(parameters);
            return OwnerPtr<IAction>();
        });
    Command* pCommand = opCommand.Get();
    ICommandManager::Get()->AddCommand(std::move(opCommand));
    return pCommand;
}

Command* HostFixture::AddInteractiveCommand(const std::wstring& id)
{
    auto opCommand = MakeOwner<Command>(id, Command::Kind::Interactive,
                                        [this](IUiView*, const CommandParameters&) {
                                            return OwnerPtr<IAction>(new TestAction(actionLog));
                                        });
    Command* pCommand = opCommand.Get();
    ICommandManager::Get()->AddCommand(std::move(opCommand));
    return pCommand;
}

void HostFixture::BeginAction()
{
    ActionManager::ProcessCommand(&view, AddInteractiveCommand(L"Test.Action"), {}, nullptr);
}

}

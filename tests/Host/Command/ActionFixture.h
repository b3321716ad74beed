#pragma once

#include "Command/ActionManager.h"
#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "Host/Command/ActionStandIns.h"
#include "HostCore.h"
#include "Journal/CommandParameters.h"
#include "Journal/IJournalData.h"
#include "Journal/JournalManager.h"
#include "Journal/NqIJournalFactory.h"

#include <map>

namespace vesk
{

/// A host with a view and an event loop, and scripted commands. Only one may exist at a time.
class ActionFixture
{
public:
    ActionFixture()
    {
        m_core.GetViewManager().AddView(&view);
        ActionManager::SetEventLoop(&loop);
    }

    ~ActionFixture()
    {
        ActionManager::SetEventLoop(nullptr);
        ActionManager::Reset();
    }

    /// Registers an interactive command; `name` is ASCII.
    void AddInteractive(const std::string& name)
    {
        Add(name, Command::Kind::Interactive, [this, name](IUiView*, const CommandParameters&) {
            return MakeOwner<StandInAction>(name, log, scripts[name]);
        });
    }

    void AddPlain(const std::string& name, std::function<void()> act = nullptr)
    {
        Add(name, Command::Kind::Plain,
            [this, name, act](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
                log.push_back(name);
                if (act)
                    act();
                return nullptr;
            });
    }

    /// Chooses a command as a ribbon button does: the record first.
    void Choose(const std::string& name)
    {
        const std::wstring id(name.begin(), name.end());
        Announce(id);
        ActionManager::ProcessCommand(&view, ICommandManager::Get()->GetCommand(id), {}, nullptr);
    }

    /// Chooses a command as a menu does.
    void ChooseInMenu(const std::string& name)
    {
        const std::wstring id(name.begin(), name.end());
        Announce(id);
        ActionManager::SendCommand(id, {}, nullptr);
    }

    void Click() { ActionManager::ProcessClick(&view, Vector3d::Zero()); }
    void MoveMouse() { ActionManager::ProcessMouseMove(&view, Vector3d::Zero()); }
    void PressEscape() { ActionManager::ProcessEscape(&view); }
    void TypeValue() { ActionManager::ProcessViewInput(&view, {}); }

    UiDocumentViewManager& GetViews() { return m_core.GetViewManager(); }

    /// The index of an entry in the log; past the end if it is missing.
    std::ptrdiff_t At(const std::string& entry) const
    {
        return std::find(log.begin(), log.end(), entry) - log.begin();
    }

    bool Has(const std::string& entry) const
    {
        return std::find(log.begin(), log.end(), entry) != log.end();
    }

    static bool HasRecord(const std::string& line)
    {
        const std::vector<std::string> lines = JournalManager::GetInstance().GetLastLines();
        return std::find(lines.begin(), lines.end(), line) != lines.end();
    }

    Log log;
    std::map<std::string, ActionScript> scripts;
    std::map<std::string, bool> isDisabled;
    RecordingView view{1};
    ScriptedLoop loop;
    CountingApplication application;

private:
    static void Announce(const std::wstring& id)
    {
        auto opData = OwnerPtrCast<IJournalCommandData>(
            NqIJournalFactory::GetImpl()->CreateJournalData(L"JournalCommandData"));
        opData->SetCommandId(id);
        IJournalManager::Get()->AddCommandData(std::move(opData));
    }

    void Add(const std::string& name, Command::Kind kind, Command::Execution execute)
    {
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(std::wstring(name.begin(), name.end()), kind, std::move(execute),
                               [this, name] { return !isDisabled[name]; }));
    }

    HostCore m_core;
};

}

#pragma once

#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "Command/IAction.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Journal/CommandParameters.h"
#include "Journal/IJournalData.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "Support/IdleView.h"
#include "Support/TestAction.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace vesk::test
{

/// What the host was asked and told, in order. Entries made while no command was running say so.
inline QStringList s_notes;

inline void Note(const QString& what)
{
    s_notes << (ProcessCommandUtil::IsLastCommandExecuted() ? "idle: " + what : what);
}

inline QString Describe(const CommandParameters& parameters)
{
    return parameters.IsEmpty() ? "nothing" : "parameters";
}

class NotingView final : public test::IdleView
{
public:
    using IdleView::IdleView;

    void SetViewText(const std::wstring& text) override
    {
        Note(QString("view %1 shows %2").arg(GetId()).arg(QString::fromStdWString(text)));
    }
};

/// Registered under "asked", and called "Command" by itself.
class NotingCommand final : public ICommand
{
public:
    std::wstring GetCommandId() const override { return L"Command"; }
    bool IsJournalIdOnly() const override
    {
        Note("id only?");
        return isIdOnly;
    }
    bool IsEnabled() const override { return true; }
    bool IsVisible() const override { return true; }
    bool IsInteractive() const override { return false; }
    OwnerPtr<IAction> Execute(IUiView*, const CommandParameters&) override { return nullptr; }

    bool isIdOnly = false;
};

class NotingCommandManager final : public ICommandManager
{
public:
    ICommand* GetCommand(const std::wstring& commandId) const override
    {
        Note("find " + QString::fromStdWString(commandId));
        return commandId == L"asked" ? const_cast<NotingCommand*>(&command) : nullptr;
    }
    bool AddCommand(OwnerPtr<ICommand>) override { return false; }
    void RemoveCommand(const std::wstring&) override {}
    void RemoveAllCommands() override {}

    NotingCommand command;
};

class NotingRecord final : public IJournalCommandData
{
public:
    void SetCommandId(const std::wstring& commandId) override
    {
        Note("record of " + QString::fromStdWString(commandId));
    }
    void SetCommandParameters(const CommandParameters& parameters) override
    {
        Note("record with " + Describe(parameters));
    }
    std::wstring GetCommandId() const override { return {}; }
    const CommandParameters& GetCommandParameters() const override { return m_none; }

private:
    CommandParameters m_none;
};

class NotingJournal final : public IJournalManager
{
public:
    void AddCommandData(OwnerPtr<IJournalCommandData> opData) override
    {
        Note(opData != nullptr ? "journal id" : "journal nothing");
    }
    void AddCommandDataWithParameters(OwnerPtr<IJournalCommandData> opData) override
    {
        Note(opData != nullptr ? "journal id and parameters" : "journal nothing");
    }
    void AddUiObject(OwnerPtr<IJournalUiObject>, int, int) override {}
};

/// The host behind all functions below.
struct NotingHost
{
    NotingHost();
    ~NotingHost();
    NotingHost(const NotingHost&) = delete;
    NotingHost& operator=(const NotingHost&) = delete;

    NotingCommandManager commands;
    NotingJournal journal;
    NotingView first{1};
    NotingView second{2};
    IUiView* pCurrentView = &first;
    ActionLog actionLog;
    TestAction action{actionLog};
    bool hasAction = true;

    /// Called once, inside the next command or the next end of a running one.
    std::function<void()> onCommand;
    std::function<void()> onReset;

    /// Called before a refresh is recorded.
    std::function<void()> onRefresh;
};

/// Knows the current view of that host.
class NotingViewManager final : public IUiDocumentViewManager
{
public:
    IUiView* GetCurrentUiView() const override;
    IUiView* GetUiViewById(std::uint32_t) const override { return nullptr; }

    using IUiDocumentViewManager::Set;
};

}

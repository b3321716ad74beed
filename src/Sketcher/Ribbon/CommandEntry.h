#pragma once

#include "Command/Command.h"

#include <functional>
#include <string>

/// A command of the program: what it does and where it is shown.
///
/// Built by chaining: `CommandEntry::Plain(id, caption, undo).InGroup(L"编辑")`.
struct CommandEntry
{
    /// A command that completes at once.
    static CommandEntry Plain(const std::wstring& id, const std::wstring& caption,
                              const std::function<void()>& function);

    /// A command that begins an action, which runs until the user ends it.
    static CommandEntry Interactive(const std::wstring& id, const std::wstring& caption,
                                    const std::function<vesk::OwnerPtr<vesk::IAction>()>& begin);

    CommandEntry& WithIcon(const std::wstring& name); ///< "line" for ":/icons/line.svg".
    CommandEntry& WithToolTip(const std::wstring& text);
    CommandEntry& WithKeys(const std::wstring& sequence);
    CommandEntry& InGroup(const std::wstring& caption);
    CommandEntry& OnStartPage();
    CommandEntry& InMenu(const std::wstring& menuId);
    CommandEntry& EnabledWhile(const vesk::Command::Condition& condition);

    /// The tool tip, with the keys if there are any: "撤销上一步 (Ctrl+Z)".
    std::wstring GetToolTip() const;

    std::wstring id;
    std::wstring caption;
    std::wstring iconPath;
    std::wstring toolTip;

    std::wstring group; ///< The ribbon group that holds its button; empty for none.
    std::wstring menu;  ///< The menu or sub-menu that holds an entry for it; empty for none.
    std::wstring keys;  ///< Shortcut of the button, such as "Ctrl+Z".

    vesk::Command::Kind kind = vesk::Command::Kind::Plain;
    vesk::Command::Execution execute;
    vesk::Command::Condition isEnabled; ///< If empty, the command is always enabled.

    bool isOnStartPage = false; ///< Whether its group is on the page 开始 instead of 草图.
};

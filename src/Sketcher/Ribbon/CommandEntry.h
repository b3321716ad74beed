#pragma once

#include "Model/UiText.h"

#include "Command/Command.h"

#include <functional>
#include <string>

namespace vesk
{
class CommandParameters;
}

/// In place of a ribbon group: the row of the ribbon's tabs.
constexpr wchar_t TabRow[] = L"TabRow";

/// A command of the program: what it does and where it is shown.
///
/// Built by chaining: `CommandEntry::Plain(id, caption, undo).InGroup(L"编辑"_source)`. Captions,
/// tool tips and groups are source texts.
struct CommandEntry
{
    /// A command that completes at once.
    static CommandEntry Plain(const std::wstring& id, const std::wstring& caption,
                              const std::function<void()>& function);

    /// A command that opens a window and changes nothing by itself: a replay leaves it out.
    static CommandEntry Dialog(const std::wstring& id, const std::wstring& caption,
                               const std::function<void()>& open);

    /// A command that begins an action, which runs until the user ends it.
    static CommandEntry Interactive(const std::wstring& id, const std::wstring& caption,
                                    const std::function<vesk::OwnerPtr<vesk::IAction>()>& begin);

    /// A plain command whose arguments are its parameters: it has no button, and a replay runs it
    /// with the parameters of its record. Run it with ActionManager::RunCommand.
    static CommandEntry
    WithParameters(const std::wstring& id, const std::wstring& caption,
                   const std::function<void(const vesk::CommandParameters&)>& execute);

    /// Sets whether a command can do what its parameters say now. A replay asks before it runs the
    /// command, and stops if it cannot.
    CommandEntry&
    PossibleWith(const std::function<bool(const vesk::CommandParameters&)>& predicate);

    CommandEntry& WithIcon(const std::wstring& name); ///< "line" for ":/icons/line.svg".

    /// The argument replaces `%1` in the translated text.
    CommandEntry& WithToolTip(const std::wstring& text, const std::wstring& argument = {});
    CommandEntry& WithKeys(const std::wstring& sequence);
    CommandEntry& WithOtherKeys(const std::wstring& sequence); ///< Not in the tool tip.

    /// Its keys do nothing while a text is being typed, as they would change what nobody looks at.
    CommandEntry& NotWhileTyping();

    CommandEntry& InGroup(const std::wstring& caption);
    CommandEntry& OnStartPage();
    CommandEntry& InMenu(const std::wstring& menuId);
    CommandEntry& EnabledWhile(const vesk::Command::Condition& condition);

    /// The caption in the user's language.
    std::wstring GetCaption() const;

    /// The tool tip in the user's language, with the keys if there are any: "撤销上一步 (Ctrl+Z)".
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

    std::wstring otherKeys = {};       ///< Another shortcut of the button.
    std::wstring toolTipArgument = {}; ///< Replaces `%1` in the tool tip.
    std::function<bool(const vesk::CommandParameters&)> isPossible = {}; ///< If empty, always.

    bool isNotWhileTyping = false;
    bool isOnStartPage = false; ///< Whether its group is on the page 开始 instead of 草图.
};

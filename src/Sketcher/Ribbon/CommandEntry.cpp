#include "Ribbon/CommandEntry.h"

#include "Model/UiText.h"

#include "Command/IAction.h"
#include "HostUi/QtText.h"
#include "Journal/CommandParameters.h"
#include "Replay/JournalReplayer.h"

using namespace vesk;

CommandEntry CommandEntry::Plain(const std::wstring& id, const std::wstring& caption,
                                 const std::function<void()>& function)
{
    CommandEntry entry;
    entry.id = id;
    entry.caption = caption;
    entry.execute = [function](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        function();
        return nullptr;
    };
    return entry;
}

CommandEntry CommandEntry::Dialog(const std::wstring& id, const std::wstring& caption,
                                  const std::function<void()>& open)
{
    return Plain(id, caption, [open] {
        if (!JournalReplayer::IsReplaying())
            open();
    });
}

CommandEntry CommandEntry::Interactive(const std::wstring& id, const std::wstring& caption,
                                       const std::function<OwnerPtr<IAction>()>& begin)
{
    CommandEntry entry;
    entry.id = id;
    entry.caption = caption;
    entry.kind = Command::Kind::Interactive;
    entry.execute = [begin](IUiView*, const CommandParameters&) { return begin(); };
    return entry;
}

CommandEntry
CommandEntry::WithParameters(const std::wstring& id, const std::wstring& caption,
                             const std::function<void(const CommandParameters&)>& execute)
{
    CommandEntry entry;
    entry.id = id;
    entry.caption = caption;
    entry.execute = [execute](IUiView*, const CommandParameters& parameters) -> OwnerPtr<IAction> {
        execute(parameters);
        return nullptr;
    };
    return entry;
}

CommandEntry&
CommandEntry::PossibleWith(const std::function<bool(const CommandParameters&)>& predicate)
{
    isPossible = predicate;
    return *this;
}

CommandEntry& CommandEntry::WithIcon(const std::wstring& name)
{
    iconPath = L":/icons/" + name + L".svg";
    return *this;
}

CommandEntry& CommandEntry::WithToolTip(const std::wstring& text, const std::wstring& argument)
{
    toolTip = text;
    toolTipArgument = argument;
    return *this;
}

CommandEntry& CommandEntry::WithKeys(const std::wstring& sequence)
{
    keys = sequence;
    return *this;
}

CommandEntry& CommandEntry::WithOtherKeys(const std::wstring& sequence)
{
    otherKeys = sequence;
    return *this;
}

CommandEntry& CommandEntry::NotWhileTyping()
{
    isNotWhileTyping = true;
    return *this;
}

CommandEntry& CommandEntry::InGroup(const std::wstring& groupCaption)
{
    group = groupCaption;
    return *this;
}

CommandEntry& CommandEntry::OnStartPage()
{
    isOnStartPage = true;
    return *this;
}

CommandEntry& CommandEntry::InMenu(const std::wstring& menuId)
{
    menu = menuId;
    return *this;
}

CommandEntry& CommandEntry::EnabledWhile(const Command::Condition& condition)
{
    isEnabled = condition;
    return *this;
}

std::wstring CommandEntry::GetCaption() const
{
    return Tr(caption);
}

std::wstring CommandEntry::GetToolTip() const
{
    QString tip = ToQString(Tr(toolTip));
    if (!toolTipArgument.empty())
        tip = tip.arg(ToQString(toolTipArgument));
    return ToWide(tip) + (keys.empty() ? std::wstring() : L" (" + keys + L")");
}

#include "Ribbon/ContextMenu.h"

#include "Model/UiText.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "HostUi/QtText.h"
#include "Journal/CommandParameters.h"

#include <QIcon>
#include <QKeySequence>
#include <QMenu>
#include <QPoint>

using namespace vesk;

namespace
{

/// In the order of the menu; null for a separator. Commands that the program does not have are left
/// out.
constexpr const wchar_t* CommandIds[] = {
    L"Sketcher.Cut",       L"Sketcher.Copy",   L"Sketcher.Paste",
    L"Sketcher.Duplicate", L"Sketcher.Delete", nullptr,
    L"Sketcher.Move",      L"Sketcher.CopyTo", L"Sketcher.Rotate",
    L"Sketcher.Mirror",    L"Sketcher.Offset", nullptr,
    L"Sketcher.SelectAll", L"Sketcher.ZoomAll"};

/// What tells the controls of the program from other objects, and what a menu's entry is about.
constexpr char IsDefinition[] = "IsDefinition";
constexpr char CommandId[] = "CommandId";

bool IsEnabled(const std::wstring& commandId)
{
    const ICommand* pCommand = ICommandManager::Get()->GetCommand(commandId);
    return pCommand != nullptr && pCommand->IsEnabled();
}

}

ContextMenu::ContextMenu(const std::vector<CommandEntry>& commands, SketchView& view) : m_view(view)
{
    for (const CommandEntry& entry : commands)
        m_commands[entry.id] = entry;
    connect(&view, &SketchView::menuRequested, this, &ContextMenu::Show);
    connect(&view, &SketchView::repeatRequested, this, [this] { m_lastTool.Repeat(); });
}

void ContextMenu::Show(const QPoint& position)
{
    auto* pMenu = new QMenu(&m_view);
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    pMenu->setObjectName(QStringLiteral("ContextMenu"));
    AddRepetition(*pMenu);
    for (const wchar_t* commandId : CommandIds)
    {
        const CommandEntry* pEntry = commandId != nullptr ? Find(commandId) : nullptr;
        if (commandId == nullptr)
            pMenu->addSeparator();
        else if (pEntry != nullptr)
            AddEntry(*pMenu, *pEntry, ToQString(pEntry->GetCaption()));
    }
    pMenu->popup(position);
}

void ContextMenu::AddEntry(QMenu& menu, const CommandEntry& entry, const QString& text) const
{
    QAction* pAction = menu.addAction(QIcon(ToQString(entry.iconPath)), text);
    pAction->setProperty(IsDefinition, true);
    pAction->setProperty(CommandId, ToQString(entry.id));
    pAction->setEnabled(IsEnabled(entry.id));
    pAction->setShortcut(QKeySequence(ToQString(entry.keys)));
    // Only shown here: the button has the shortcut.
    pAction->setShortcutContext(Qt::WidgetShortcut);
    pAction->setShortcutVisibleInContextMenu(true);
    // The menu and this may be gone after the command.
    connect(pAction, &QAction::triggered, &m_view,
            [commandId = entry.id] { ActionManager::RunCommand(commandId, {}); });
}

void ContextMenu::AddRepetition(QMenu& menu) const
{
    const CommandEntry* pLast = Find(m_lastTool.GetCommandId());
    if (pLast == nullptr)
        return;
    AddEntry(menu, *pLast, "重复“%1”"_tr.arg(ToQString(pLast->GetCaption())));
    menu.addSeparator();
}

/// Null if there is none.
const CommandEntry* ContextMenu::Find(const std::wstring& commandId) const
{
    const auto found = m_commands.find(commandId);
    return found != m_commands.end() ? &found->second : nullptr;
}

#include "VeskUiQtImpl/Control/QtCommandButtonMenu.h"

#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Journal/CommandParameters.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ButtonAction.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/FileIcons.h"
#include "VeskUiQtImpl/Control/PropertyName.h"
#include "VeskUiQtImpl/CreateChild.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "HostUi/QtText.h"
#include "HostUi/QtVersions.h"

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QPointer>
#include <QVariant>

namespace vesk
{
namespace
{

constexpr char MenuStyleSheet[] =
    "QMenu { background-color: white; border: 1px solid gray;icon-size: 32px;}"
    "                         "
    "QMenu::item {background-color: transparent;padding:2px 32px;margin:0px 1px;}"
    "                         "
    "QMenu::item:selected {background-color: #CCDAE7; border-width:1px;border-style:solid; "
    "border-color:#19649F;}";

using MenuItems = std::vector<const IMenuItemDefinition*>;

/// The child entries of an entry; empty if it is not a container.
MenuItems GetChildren(const IControlDefinition* pDefinition)
{
    const auto* pContainer = dynamic_cast<const IMenuItemContainerDefinition*>(pDefinition);
    return pContainer != nullptr ? pContainer->GetMenuItemDefinitions() : MenuItems();
}

QMenu* CreateMenu(QToolButton* pButton, const char* function)
{
    auto* pMenu = CreateChild<QMenu>(pButton, function);
    if (pMenu == nullptr)
        return nullptr;
    pMenu->setProperty(PropertyName::IsDefinition, true);
    pMenu->setStyleSheet(MenuStyleSheet);
    return pMenu;
}

std::wstring GetCommandId(const QAction& action)
{
    return ToWide(action.property(PropertyName::CommandId).toString());
}

/// Null for an unknown id. Without a command manager no command is known.
const ICommand* FindCommand(const std::wstring& commandId)
{
    const ICommandManager* pManager = ICommandManager::Get();
    return pManager != nullptr ? pManager->GetCommand(commandId) : nullptr;
}

/// Applies the states of its command to an entry; without a command the entry keeps its own. The
/// conditions of a command, and handlers of a change of the entry, may do anything.
void UpdateItem(const QPointer<QAction>& pAction)
{
    const std::wstring commandId = GetCommandId(*pAction);
    const ICommand* pCommand = FindCommand(commandId);
    const bool isVisible = pCommand != nullptr && pCommand->IsVisible();
    if (pCommand == nullptr || pAction == nullptr)
        return;
    pAction->setVisible(isVisible);

    pCommand = FindCommand(commandId);
    const bool isEnabled = pCommand != nullptr && pCommand->IsEnabled();
    if (pCommand != nullptr && pAction != nullptr)
        pAction->setEnabled(isEnabled);
}

bool LooksLike(const QAction& action, const QAction& other)
{
    return ParentWidgetOf(action) == ParentWidgetOf(other) && action.text() == other.text() &&
           action.iconText() == other.iconText();
}

}

QtCommandButtonMenu::QtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> pControlDefinition)
    : m_pControlDefinition(std::move(pControlDefinition))
{
    constexpr char Function[] = "vesk::QtCommandButtonMenu::QtCommandButtonMenu";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;

    // A report may run an event loop.
    const QPointer<QtCommandButtonMenu> pSelf(this);
    const QIcon icon = FileIcons::Get(m_pControlDefinition->GetIconPath());
    QAction* pAction = CreateAction(*m_pControlDefinition, icon, this, Function);
    if (pSelf == nullptr)
        return;
    if (pAction != nullptr)
    {
        setDefaultAction(pAction);
        connect(pAction, &QAction::triggered, this, &QtCommandButtonMenu::OnMenuTriggered);
    }
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    setProperty(PropertyName::IsDefinition, true);
    QMenu* pMenu = CreateMenu(this, Function);
    if (pSelf == nullptr)
        return;
    setMenu(pMenu);
    setPopupMode(QToolButton::MenuButtonPopup);
    if (AddMenuItems(menu(), m_pControlDefinition->GetMenuItemDefinitions()))
        Subscribe(m_pControlDefinition.Get(), this);
}

QtCommandButtonMenu::~QtCommandButtonMenu()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

IControlDefinition* QtCommandButtonMenu::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtCommandButtonMenu::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtCommandButtonMenu::UpdateStatus", L"pControlDefinition为空")))
        return;

    const QPointer<QtCommandButtonMenu> pSelf(this);
    const bool isVisible = m_pControlDefinition->IsVisible();
    setVisible(isVisible);
    if (pSelf == nullptr || !isVisible)
        return;
    setEnabled(m_pControlDefinition->IsEnabled());
    // By index: entries may be added or removed meanwhile.
    for (int i = 0; pSelf != nullptr && i < GetItems().size(); ++i)
        UpdateItem(GetItems().at(i));
}

void QtCommandButtonMenu::On(IControlDefinitionChangeEventArgs* pArgs)
{
    constexpr char Function[] = "vesk::QtCommandButtonMenu::On";
    if (!Check(pArgs != nullptr, VESK_SITE(Function, L"pArgs为空")))
        return;

    switch (pArgs->GetType())
    {
    case ControlDefinitionChangeEventType::Add:
        AppendMenuItem(pArgs->GetItemDefinition());
        break;
    case ControlDefinitionChangeEventType::Insert:
        InsertMenuItem(pArgs->GetIndex(), pArgs->GetItemDefinition());
        break;
    case ControlDefinitionChangeEventType::Clear:
        if (Check(menu() != nullptr, VESK_SITE(Function, L"menu()为空")))
            menu()->clear();
        break;
    default:
        break;
    }
}

void QtCommandButtonMenu::AddMenuItem(QMenu* pMenu, const IMenuItemDefinition* pMenuItemDefinition)
{
    constexpr char Function[] = "vesk::QtCommandButtonMenu::AddMenuItem";
    if (!Check(pMenuItemDefinition != nullptr, VESK_SITE(Function, L"pMenuItemDefinition为空")))
        return;
    if (!Check(pMenu != nullptr, VESK_SITE(Function, L"pMenu为空")))
        return;

    const QString caption = ToQString(pMenuItemDefinition->GetCaption());
    const QIcon icon = FileIcons::Get(pMenuItemDefinition->GetIconPath());
    const auto* pCommandItem = dynamic_cast<const ICommandMenuItemDefinition*>(pMenuItemDefinition);
    if (pCommandItem != nullptr)
    {
        // The menu gets it complete, so that it does not hear of each property.
        auto* pAction = new QAction(icon, caption, pMenu);
        pAction->setProperty(PropertyName::IsDefinition, true);
        SetUpItem(*pAction, *pCommandItem);
        pMenu->addAction(pAction);
        return;
    }

    const MenuItems children = GetChildren(pMenuItemDefinition);
    if (children.empty())
        return;
    QMenu* pSubMenu = pMenu->addMenu(icon, caption);
    pSubMenu->setProperty(PropertyName::IsDefinition, true);
    AddMenuItems(pSubMenu, children);
}

/// Adds entries in order. Returns false if the button was destroyed: missing entries are reported,
/// and a report may run an event loop.
bool QtCommandButtonMenu::AddMenuItems(QMenu* pMenu, const MenuItems& items)
{
    const QPointer<QtCommandButtonMenu> pSelf(this);
    const QPointer<QMenu> pLivingMenu(pMenu);
    for (const IMenuItemDefinition* pItem : items)
    {
        AddMenuItem(pLivingMenu, pItem);
        if (pSelf == nullptr)
            return false;
    }
    return true;
}

void QtCommandButtonMenu::AppendMenuItem(const IControlDefinition* pItemDefinition)
{
    const auto* pItem = dynamic_cast<const IMenuItemDefinition*>(pItemDefinition);
    if (Check(pItem != nullptr, VESK_SITE("vesk::QtCommandButtonMenu::On", L"pMenuItemDefine为空")))
        AddMenuItem(menu(), pItem);
}

/// Inserted entries do not count as definitions for code that looks for the property.
void QtCommandButtonMenu::InsertMenuItem(int index, const IControlDefinition* pItemDefinition)
{
    constexpr char Function[] = "vesk::QtCommandButtonMenu::On";
    if (!Check(menu() != nullptr, VESK_SITE(Function, L"menu()为空")))
        return;
    const QList<QAction*> actions = menu()->actions();
    if (!Check(index >= 0 && index < actions.size(), VESK_SITE(Function, L"index不正确")))
        return;

    const MenuItems children = GetChildren(pItemDefinition);
    if (!children.empty())
    {
        const QPointer<QAction> pNext(actions[index]);
        const QPointer<QMenu> pSubMenu(new QMenu(ToQString(pItemDefinition->GetCaption()), this));
        if (AddMenuItems(pSubMenu, children) && pSubMenu != nullptr && pNext != nullptr &&
            menu() != nullptr)
            menu()->insertMenu(pNext, pSubMenu);
        return;
    }
    const auto* pCommandItem = dynamic_cast<const ICommandMenuItemDefinition*>(pItemDefinition);
    if (pCommandItem == nullptr)
        return;
    const QIcon icon = FileIcons::Get(pCommandItem->GetIconPath());
    auto* pAction = new QAction(icon, ToQString(pCommandItem->GetCaption()), this);
    SetUpItem(*pAction, *pCommandItem);
    menu()->insertAction(actions[index], pAction);
}

void QtCommandButtonMenu::SetUpItem(QAction& action, const ICommandMenuItemDefinition& definition)
{
    action.setCheckable(true);
    action.setToolTip(ToQString(definition.GetTooltip()));
    action.setProperty(PropertyName::CommandId, ToQString(definition.GetCommandId()));
    connect(&action, &QAction::triggered, this, &QtCommandButtonMenu::OnMenuItemTriggered);
}

/// Checks only the chosen entry of the menu itself, and any entry that looks exactly like it.
/// Returns false if the chosen entry or the button was destroyed: handlers of a check mark may do
/// anything.
bool QtCommandButtonMenu::CheckOnly(const QAction& chosen)
{
    const QPointer<QtCommandButtonMenu> pSelf(this);
    const QPointer<const QAction> pChosen(&chosen);
    const auto isAlive = [&] { return pSelf != nullptr && pChosen != nullptr; };
    for (int i = 0; isAlive() && i < GetItems().size(); ++i)
        GetItems().at(i)->setChecked(false);
    for (int i = 0; isAlive() && i < GetItems().size(); ++i)
    {
        QAction* pAction = GetItems().at(i);
        if (LooksLike(*pAction, chosen))
            pAction->setChecked(true);
    }
    return isAlive();
}

/// The entries of the menu itself; empty without a menu.
QList<QAction*> QtCommandButtonMenu::GetItems() const
{
    return menu() != nullptr ? menu()->actions() : QList<QAction*>();
}

void QtCommandButtonMenu::OnMenuItemTriggered(bool)
{
    auto* pAction = qobject_cast<QAction*>(sender());
    if (!Check(pAction != nullptr,
               VESK_SITE("vesk::QtCommandButtonMenu::OnMenuItemTriggered", L"pAction为空")))
        return;

    if (CheckOnly(*pAction))
        ProcessCommandUtil::ProcessStatusBarCommand(GetCommandId(*pAction), CommandParameters(),
                                                    pAction);
}

void QtCommandButtonMenu::OnMenuTriggered(bool)
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtCommandButtonMenu::OnMenuTriggered", L"pControlDefinition为空")))
        return;

    const std::wstring commandId = m_pControlDefinition->GetCommandId();
    if (!commandId.empty())
        ProcessCommandUtil::ProcessRibbonBarCommand(commandId, CommandParameters(), sender());
}

}

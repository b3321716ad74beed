#include "Control/QtCommandButtonMenu.h"

#include "CheckSite.h"
#include "Command/CommandParameters.h"
#include "Command/ICommand.h"
#include "Command/ICommandManager.h"
#include "Control/ButtonAction.h"
#include "Control/ControlSubscription.h"
#include "Control/PropertyName.h"
#include "CreateChild.h"
#include "ProcessCommandUtil.h"

#include <HostUi/QtText.h>

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

/// The entries that an entry holds; none when it is no container.
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

}

QtCommandButtonMenu::QtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> pControlDefinition)
    : m_pControlDefinition(std::move(pControlDefinition))
{
    constexpr char Function[] = "vesk::QtCommandButtonMenu::QtCommandButtonMenu";
    if (!Check(m_pControlDefinition != nullptr, VESK_SITE(Function, L"pControlDefinition为空")))
        return;

    if (QAction* pAction = CreateAction(*m_pControlDefinition, this, Function))
    {
        setDefaultAction(pAction);
        connect(pAction, &QAction::triggered, this, &QtCommandButtonMenu::OnMenuTriggered);
    }
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    setProperty(PropertyName::IsDefinition, true);
    setMenu(CreateMenu(this, Function));
    setPopupMode(QToolButton::MenuButtonPopup);
    for (const IMenuItemDefinition* pItem : m_pControlDefinition->GetMenuItemDefinitions())
        AddMenuItem(menu(), pItem);
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
    if (pSelf == nullptr || menu() == nullptr)
        return;

    for (QAction* pAction : menu()->actions())
    {
        const ICommand* pCommand = ICommandManager::Get()->GetCommand(GetCommandId(*pAction));
        if (pCommand == nullptr)
            continue;
        pAction->setVisible(pCommand->IsVisible());
        pAction->setEnabled(pCommand->IsEnabled());
    }
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
    const QIcon icon(ToQString(pMenuItemDefinition->GetIconPath()));
    const auto* pCommandItem = dynamic_cast<const ICommandMenuItemDefinition*>(pMenuItemDefinition);
    if (pCommandItem != nullptr)
    {
        QAction* pAction = pMenu->addAction(icon, caption);
        pAction->setProperty(PropertyName::IsDefinition, true);
        SetUpItem(*pAction, *pCommandItem);
        return;
    }

    const MenuItems children = GetChildren(pMenuItemDefinition);
    if (children.empty())
        return;
    QMenu* pSubMenu = pMenu->addMenu(icon, caption);
    pSubMenu->setProperty(PropertyName::IsDefinition, true);
    for (const IMenuItemDefinition* pChild : children)
        AddMenuItem(pSubMenu, pChild);
}

void QtCommandButtonMenu::AppendMenuItem(const IControlDefinition* pItemDefinition)
{
    const auto* pItem = dynamic_cast<const IMenuItemDefinition*>(pItemDefinition);
    if (Check(pItem != nullptr, VESK_SITE("vesk::QtCommandButtonMenu::On", L"pMenuItemDefine为空")))
        AddMenuItem(menu(), pItem);
}

/// What is inserted does not count as a definition to those who look for the property.
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
        auto* pSubMenu = new QMenu(ToQString(pItemDefinition->GetCaption()), this);
        for (const IMenuItemDefinition* pChild : children)
            AddMenuItem(pSubMenu, pChild);
        menu()->insertMenu(actions[index], pSubMenu);
        return;
    }
    const auto* pCommandItem = dynamic_cast<const ICommandMenuItemDefinition*>(pItemDefinition);
    if (pCommandItem == nullptr)
        return;
    const QIcon icon(ToQString(pCommandItem->GetIconPath()));
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

/// Leaves of the menu itself only the chosen entry checked, and what looks exactly like it.
void QtCommandButtonMenu::CheckOnly(const QAction& chosen)
{
    if (menu() == nullptr)
        return;
    const QList<QAction*> actions = menu()->actions();
    for (QAction* pAction : actions)
        pAction->setChecked(false);
    for (QAction* pAction : actions)
    {
        if (pAction->parentWidget() == chosen.parentWidget() && pAction->text() == chosen.text() &&
            pAction->iconText() == chosen.iconText())
            pAction->setChecked(true);
    }
}

void QtCommandButtonMenu::OnMenuItemTriggered(bool)
{
    auto* pAction = qobject_cast<QAction*>(sender());
    if (!Check(pAction != nullptr,
               VESK_SITE("vesk::QtCommandButtonMenu::OnMenuItemTriggered", L"pAction为空")))
        return;

    CheckOnly(*pAction);
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

#pragma once

#include "Command/ICommandManager.h"
#include "Control/ChangeArgs.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include <functional>
#include <string>
#include <vector>

namespace vesk::test
{

/// An icon path that makes an icon non-null.
constexpr wchar_t IconPath[] = L"/an/icon.png";

inline OwnerPtr<CommandMenuItemDefinition> MakeItem(const std::wstring& commandId,
                                                    const std::wstring& caption)
{
    auto opItem = MakeOwner<CommandMenuItemDefinition>(L"Item." + caption, commandId, caption);
    opItem->SetTooltip(L"Tip of " + caption);
    opItem->SetIconPath(IconPath);
    return opItem;
}

/// A container with a command entry for each caption; the ids of the commands are the captions.
inline OwnerPtr<MenuItemContainerDefinition> MakeContainer(const std::wstring& caption,
                                                           const std::vector<std::wstring>& entries)
{
    auto opContainer = MakeOwner<MenuItemContainerDefinition>(L"Container." + caption, caption);
    opContainer->SetIconPath(IconPath);
    for (const std::wstring& entry : entries)
        opContainer->AddMenuItem(MakeItem(entry, entry));
    return opContainer;
}

/// A definition of the host that holds whatever a test wants, valid or not.
struct LooseMenuDefinition final : ControlDefinition<ICommandButtonMenuDefinition>
{
    LooseMenuDefinition() : ControlDefinition(L"Menu.Id") {}

    const std::wstring& GetCommandId() const override { return Kept(L"Main"); }
    const std::wstring& GetIconPath() const override { return Kept(IconPath); }
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override
    {
        return items;
    }

    std::vector<const IMenuItemDefinition*> items;
};

/// A command button menu in a window. Its host knows the commands Main, A, B and C, which record
/// their calls.
struct MenuFixture
{
    MenuFixture() : MenuFixture(MakeOwner<CommandButtonMenuDefinition>(L"Menu.Id", L"Main")) {}

    template <class Definition>
    explicit MenuFixture(OwnerPtr<Definition> opDefinition)
    {
        for (const wchar_t* pId : {L"Main", L"A", L"B", L"C"})
            host.AddCommand(pId, [this, pId](const CommandParameters& parameters) {
                calls.push_back(pId);
                isLastWithoutParameters = parameters == CommandParameters();
                if (onCommand)
                    onCommand();
            });
        pDefinition = dynamic_cast<CommandButtonMenuDefinition*>(opDefinition.Get());
        opControl = VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
        pButton = dynamic_cast<QToolButton*>(opControl.Get());
    }

    void PlaceAndShow()
    {
        pButton->setParent(&parent);
        parent.show();
        pButton->show();
    }

    /// Sends the button a change that its definition does not know about.
    void Tell(int type, int index = -1, const IControlDefinition* pItem = nullptr) const
    {
        ChangeArgs args(type, index, pItem);
        dynamic_cast<IControlDefinitionChangeEventHandler*>(opControl.Get())->On(&args);
    }

    QAction* GetAction(int index) const { return pButton->menu()->actions().at(index); }

    QStringList GetCaptions() const { return CaptionsOf(*pButton->menu()); }

    static QStringList CaptionsOf(const QMenu& menu)
    {
        QStringList captions;
        for (const QAction* pAction : menu.actions())
            captions += pAction->text();
        return captions;
    }

    HostFixture host;
    QWidget parent;
    std::vector<std::wstring> calls;
    bool isLastWithoutParameters = false;
    std::function<void()> onCommand;
    CommandButtonMenuDefinition* pDefinition;
    OwnerPtr<IControl> opControl;
    QToolButton* pButton;
};

}

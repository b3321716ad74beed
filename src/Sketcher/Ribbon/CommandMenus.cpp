#include "Ribbon/CommandMenus.h"

#include "Model/UiText.h"
#include "Ribbon/CommandTable.h"

#include "Control/CommandButtonMenuDefinition.h"

#include <utility>

using namespace vesk;

namespace
{

OwnerPtr<IMenuItemDefinition> MakeItem(const CommandEntry& entry)
{
    auto opItem = MakeOwner<CommandMenuItemDefinition>(entry.id, entry.id, entry.GetCaption());
    opItem->SetTooltip(entry.GetToolTip());
    opItem->SetIconPath(entry.iconPath);
    return opItem;
}

}

OwnerPtr<CommandButtonMenuDefinition> MakeZoomMenu(const std::vector<CommandEntry>& commands)
{
    auto opMenu = MakeOwner<CommandButtonMenuDefinition>(ZoomMenu::Id, L"Sketcher.ZoomAll");
    auto opScales = MakeOwner<MenuItemContainerDefinition>(ZoomMenu::ScaleId, L"比例"_tr);
    opScales->SetIconPath(L":/icons/zoom-scale.svg");
    for (const CommandEntry& entry : commands)
    {
        if (entry.menu == ZoomMenu::Id)
            opMenu->AddMenuItem(MakeItem(entry));
        if (entry.menu == ZoomMenu::ScaleId)
            opScales->AddMenuItem(MakeItem(entry));
    }
    opMenu->AddMenuItem(std::move(opScales));
    opMenu->SetCaption(L"缩放"_tr);
    opMenu->SetTooltip(L"缩放到全部图元；箭头打开更多缩放命令"_tr);
    opMenu->SetIconPath(L":/icons/zoom.svg");
    opMenu->SetVisible(false);
    return opMenu;
}

OwnerPtr<CommandButtonMenuDefinition> MakePaneMenu(const std::vector<CommandEntry>& commands)
{
    auto opMenu = MakeOwner<CommandButtonMenuDefinition>(PaneMenu::Id, L"Sketcher.ShowAllPanes");
    for (const CommandEntry& entry : commands)
    {
        if (entry.menu == PaneMenu::Id)
            opMenu->AddMenuItem(MakeItem(entry));
    }
    opMenu->SetCaption(L"面板"_tr);
    opMenu->SetTooltip(L"显示全部面板；箭头逐个显示或隐藏"_tr);
    opMenu->SetIconPath(L":/icons/panes.svg");
    opMenu->SetVisible(false);
    return opMenu;
}

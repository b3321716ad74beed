#pragma once

#include "Control/CommandButtonDefinition.h"
#include "Support/HostFixture.h"
#include "VeskUiQtImpl/Control/QtButton.h"

#include <QAction>
#include <QIcon>
#include <QPixmap>
#include <QTemporaryDir>

namespace vesk::test
{

/// A button in a shown window.
struct ButtonFixture
{
    ButtonFixture()
    {
        auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Button.Id", L"Test.Command");
        pDefinition = opDefinition.Get();
        pDefinition->SetCaption(L"caption");
        pDefinition->SetTooltip(L"tip");
        opButton = MakeOwner<QtButton>(std::move(opDefinition), &parent);
        parent.show();
    }

    QAction& Action() const { return *opButton->defaultAction(); }

    HostFixture host;
    QWidget parent;
    CommandButtonDefinition* pDefinition;
    OwnerPtr<QtButton> opButton;
};

/// Writes an icon of a single colour and returns its path.
inline QString WriteIcon(const QTemporaryDir& folder, const QString& name, const QColor& color)
{
    QPixmap pixmap(16, 16);
    pixmap.fill(color);
    const QString path = folder.filePath(name);
    pixmap.save(path);
    return path;
}

inline QColor ColorOf(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage().pixelColor(8, 8);
}

}

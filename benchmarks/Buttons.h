#pragma once

#include "IconFiles.h"

#include "Control/CommandButtonDefinition.h"
#include "HostUi/QtText.h"
#include "VeskUiQtImpl/Control/QtButton.h"

#include <QAction>
#include <QIcon>
#include <QToolButton>
#include <QWidget>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

constexpr int Buttons = 1000;

inline QString CaptionOf(int i)
{
    return QString("Straight line %1").arg(i);
}

inline OwnerPtr<CommandButtonDefinition> MakeDefinition(int i, const QString& icon)
{
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Button." + std::to_wstring(i),
                                                           L"Command." + std::to_wstring(i));
    opDefinition->SetCaption(ToWide(CaptionOf(i)));
    opDefinition->SetTooltip(L"Draws a line from point to point");
    opDefinition->SetIconPath(ToWide(icon));
    return opDefinition;
}

/// What a program without definitions knows about a button.
struct Data
{
    QString id;
    QString commandId;
    QString caption;
    QString tip;
    QString icon;
    bool isChecked = false;
};

inline Data DataOf(int i, const QString& icon)
{
    return {"Button." + QString::number(i), "Command." + QString::number(i), CaptionOf(i),
            "Draws a line from point to point", icon};
}

/// A button as one would write it by hand.
class PlainButton final : public QToolButton
{
public:
    PlainButton(Data known, QWidget* pParent) : QToolButton(pParent), m_data(std::move(known))
    {
        setObjectName(m_data.id);
        setAutoRaise(true);
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        auto* pAction = new QAction(QIcon(m_data.icon), m_data.caption, this);
        pAction->setCheckable(true);
        pAction->setToolTip(m_data.tip);
        setDefaultAction(pAction);
        connect(this, &QAbstractButton::clicked, this,
                [this](bool isChecked) { m_data.isChecked = isChecked; });
    }

private:
    Data m_data;
};

inline std::vector<OwnerPtr<CommandButtonDefinition>> MakeDefinitions(const IconFiles& icons)
{
    std::vector<OwnerPtr<CommandButtonDefinition>> definitions;
    for (int i = 0; i < Buttons; ++i)
        definitions.push_back(MakeDefinition(i, icons[i]));
    return definitions;
}

inline std::vector<OwnerPtr<QtButton>>
Construct(std::vector<OwnerPtr<CommandButtonDefinition>>& definitions, QWidget& parent)
{
    std::vector<OwnerPtr<QtButton>> buttons;
    buttons.reserve(Buttons);
    for (auto& opDefinition : definitions)
        buttons.push_back(MakeOwner<QtButton>(std::move(opDefinition), &parent));
    return buttons;
}

inline std::vector<Data> MakeData(const IconFiles& icons)
{
    std::vector<Data> all;
    for (int i = 0; i < Buttons; ++i)
        all.push_back(DataOf(i, icons[i]));
    return all;
}

inline std::vector<std::unique_ptr<PlainButton>> ConstructPlain(std::vector<Data>& all,
                                                                QWidget& parent)
{
    std::vector<std::unique_ptr<PlainButton>> buttons;
    buttons.reserve(Buttons);
    for (Data& data : all)
        buttons.push_back(std::make_unique<PlainButton>(std::move(data), &parent));
    return buttons;
}

}

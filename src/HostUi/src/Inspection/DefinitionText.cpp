#include "Inspection/DefinitionText.h"

#include "Texts/HostUiText.h"

#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/ILabelDefinition.h"
#include "Control/ILineEditDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "HostUi/QtText.h"

#include <QStringList>

#include <array>

namespace vesk
{
namespace
{

QString ValueOf(const ICommandButtonDefinition& button)
{
    return button.IsChecked() ? "选中"_tr : QString();
}

QString ValueOf(const ILabelDefinition& label)
{
    return ToQString(label.GetCaption());
}

QString ValueOf(const ILineEditDefinition& edit)
{
    return ToQString(edit.GetText());
}

QString ValueOf(const IComboBoxDefinition& box)
{
    const std::vector<std::wstring> items = box.GetItems();
    const int index = box.GetCurrentIndex();
    const bool isItem = index >= 0 && index < static_cast<int>(items.size());
    return QStringLiteral("%1/%2 %3")
        .arg(index)
        .arg(items.size())
        .arg(isItem ? ToQString(items[static_cast<std::size_t>(index)]) : QString());
}

QString ValueOf(const IProgressBarDefinition& bar)
{
    return QString::number(bar.GetValue());
}

QString ValueOf(const ICheckBoxGroupDefinition& group)
{
    QStringList states;
    for (const ICheckBoxDefinition* pBox : group.GetCheckBoxDefinitions())
        states << QStringLiteral("%1=%2").arg(ToQString(pBox->GetId())).arg(pBox->GetCheckState());
    return states.join(QLatin1Char(' '));
}

QString ValueOf(const IRadioButtonGroupDefinition& group)
{
    return ToQString(group.GetCurrentRadioButtonId());
}

QString ValueOf(const ICommandButtonMenuDefinition& menu)
{
    return TranslateHostUiText("%n 项"_source,
                               static_cast<int>(menu.GetMenuItemDefinitions().size()));
}

template <class Definition>
bool Describe(const IControlDefinition& definition, const char* kind, DefinitionText& text)
{
    const auto* pDefinition = dynamic_cast<const Definition*>(&definition);
    if (pDefinition == nullptr)
        return false;
    text = {TranslateHostUiText(kind), ValueOf(*pDefinition)};
    return true;
}

}

DefinitionText DescribeDefinition(const IControlDefinition& definition)
{
    DefinitionText text;
    const bool isKnown = Describe<ICommandButtonDefinition>(definition, "按钮"_source, text) ||
                         Describe<ILabelDefinition>(definition, "标签"_source, text) ||
                         Describe<ILineEditDefinition>(definition, "输入框"_source, text) ||
                         Describe<IComboBoxDefinition>(definition, "下拉框"_source, text) ||
                         Describe<IProgressBarDefinition>(definition, "进度条"_source, text) ||
                         Describe<ICheckBoxGroupDefinition>(definition, "复选组"_source, text) ||
                         Describe<IRadioButtonGroupDefinition>(definition, "单选组"_source, text) ||
                         Describe<ICommandButtonMenuDefinition>(definition, "菜单"_source, text);
    return isKnown ? text : DefinitionText{"其他"_tr, QString()};
}

}

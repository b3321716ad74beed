#include "Controls/GroupFocus.h"

#include <QAbstractButton>
#include <QButtonGroup>

namespace vesk
{

void OpenGroupToTab(const QWidget& widget)
{
    const auto* pButton = qobject_cast<const QAbstractButton*>(&widget);
    const QButtonGroup* pGroup = pButton != nullptr ? pButton->group() : nullptr;
    if (pGroup == nullptr || pGroup->exclusive())
        return;
    for (QAbstractButton* pBox : pGroup->buttons())
        pBox->setFocusPolicy(static_cast<Qt::FocusPolicy>(pBox->focusPolicy() | Qt::TabFocus));
}

}

#include "TabStopGuard.h"

#include <QEvent>

namespace vesk
{

void TabStopGuard::Protect(const QList<QAbstractButton*>& boxes, QObject& owner)
{
    new TabStopGuard(boxes, owner);
}

TabStopGuard::TabStopGuard(const QList<QAbstractButton*>& boxes, QObject& owner) : QObject(&owner)
{
    for (QAbstractButton* pBox : boxes)
    {
        m_boxes.append(pBox);
        pBox->installEventFilter(this);
    }
}

bool TabStopGuard::eventFilter(QObject*, QEvent* pEvent)
{
    // A box takes the others' stops away as it gets the focus: they are back before the focus
    // moves.
    if (pEvent->type() != QEvent::KeyPress && pEvent->type() != QEvent::FocusOut)
        return false;
    for (QAbstractButton* pBox : m_boxes)
    {
        if (pBox != nullptr)
            pBox->setFocusPolicy(Qt::FocusPolicy(pBox->focusPolicy() | Qt::TabFocus));
    }
    return false;
}

}

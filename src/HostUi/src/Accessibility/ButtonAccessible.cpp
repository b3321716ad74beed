#include "Accessibility/ButtonAccessible.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QKeySequence>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>

namespace vesk
{
namespace
{

/// A tool button that is checked while its tool runs is pressed; the others are marked.
QAccessible::Role RoleOf(const QAbstractButton& button)
{
    if (qobject_cast<const QRadioButton*>(&button) != nullptr)
        return QAccessible::RadioButton;
    return qobject_cast<const QCheckBox*>(&button) != nullptr ? QAccessible::CheckBox
                                                              : QAccessible::Button;
}

/// Without the marks of mnemonics.
QString Plain(QString text)
{
    for (int i = 0; (i = text.indexOf(QLatin1Char('&'), i)) >= 0; ++i)
        text.remove(i, 1);
    return text;
}

}

bool ButtonAccessible::Serves(const QObject& object)
{
    return qobject_cast<const QToolButton*>(&object) != nullptr ||
           qobject_cast<const QCheckBox*>(&object) != nullptr ||
           qobject_cast<const QRadioButton*>(&object) != nullptr;
}

ButtonAccessible::ButtonAccessible(QAbstractButton& button)
    : QAccessibleWidget(&button, RoleOf(button))
{}

QString ButtonAccessible::text(QAccessible::Text kind) const
{
    const QString text = QAccessibleWidget::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? Plain(GetButton().text()) : text;
}

QAccessible::State ButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = GetButton().isCheckable();
    state.checked = GetButton().isChecked();
    state.pressed = GetButton().isDown();
    state.hasPopup = GetMenuButton() != nullptr;
    return state;
}

QStringList ButtonAccessible::actionNames() const
{
    if (!GetButton().isEnabled())
        return QAccessibleWidget::actionNames();
    const QToolButton* pMenuButton = GetMenuButton();
    QStringList names;
    if (pMenuButton == nullptr || pMenuButton->popupMode() != QToolButton::InstantPopup)
        names << (role() == QAccessible::Button ? pressAction() : toggleAction());
    if (pMenuButton != nullptr)
        names << showMenuAction();
    return names + QAccessibleWidget::actionNames();
}

/// Not before this has returned: a click may run for as long as a tool, and the caller waits.
void ButtonAccessible::doAction(const QString& name)
{
    if (name == pressAction() || name == toggleAction())
        QMetaObject::invokeMethod(&GetButton(), "click", Qt::QueuedConnection);
    else if (name == showMenuAction() && GetMenuButton() != nullptr)
        QMetaObject::invokeMethod(GetMenuButton(), "showMenu", Qt::QueuedConnection);
    else
        QAccessibleWidget::doAction(name);
}

QStringList ButtonAccessible::keyBindingsForAction(const QString& name) const
{
    const QString keys = GetButton().shortcut().toString();
    return name == actionNames().value(0) && !keys.isEmpty() ? QStringList{keys} : QStringList();
}

QAbstractButton& ButtonAccessible::GetButton() const
{
    return static_cast<QAbstractButton&>(*object());
}

/// Null if the button has no menu.
QToolButton* ButtonAccessible::GetMenuButton() const
{
    auto* pTool = qobject_cast<QToolButton*>(object());
    return pTool != nullptr && pTool->menu() != nullptr ? pTool : nullptr;
}

}

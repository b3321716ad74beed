#pragma once

#include <QAccessible>

class QString;
class QWidget;

namespace vesk
{

/// Sets what programs such as screen readers are told that a widget is; to be called before it is
/// shown. AccessibleObjects answers for it.
void SetAccessibleRole(QWidget& widget, QAccessible::Role role);

/// Sets what they are told of its name and its present state. Tells of what changes, and only then.
void SetAccessibleTexts(QWidget& widget, const QString& name, const QString& description);

}

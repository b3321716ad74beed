#pragma once

#include <QAccessibleWidget>

class QAbstractButton;
class QToolButton;

namespace vesk
{

/// A tool button, check box or radio button as screen readers see it: its first action clicks it, a
/// second opens its menu.
class ButtonAccessible final : public QAccessibleWidget
{
public:
    /// Whether an object is such a button.
    static bool Serves(const QObject& object);

    explicit ButtonAccessible(QAbstractButton& button);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

private:
    QAbstractButton& GetButton() const;
    QToolButton* GetMenuButton() const;
};

}

#pragma once

#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Foundation/OwnerPtr.h"

#include <QList>
#include <QToolButton>

#include <vector>

class QAction;
class QMenu;

namespace vesk
{

/// Shows a command-button-menu definition: the main part sends the definition's own command, the
/// arrow opens a menu of further commands and sub-menus.
///
/// The entry of the menu itself that was chosen last is checked; choosing one in a sub-menu
/// unchecks them all.
class QtCommandButtonMenu final : public QToolButton,
                                  public IControl,
                                  public IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// Takes ownership of the definition. With a null definition the button is bare and has no
    /// menu. Visibility and enabled state are first applied by UpdateStatus.
    explicit QtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> pControlDefinition);
    ~QtCommandButtonMenu() override;

    IControlDefinition* GetControlDefinition() const override;

    /// Applies visibility and, while the button is shown, its enabled state and both states of the
    /// commands in the menu itself; sub-menus stay unchanged.
    void UpdateStatus() override;

    /// Adds or inserts entries, or clears the menu; other changes are ignored.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private slots:
    void OnMenuItemTriggered(bool checked);
    void OnMenuTriggered(bool checked);

private:
    void AddMenuItem(QMenu* pMenu, const IMenuItemDefinition* pMenuItemDefinition);

    bool AddMenuItems(QMenu* pMenu, const std::vector<const IMenuItemDefinition*>& items);
    void AppendMenuItem(const IControlDefinition* pItemDefinition);
    void InsertMenuItem(int index, const IControlDefinition* pItemDefinition);
    void SetUpItem(QAction& action, const ICommandMenuItemDefinition& definition);
    bool CheckOnly(const QAction& chosen);
    QList<QAction*> GetItems() const;

    OwnerPtr<ICommandButtonMenuDefinition> m_pControlDefinition;
};

}

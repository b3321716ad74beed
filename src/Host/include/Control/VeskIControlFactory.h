#pragma once

#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"
#include "View/WindowId.h"

namespace vesk
{

class ICheckBoxGroupDefinition;
class IComboBoxDefinition;
class ICommandButtonDefinition;
class ICommandButtonMenuDefinition;
class IControl;
class ILabelDefinition;
class ILineEditDefinition;
class IProgressBarDefinition;
class IRadioButtonGroupDefinition;

/// Creates the controls that show definitions.
///
/// Each operation takes ownership of the definition and returns the control, which owns it from
/// then on. If no control could be created, the definition is freed and the result is empty.
class VESK_HOST_API VeskIControlFactory
{
public:
    VeskIControlFactory() = default;
    virtual ~VeskIControlFactory() = default;
    VeskIControlFactory(const VeskIControlFactory&) = delete;
    VeskIControlFactory& operator=(const VeskIControlFactory&) = delete;

    /// The registered factory, null if no control library is loaded. Not owned.
    static VeskIControlFactory* Get();

    /// Creates a tool button; a click sends the command.
    virtual OwnerPtr<IControl> CreateQtButton(OwnerPtr<ICommandButtonDefinition> opDefinition) = 0;

    /// Creates a line edit, whose definition follows what the user types.
    virtual OwnerPtr<IControl> CreateQtLineEdit(OwnerPtr<ILineEditDefinition> opDefinition) = 0;

    /// Creates a label.
    virtual OwnerPtr<IControl> CreateQtLabel(OwnerPtr<ILabelDefinition> opDefinition) = 0;

    /// Creates a tool button with a menu of commands.
    virtual OwnerPtr<IControl>
    CreateQtCommandButtonMenu(OwnerPtr<ICommandButtonMenuDefinition> opDefinition) = 0;

    /// Creates a combo box.
    virtual OwnerPtr<IControl> CreateQtComboBox(OwnerPtr<IComboBoxDefinition> opDefinition) = 0;

    /// Creates a progress bar.
    virtual OwnerPtr<IControl>
    CreateQtProgressBar(OwnerPtr<IProgressBarDefinition> opDefinition) = 0;

    /// Creates the buttons of a group, which become children of the widget with that window id.
    virtual OwnerPtr<IControl>
    CreateQtRadioButtonGroup(OwnerPtr<IRadioButtonGroupDefinition> opDefinition,
                             WindowId parentWindowId) = 0;

    /// The same for check boxes.
    virtual OwnerPtr<IControl>
    CreateQtCheckBoxGroup(OwnerPtr<ICheckBoxGroupDefinition> opDefinition,
                          WindowId parentWindowId) = 0;

protected:
    /// Registers the factory; null unregisters it. Not owned.
    static void Set(VeskIControlFactory* pFactory);
};

}

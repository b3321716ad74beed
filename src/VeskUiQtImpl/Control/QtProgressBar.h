#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/IProgressBarDefinition.h"
#include "Foundation/OwnerPtr.h"

#include <QProgressBar>

namespace vesk
{

/// Shows a progress-bar definition. The height is fixed, and the user cannot change the value.
class QtProgressBar final : public QProgressBar,
                            public IControl,
                            public IControlDefinitionChangeEventHandler
{
public:
    /// Takes ownership of the definition. With a null definition the bar is bare and follows
    /// nothing. The bar has no parent until the host places it, whatever `pParent` is. Visibility
    /// and enabled state are first applied by UpdateStatus.
    QtProgressBar(OwnerPtr<IProgressBarDefinition> pControlDefinition, QWidget* pParent);
    ~QtProgressBar() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Applies value, text visibility, width, visibility and enabled state; the tool tip stays.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    void ApplyProgress();

    OwnerPtr<IProgressBarDefinition> m_pControlDefinition;
};

}

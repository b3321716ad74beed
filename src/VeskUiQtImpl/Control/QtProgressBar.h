#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/IProgressBarDefinition.h"
#include "Foundation/OwnerPtr.h"

#include <QProgressBar>

namespace vesk
{

/// Shows a progress-bar definition; of a fixed height, and with no way back from the user.
class QtProgressBar final : public QProgressBar,
                            public IControl,
                            public IControlDefinitionChangeEventHandler
{
public:
    /// Takes the definition over. With an empty one the bar is bare and follows nothing.
    /// The bar has no parent until the host places it, whatever `pParent` is.
    /// Visibility and enabled state come with the first UpdateStatus.
    QtProgressBar(OwnerPtr<IProgressBarDefinition> pControlDefinition, QWidget* pParent);
    ~QtProgressBar() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Takes value, text visibility, width, visibility and enabled state over; the tool tip stays.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    void ApplyProgress();

    OwnerPtr<IProgressBarDefinition> m_pControlDefinition;
};

}

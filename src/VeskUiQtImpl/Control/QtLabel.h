#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/ILabelDefinition.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QLabel>

namespace vesk
{

/// Shows a label definition: its caption and its tool tip.
class VESK_UI_QT_IMPL_API QtLabel : public QLabel,
                                    public IControl,
                                    public IControlDefinitionChangeEventHandler
{
public:
    /// Takes the definition over. With an empty one the label is bare and follows nothing.
    /// Visibility and enabled state come with the first UpdateStatus.
    QtLabel(OwnerPtr<ILabelDefinition> pControlDefinition, QWidget* pParent);
    ~QtLabel() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Takes caption, visibility and enabled state over; the tool tip stays.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    OwnerPtr<ILabelDefinition> m_pControlDefinition;
};

}

#pragma once

#include "Control/IControl.h"
#include "Control/IControlDefinitionChangeEvent.h"
#include "Control/ILabelDefinition.h"
#include "Foundation/OwnerPtr.h"
#include "VeskUiQtImpl/VeskUiQtImplExport.h"

#include <QLabel>

namespace vesk
{

/// Shows a label definition: its caption and tool tip.
class VESK_UI_QT_IMPL_API QtLabel : public QLabel,
                                    public IControl,
                                    public IControlDefinitionChangeEventHandler
{
public:
    /// Takes ownership of the definition. With a null definition the label is bare and follows
    /// nothing. Visibility and enabled state are first applied by UpdateStatus.
    QtLabel(OwnerPtr<ILabelDefinition> pControlDefinition, QWidget* pParent);
    ~QtLabel() override;

    IControlDefinition* GetControlDefinition() const override;
    void UpdateStatus() override;

    /// Applies caption, visibility and enabled state; the tool tip stays.
    void On(IControlDefinitionChangeEventArgs* pArgs) override;

private:
    OwnerPtr<ILabelDefinition> m_pControlDefinition;
};

}

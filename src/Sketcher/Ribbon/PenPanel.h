#pragma once

#include "Model/Pen.h"

#include "Control/IControlDefinitionChangeEvent.h"

#include <QObject>

#include <vector>

struct Workspace;

namespace Qtitan
{
class RibbonGroup;
}

namespace vesk
{
class ComboBoxDefinition;
class ControlHost;
}

/// Line style and line colour, in the ribbon: those of the selected entities, or nothing where they
/// differ; without a selection those of the next entities. A choice applies only to the entities
/// whose pen is shown.
class PenPanel final : public QObject, public vesk::IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// The arguments are not owned; the control host outlives the panel.
    PenPanel(Workspace& workspace, Qtitan::RibbonGroup& group, vesk::ControlHost& controls);
    ~PenPanel() override;

    void On(vesk::IControlDefinitionChangeEventArgs* pArgs) override;

private:
    struct Box
    {
        const PenPart& part;
        vesk::ComboBoxDefinition* pDefinition;
    };

    void Show();
    int GetShown(const PenPart& part) const;

    Workspace& m_workspace;
    std::vector<Box> m_boxes;
};

#pragma once

#include "Control/LineEditEvent.h"

#include <QObject>

#include <string>

class PropertyEditor;
class Sketch;
struct Workspace;

namespace Qtitan
{
class RibbonGroup;
}

namespace vesk
{
class ControlHost;
class LabelDefinition;
class LineEditDefinition;
}

/// The drawing's name and the number of its entities, in the ribbon.
class DrawingPanel final : public QObject, public vesk::ILineEditEventHandler
{
    Q_OBJECT

public:
    /// The arguments are not owned; the control host outlives the panel.
    DrawingPanel(Workspace& workspace, Qtitan::RibbonGroup& group, vesk::ControlHost& controls);
    ~DrawingPanel() override;

    void On(vesk::LineEditEventArgs* pArgs) override;

private:
    void OnSketchChanged();

    Sketch& m_sketch;
    PropertyEditor& m_properties;
    vesk::LineEditDefinition* m_pName = nullptr;
    vesk::LabelDefinition* m_pCount = nullptr;
    std::wstring m_shownName;
};

#pragma once

#include "Model/Pen.h"

#include "Control/IControlDefinitionChangeEvent.h"

#include <QObject>

#include <optional>
#include <string>
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

/// Line style, colour and width and the layer, in the ribbon: those of the selected entities, or
/// nothing where they differ; without a selection those of the next entities. A choice applies only
/// to the entities whose pen is shown.
class PenPanel final : public QObject, public vesk::IControlDefinitionChangeEventHandler
{
    Q_OBJECT

public:
    /// The layer is in a group of its own, or in the same. The arguments are not owned; the control
    /// host outlives the panel.
    PenPanel(Workspace& workspace, Qtitan::RibbonGroup& penGroup, Qtitan::RibbonGroup& layerGroup,
             vesk::ControlHost& controls);
    ~PenPanel() override;

    void On(vesk::IControlDefinitionChangeEventArgs* pArgs) override;

private:
    /// A value that can be chosen.
    struct Choice
    {
        int value;         ///< In the pen.
        std::wstring name; ///< In the journal.
        std::wstring caption;
    };

    struct Box
    {
        std::wstring property; ///< In the journal.
        int Pen::*part;
        std::vector<Choice> choices; ///< In the order of the entries.
        vesk::ComboBoxDefinition* pDefinition;
    };

    static std::vector<Choice> ChoicesOf(const PenPart& part);
    std::vector<Choice> LayerChoices() const;
    void AddBox(Box box, const wchar_t* id, const QString& label, Qtitan::RibbonGroup& group,
                vesk::ControlHost& controls);
    void Choose(const Box& box);
    void Show();
    void ListLayers(Box& box) const;
    std::optional<int> GetShown(int Pen::*part) const;

    Workspace& m_workspace;
    std::vector<Box> m_boxes;
};

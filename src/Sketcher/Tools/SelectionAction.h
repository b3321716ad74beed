#pragma once

#include "Tools/DrawingAction.h"

#include "Model/PickingTool.h"
#include "Model/Shape.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{
class IGraphicsNodeGroup;
}

/// Base of actions that do something with the selected entities.
///
/// With nothing selected it first selects entities: each clicked entity is added, until a click
/// elsewhere is the first point.
class SelectionAction : public DrawingAction, public IPickingTool
{
public:
    std::wstring GetViewText() const override;
    void OnBegin(vesk::IUiView* pView) override;
    void OnMouseMove(const vesk::Vector3d& world) override;
    void OnClick(const vesk::Vector3d& world) override;
    bool TakesPoint() const override;
    bool ReplayPoint(const vesk::Vector3d& world, const std::optional<int>& entity) override;
    vesk::OwnerPtr<vesk::IGraphicsNodeGroup> CreateRubberBand() const override;
    Click GetClick() const override;

protected:
    /// What is shown to the user: source texts.
    struct Prompts
    {
        const wchar_t* name;
        const wchar_t* pick;        ///< With nothing selected.
        const wchar_t* pickOrPoint; ///< While entities and the first point are taken.
        const wchar_t* point;       ///< While only the first point is.
    };

    /// The workspace is not owned and outlives the action.
    SelectionAction(Workspace& workspace, const Prompts& prompts);

    using Change = std::function<Shape(const Shape&)>;
    using Shapes = std::vector<std::pair<int, Shape>>;

    /// Whether the first point is known.
    virtual bool HasFirstPoint() const = 0;

    /// What the user does next; called when there are a selection and a first point.
    virtual std::wstring GetNextText() const = 0;

    /// Adds what the action would draw now; called in the same case.
    virtual void AddPreview(vesk::IGraphicsNodeGroup& group) const = 0;

    /// Also true if an undo has removed the selected entities.
    bool IsNothingSelected() const;

    /// The selected entities with other shapes.
    Shapes MakeChanged(const Change& change) const;

    /// Draws copies of the selected entities with other shapes, in one step of that name. Returns
    /// false and draws nothing if that is impossible.
    bool AddCopies(const Change& change, const std::wstring& stepName);
    bool CanAddCopies(const Change& change) const;

    /// Adds their outlines to a preview, as many as can keep up with the cursor.
    void AddChanged(vesk::IGraphicsNodeGroup& group, const Change& change) const;

private:
    bool TakesEntities() const;
    int PickOther(const vesk::Vector3d& world) const;
    bool Pick(const vesk::Vector3d& world, int entity);

    const Prompts m_prompts;
    bool m_beganWithNothing = false;

    /// The entity under the cursor, which a click would select; 0 for none.
    int m_hovered = 0;
};

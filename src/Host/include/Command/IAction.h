#pragma once

#include "Command/TypedValue.h"
#include "Dimension/ActionViewInput.h"
#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Foundation/OwnerPtr.h"
#include "Geometry/Vector3d.h"

#include <optional>
#include <string>

namespace vesk
{

class IGraphicsNodeGroup;
class ITemporaryDimensionContext;
class IUiView;

/// A command that goes on until the user ends it: it receives points and typed values from a view.
/// An action need not override what it does not use.
///
/// The action manager owns the action and deletes it after OnEnd, never inside another operation.
class VESK_HOST_API IAction
{
public:
    virtual ~IAction() = default;

    /// What the action expects now, as shown to the user.
    virtual std::wstring GetViewText() const = 0;

    /// The action has become the running one in `pView` (null in a replay without a window).
    virtual void OnBegin(IUiView* pView) = 0;

    /// The cursor moved to a world point.
    virtual void OnMouseMove(const Vector3d& world) = 0;

    /// The user clicked at a world point.
    virtual void OnClick(const Vector3d& world) = 0;

    /// Whether a point given by its coordinates would be used now as a click there would.
    virtual bool TakesPoint() const { return false; }

    /// The user gave a point by its coordinates, while TakesPoint is true: unlike that of a click
    /// it is used as it is. Returns false if it cannot be used here; nothing has changed then.
    virtual bool OnPoint(const Vector3d& world) { return ReplayPoint(world, std::nullopt); }

    /// Why a typed value cannot be used now, shown to the user in its field before the value is
    /// committed; empty if it can be used. The value is in model units. Has no side effects.
    virtual std::wstring GetRefusal(InputState /*field*/, double /*value*/) { return {}; }

    /// The user typed a value; `input` is what the handler delivered.
    virtual void OnViewInput(const ActionViewInput& /*input*/, const TypedValue& /*typed*/) {}

    /// The user emptied the field of a locked value: the value follows the cursor again.
    virtual void OnValueFreed(InputState /*field*/) {}

    /// Drops what Escape cancels before it ends the action (locked values). False if there was
    /// nothing to drop.
    virtual bool OnEscape() { return false; }

    /// The action ends; its finished steps remain.
    virtual void OnEnd() {}

    /// True when the action has nothing left to do.
    virtual bool IsFinished() const { return false; }

    /// The dimensions to show and type now; empty if there are none.
    virtual OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const { return nullptr; }

    /// What the action would draw now; empty if nothing.
    virtual OwnerPtr<IGraphicsNodeGroup> CreateRubberBand() const { return nullptr; }

    /// Replays a step from the journal: its final point and the picked entity. False if that is
    /// impossible.
    virtual bool ReplayPoint(const Vector3d& world, const std::optional<int>& entity) = 0;

    /// Replays a typed value from the journal, in model units. False if that is impossible.
    virtual bool ReplayValue(InputState /*field*/, const std::wstring& /*text*/, double /*value*/)
    {
        return false;
    }
};

}

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

/// A command that goes on until the user ends it: it takes points and typed values from a view.
/// What an action has no use for, it need not override.
///
/// The action manager owns the action and deletes it after OnEnd, never inside another operation.
class VESK_HOST_API IAction
{
public:
    virtual ~IAction() = default;

    /// What the action expects now, told to the user.
    virtual std::wstring GetViewText() const = 0;

    /// The action becomes the running one in `pView` (null in a replay without a window).
    virtual void OnBegin(IUiView* pView) = 0;

    /// The cursor moved to a world point.
    virtual void OnMouseMove(const Vector3d& world) = 0;

    /// The user clicked at a world point.
    virtual void OnClick(const Vector3d& world) = 0;

    /// Why a typed value is of no use now, told to the user in its field before it is taken; empty
    /// when it can be used. The value is in model units. Nothing changes.
    virtual std::wstring GetRefusal(InputState /*field*/, double /*value*/) { return {}; }

    /// The user typed a value; `input` is what the handler delivered.
    virtual void OnViewInput(const ActionViewInput& /*input*/, const TypedValue& /*typed*/) {}

    /// The user emptied the field of a locked value: the value follows the cursor again.
    virtual void OnValueFreed(InputState /*field*/) {}

    /// Drops what the user can take back first (locked values). False when there was nothing.
    virtual bool OnEscape() { return false; }

    /// The action ends; what it has finished stays.
    virtual void OnEnd() {}

    /// True when the action has nothing more to do.
    virtual bool IsFinished() const { return false; }

    /// The dimensions to show and to type now; empty when there are none.
    virtual OwnerPtr<ITemporaryDimensionContext> CreateDimensionContext() const { return nullptr; }

    /// What the action would draw now; empty when there is nothing.
    virtual OwnerPtr<IGraphicsNodeGroup> CreateRubberBand() const { return nullptr; }

    /// Repeats a step from the journal: its final point and the entity picked. False when it
    /// cannot be done.
    virtual bool ReplayPoint(const Vector3d& world, const std::optional<int>& entity) = 0;

    /// Repeats a typed value from the journal, in model units. False when it cannot be done.
    virtual bool ReplayValue(InputState /*field*/, const std::wstring& /*text*/, double /*value*/)
    {
        return false;
    }
};

}

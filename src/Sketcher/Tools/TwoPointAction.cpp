#include "Tools/TwoPointAction.h"

#include "Dimension/ITemporaryDimensionContext.h"

using namespace vesk;

OwnerPtr<ITemporaryDimensionContext> TwoPointAction::CreateDimensionContext() const
{
    if (IsNothingSelected() || !HasFirstPoint())
        return nullptr;
    return MakeStraightContext();
}

bool TwoPointAction::Expects(InputState field) const
{
    const bool isOwn = field == InputState::IS_Length || field == InputState::IS_Angle;
    return isOwn && HasFirstPoint() && !IsNothingSelected();
}

/// Sets the first point, then applies the action.
bool TwoPointAction::Finish(const Vector3d& end)
{
    if (!HasFirstPoint())
    {
        m_first = end;
        return true;
    }
    const bool isDone = CanFinish(end) && Apply(end);
    m_isFinished = isDone && !IsRepeated();
    return isDone;
}

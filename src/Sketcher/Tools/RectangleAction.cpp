#include "Tools/RectangleAction.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

#include <cmath>

using namespace vesk;

namespace
{

RectangleShape MakeRectangle(const Vector3d& corner, const Vector3d& opposite)
{
    return {{corner, Vector3d(opposite.x(), corner.y(), 0.0), opposite,
             Vector3d(corner.x(), opposite.y(), 0.0)}};
}

/// From one coordinate by the typed distance towards the cursor; else to the cursor itself.
double Reach(double from, double cursor, const std::optional<double>& typed)
{
    if (!typed.has_value())
        return cursor;
    return cursor < from ? from - *typed : from + *typed;
}

}

RectangleAction::RectangleAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring RectangleAction::GetViewText() const
{
    return m_corner.has_value() ? L"矩形：单击对角点，或键入宽度（Tab 切换到高度）；Esc 结束"_tr
                                : L"矩形：单击第一个角点，或键入坐标；Esc 结束"_tr;
}

OwnerPtr<ITemporaryDimensionContext> RectangleAction::CreateDimensionContext() const
{
    if (!m_corner.has_value())
        return nullptr;
    return MakeOwner<RectangleTemporaryDimensionContext>(Coordinate3d(), *m_corner, GetEnd());
}

OwnerPtr<IGraphicsNodeGroup> RectangleAction::CreateRubberBand() const
{
    return m_corner.has_value() ? MakeRubberBand(MakeRectangle(*m_corner, GetEnd())) : nullptr;
}

std::optional<Vector3d> RectangleAction::GetStart() const
{
    return m_corner;
}

Vector3d RectangleAction::GetEnd() const
{
    if (!m_corner.has_value())
        return GetCursor();
    const Vector3d cursor = GetCursorOff(*m_corner);
    return {Reach(m_corner->x(), cursor.x(), GetTyped(InputState::IS_Width)),
            Reach(m_corner->y(), cursor.y(), GetTyped(InputState::IS_Height)), 0.0};
}

bool RectangleAction::Expects(InputState field) const
{
    const bool isOwn = field == InputState::IS_Width || field == InputState::IS_Height;
    return isOwn && m_corner.has_value();
}

double RectangleAction::ReadCursor(InputState field) const
{
    const Vector3d way = GetCursorOff(*m_corner) - *m_corner;
    return std::abs(field == InputState::IS_Width ? way.x() : way.y());
}

bool RectangleAction::CanFinish(const Vector3d& end) const
{
    return IsDrawable(MakeRectangle(*m_corner, end));
}

/// Sets the first corner, then draws the rectangle.
bool RectangleAction::Finish(const Vector3d& end)
{
    if (!m_corner.has_value())
    {
        m_corner = end;
        return true;
    }
    if (GetWorkspace().sketch.Add(MakeRectangle(*m_corner, end)) == 0)
        return false;
    m_corner.reset();
    return true;
}

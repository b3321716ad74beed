#include "Tools/LineAction.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Tools/ShapeGraphics.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Graphics/IGraphicsNode.h"

#include <algorithm>

using namespace vesk;

LineAction::LineAction(Workspace& workspace) : DrawingAction(workspace) {}

std::wstring LineAction::GetViewText() const
{
    return m_firstPoint.has_value() ? L"直线：单击下一点，或键入长度（Tab 切换到角度）；Esc 结束"_tr
                                    : L"直线：单击起点，或键入坐标；Esc 结束"_tr;
}

OwnerPtr<ITemporaryDimensionContext> LineAction::CreateDimensionContext() const
{
    return m_firstPoint.has_value() ? MakeStraightContext() : nullptr;
}

OwnerPtr<IGraphicsNodeGroup> LineAction::CreateRubberBand() const
{
    if (!m_firstPoint.has_value())
        return nullptr;
    return MakeRubberBand(LineShape{*GetStart(), GetEnd()});
}

/// The end of the last segment that still exists, so that an undo moves it back.
std::optional<Vector3d> LineAction::GetStart() const
{
    const Sketch& sketch = GetWorkspace().sketch;
    const auto standing =
        std::find_if(m_segments.rbegin(), m_segments.rend(), [&sketch](const Segment& segment) {
            return sketch.Find(segment.entity) != nullptr;
        });
    return standing != m_segments.rend() ? standing->end : m_firstPoint;
}

Vector3d LineAction::GetEnd() const
{
    return GetStraightEnd();
}

bool LineAction::Expects(InputState field) const
{
    const bool isOwn = field == InputState::IS_Length || field == InputState::IS_Angle;
    return isOwn && m_firstPoint.has_value();
}

double LineAction::ReadCursor(InputState field) const
{
    return ReadStraight(field);
}

bool LineAction::CanFinish(const Vector3d& end) const
{
    return IsDrawable(LineShape{*GetStart(), end});
}

/// Sets the first point, then draws segments.
bool LineAction::Finish(const Vector3d& end)
{
    if (!m_firstPoint.has_value())
    {
        m_firstPoint = end;
        return true;
    }
    const int entity = GetWorkspace().sketch.AddLine(*GetStart(), end);
    if (entity != 0)
        m_segments.push_back({entity, end});
    return entity != 0;
}

#include "LineAction.h"

#include "Polar.h"
#include "Workspace.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Geometry/Constants.h"
#include "Graphics/IGraphicsNode.h"
#include "Journal/JournalManager.h"
#include "View/UiViewUtility.h"

#include <algorithm>

using namespace vesk;

LineAction::LineAction(Workspace& workspace)
    : m_sketch(workspace.sketch), m_snapper(workspace.snapper)
{}

std::wstring LineAction::GetViewText() const
{
    return HasStart() ? L"直线：单击下一点，或键入长度（Tab 切换到角度）；Esc 结束"
                      : L"直线：单击起点；Esc 结束";
}

void LineAction::OnBegin(IUiView* pView)
{
    m_pView = pView;
}

void LineAction::OnMouseMove(const Vector3d& world)
{
    m_cursor = m_snapper.Catch(world, m_pView);
}

void LineAction::OnClick(const Vector3d& world)
{
    OnMouseMove(world);
    if (HasLocks() || !RestsOnStart())
        Finish(GetEnd());
}

void LineAction::OnViewInput(const ActionViewInput& input)
{
    switch (input.kind)
    {
    case ActionViewInput::LengthEntered:
    case ActionViewInput::LengthCommitted:
        TakeValue(input, InputState::IS_Length);
        break;
    case ActionViewInput::AngleEntered:
    case ActionViewInput::AngleCommitted:
        TakeValue(input, InputState::IS_Angle);
        break;
    default:
        return;
    }
    if (input.kind == ActionViewInput::LengthCommitted ||
        input.kind == ActionViewInput::AngleCommitted)
        Finish(GetEnd());
}

bool LineAction::OnEscape()
{
    const bool hadLocks = HasLocks();
    Unlock();
    return hadLocks;
}

void LineAction::OnEnd()
{
    Unlock();
    m_snapper.Release();
}

OwnerPtr<ITemporaryDimensionContext> LineAction::CreateDimensionContext() const
{
    if (!HasStart())
        return nullptr;
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), GetStart(), GetEnd());
}

OwnerPtr<IGraphicsNodeGroup> LineAction::CreateRubberBand() const
{
    if (!HasStart())
        return nullptr;
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->AddChild(IGraphicsLine::Create(GetStart(), GetEnd(), GraphicsRole::RubberBand));
    return opGroup;
}

bool LineAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    return !entity.has_value() && Finish(world);
}

bool LineAction::ReplayValue(InputState field, const std::wstring& text, double value)
{
    // The point that follows says where the segment ended.
    JournalManager::GetInstance().Add(ValueRecord{field, text, value});
    return true;
}

/// The end of the last segment that still stands: an undo moves it back by itself.
Vector3d LineAction::GetStart() const
{
    const auto standing =
        std::find_if(m_segments.rbegin(), m_segments.rend(), [this](const Segment& segment) {
            return m_sketch.Find(segment.entity) != nullptr;
        });
    return standing != m_segments.rend() ? standing->end : *m_firstPoint;
}

Vector3d LineAction::GetEnd() const
{
    if (!HasStart() || (!HasLocks() && !RestsOnStart()))
        return m_cursor;
    return GetStart() + GetLength() * DirectionOf(GetAngle());
}

bool LineAction::RestsOnStart() const
{
    return HasStart() && Vector3dUtils::IsEqual(m_cursor, GetStart(), Constants::DOUBLE_EPS);
}

double LineAction::GetPixel() const
{
    const double pixel = UiViewUtility::ComputeWorldWidthFromPixel(m_pView, 1);
    return pixel > 0.0 ? pixel : 1.0;
}

/// The locked length, else as far as the cursor reaches along the direction, a pixel at least.
double LineAction::GetLength() const
{
    if (m_lockedLength.has_value())
        return *m_lockedLength;
    const double reach = (m_cursor - GetStart()).dot(DirectionOf(GetAngle()));
    return std::max(reach, GetPixel());
}

/// The locked angle, else the cursor's; along x while the cursor rests on the start point.
double LineAction::GetAngle() const
{
    if (m_lockedAngle.has_value())
        return *m_lockedAngle;
    return RestsOnStart() ? 0.0 : AngleOf(m_cursor - GetStart());
}

void LineAction::TakeValue(const ActionViewInput& input, InputState field)
{
    const TypedValue typed = TemporaryDimensionMgr::GetInstance()->GetTypedValue();
    const bool isLength = field == InputState::IS_Length;

    // A field that was only confirmed keeps its own value, not the rounded one that was shown.
    const double own = isLength ? GetLength() : GetAngle();
    const double entered = isLength ? LengthUnit::GetCurrent().ToModel(input.value) : input.value;
    const double value = typed.isUnchanged ? own : entered;
    (isLength ? m_lockedLength : m_lockedAngle) = value;
    TemporaryDimensionMgr::GetInstance()->SetLocked(field, true);
    JournalManager::GetInstance().Add(ValueRecord{field, typed.text, value});
}

void LineAction::Unlock()
{
    m_lockedLength.reset();
    m_lockedAngle.reset();
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Length, false);
    TemporaryDimensionMgr::GetInstance()->SetLocked(InputState::IS_Angle, false);
}

/// Ends the segment at `point`, or starts there. False when the segment cannot be drawn.
bool LineAction::Finish(const Vector3d& point)
{
    if (HasStart())
    {
        const int entity = m_sketch.AddLine(GetStart(), point);
        if (entity == 0)
            return false;
        m_segments.push_back({entity, point});
    }
    else
    {
        m_firstPoint = point;
    }
    Unlock();
    JournalManager::GetInstance().Add(PointRecord{point, std::nullopt});
    return true;
}

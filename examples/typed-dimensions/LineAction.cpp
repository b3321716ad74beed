#include "LineAction.h"

#include <Dimension/LinearTemporaryDimensionContext.h>
#include <Dimension/TemporaryDimensionMgr.h>
#include <Geometry/Degrees.h>
#include <Graphics/IGraphicsNode.h>
#include <Journal/JournalManager.h>
#include <View/UiViewUtility.h>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace vesk;

LineAction::LineAction(std::function<void(const Line&)> draw) : m_draw(std::move(draw)) {}

std::wstring LineAction::GetViewText() const
{
    return m_start.has_value() ? L"Line: click the end, or type its length; Tab for the angle"
                               : L"Line: click the start; Esc ends";
}

void LineAction::OnBegin(IUiView* pView)
{
    m_pView = pView;
}

void LineAction::OnEnd()
{
    UnlockAll();
}

void LineAction::OnMouseMove(const Vector3d& world)
{
    m_cursor = world;
}

void LineAction::OnClick(const Vector3d& world)
{
    m_cursor = world;
    EndStep(m_start.has_value() ? GetEnd() : world);
}

OwnerPtr<IGraphicsNodeGroup> LineAction::CreateRubberBand() const
{
    if (!m_start.has_value())
        return nullptr;
    OwnerPtr<IGraphicsNodeGroup> opGroup = IGraphicsNodeGroup::Create();
    opGroup->AddChild(IGraphicsLine::Create(*m_start, GetEnd(), GraphicsRole::RubberBand));
    return opGroup;
}

OwnerPtr<ITemporaryDimensionContext> LineAction::CreateDimensionContext() const
{
    if (!m_start.has_value())
        return nullptr;
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), *m_start, GetEnd());
}

void LineAction::OnViewInput(const ActionViewInput&, const TypedValue& typed)
{
    if (!m_start.has_value())
        return;
    Lock(typed.field, typed.text, typed.value);
    if (typed.isCommitted)
        EndStep(GetEnd());
}

void LineAction::OnValueFreed(InputState field)
{
    Unlock(field);
}

bool LineAction::OnEscape()
{
    const bool wasLocked = !m_locked.empty();
    UnlockAll();
    return wasLocked;
}

bool LineAction::ReplayPoint(const Vector3d& world, const std::optional<int>&)
{
    EndStep(world);
    return true;
}

bool LineAction::ReplayValue(InputState field, const std::wstring& text, double value)
{
    if (!m_start.has_value())
        return false;
    Lock(field, text, value);
    return true;
}

/// Where the line would end now: the typed values, and the cursor for what is not typed.
Vector3d LineAction::GetEnd() const
{
    const Vector3d way = m_cursor - *m_start;
    const auto length = m_locked.find(InputState::IS_Length);
    const auto angle = m_locked.find(InputState::IS_Angle);
    // Where the mouse has not moved yet, a line of one pixel gives the dimensions a place.
    const double reach =
        length != m_locked.end() ? length->second : std::max(way.norm(), GetPixel());
    const double degrees = angle != m_locked.end()
                               ? angle->second
                               : std::atan2(way.y(), way.x()) * double(Degrees::PerRadian);
    return *m_start + reach * Vector3d(Degrees::Cosine(degrees), Degrees::Sine(degrees), 0.0);
}

/// The size of a pixel in millimetres; 0 in a replay without a window.
double LineAction::GetPixel() const
{
    return UiViewUtility::ComputeWorldWidthFromPixel(m_pView, 1);
}

void LineAction::Lock(InputState field, const std::wstring& text, double value)
{
    m_locked[field] = value;
    TemporaryDimensionMgr::GetInstance()->SetLocked(field, true, value);
    JournalManager::GetInstance().Add(ValueRecord{field, text, value});
}

void LineAction::Unlock(InputState field)
{
    m_locked.erase(field);
    TemporaryDimensionMgr::GetInstance()->SetLocked(field, false);
}

void LineAction::UnlockAll()
{
    while (!m_locked.empty())
        Unlock(m_locked.begin()->first);
}

/// The first point begins a line, the second one ends it.
void LineAction::EndStep(const Vector3d& point)
{
    if (m_start.has_value())
        m_draw({*m_start, point});
    m_start = m_start.has_value() ? std::nullopt : std::optional(point);
    UnlockAll();
    JournalManager::GetInstance().Add(PointRecord{point, std::nullopt});
}

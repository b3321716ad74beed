#include "Tools/DrawingAction.h"

#include "Model/Polar.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"

#include "Dimension/InputField.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Geometry/Constants.h"
#include "Journal/JournalManager.h"
#include "View/UiViewUtility.h"

#include <algorithm>

using namespace vesk;

namespace
{

/// The number that a field shows for a value.
std::wstring TextOf(InputState field, double value)
{
    const TemporaryDimensionStyle style;
    return QuantityOf(field) == Quantity::Length ? style.FormatLength(style.ToShown(value))
                                                 : style.FormatAngle(value);
}

}

DrawingAction::DrawingAction(Workspace& workspace) : m_workspace(workspace) {}

void DrawingAction::OnBegin(IUiView* pView)
{
    m_pView = pView;
}

void DrawingAction::OnMouseMove(const Vector3d& world)
{
    m_cursor = m_workspace.snapper.Catch(world, m_pView);
}

void DrawingAction::OnClick(const Vector3d& world)
{
    OnMouseMove(world);
    if (HasValues() || !RestsOnStart())
        EndStep(GetEnd());
}

bool DrawingAction::OnPoint(const Vector3d& world)
{
    if (!ReplayPoint(world, std::nullopt))
        return false;
    m_cursor = world;
    m_workspace.snapper.Release();
    return true;
}

std::wstring DrawingAction::GetRefusal(InputState field, double value)
{
    if (!Expects(field))
        return {};
    // The cursor may still supply the other value.
    const std::optional<InputState> other = FindOther(field);
    if (other.has_value() && !GetTyped(*other).has_value())
        return {};
    const TypedValues::Trial trial(m_values, field, value);
    return CanFinish(GetEnd()) ? std::wstring() : L"这个值在这里不起作用，请换一个"_tr;
}

void DrawingAction::OnViewInput(const ActionViewInput&, const TypedValue& typed)
{
    const InputState field = typed.field;
    if (!Expects(field))
        return;
    m_values.Take({field, typed.text, typed.isUnchanged ? Confirm(typed) : typed.value});
    if (!typed.isCommitted && !NeedsValues())
        m_values.Record();
    else if (typed.isCommitted && !EndStep(GetEnd()) && !FindOther(field).has_value())
        m_values.Drop(field);
}

void DrawingAction::OnValueFreed(InputState field)
{
    m_values.Drop(field);
}

bool DrawingAction::OnEscape()
{
    const bool hadValues = HasValues();
    m_values.Clear();
    return hadValues;
}

void DrawingAction::OnEnd()
{
    m_values.Clear();
    m_workspace.snapper.Release();
}

bool DrawingAction::ReplayPoint(const Vector3d& world, const std::optional<int>& entity)
{
    return !entity.has_value() && EndStep(world);
}

bool DrawingAction::ReplayValue(InputState field, const std::wstring& text, double value)
{
    if (!Expects(field))
        return false;
    m_values.Take({field, text, value});
    m_values.Record();
    return true;
}

double DrawingAction::GetValue(InputState field) const
{
    const std::optional<double> typed = m_values.Get(field);
    return typed.has_value() ? *typed : ReadCursor(field);
}

/// A field that was only confirmed keeps its exact value, unless the cursor has moved on since the
/// field showed it: the user has confirmed the number that is shown.
double DrawingAction::Confirm(const TypedValue& typed) const
{
    const double exact = GetValue(typed.field);
    const bool isShown = TextOf(typed.field, exact) == TextOf(typed.field, typed.value);
    return isShown ? exact : typed.value;
}

bool DrawingAction::RestsOn(const Vector3d& point) const
{
    return Vector3dUtils::IsEqual(m_cursor, point, Constants::DOUBLE_EPS);
}

bool DrawingAction::RestsOnStart() const
{
    const std::optional<Vector3d> start = GetStart();
    return start.has_value() && RestsOn(*start);
}

Vector3d DrawingAction::GetCursorOff(const Vector3d& point) const
{
    return RestsOn(point) ? Vector3d(point + GetPixel() * Vector3d::UnitX()) : m_cursor;
}

double DrawingAction::GetPixel() const
{
    const double pixel = UiViewUtility::ComputeWorldWidthFromPixel(m_pView, 1);
    return pixel > 0.0 ? pixel : 1.0;
}

Vector3d DrawingAction::GetStraightEnd() const
{
    const std::optional<Vector3d> start = GetStart();
    const bool isCursor = !HasValues() && !RestsOnStart() && !m_workspace.isDirectionHeld;
    if (!start.has_value() || isCursor)
        return m_cursor;
    return *start + GetValue(InputState::IS_Length) * DirectionOf(GetValue(InputState::IS_Angle));
}

double DrawingAction::ReadStraight(InputState field) const
{
    const Vector3d way = m_cursor - *GetStart();
    if (field == InputState::IS_Length)
        return std::max(way.dot(DirectionOf(GetValue(InputState::IS_Angle))), GetPixel());
    const double angle = RestsOnStart() ? 0.0 : AngleOf(way);
    return m_workspace.isDirectionHeld ? HeldAngle(angle) : angle;
}

OwnerPtr<ITemporaryDimensionContext> DrawingAction::MakeStraightContext() const
{
    return MakeOwner<LinearTemporaryDimensionContext>(Coordinate3d(), *GetStart(),
                                                      GetStraightEnd());
}

/// The other value that the step expects; nothing if it expects only one.
std::optional<InputState> DrawingAction::FindOther(InputState field) const
{
    const auto* pFound =
        std::find_if(TypedStates.begin(), TypedStates.end(),
                     [this, field](InputState other) { return other != field && Expects(other); });
    return pFound != TypedStates.end() ? std::optional(*pFound) : std::nullopt;
}

/// Returns false if the step cannot end there.
bool DrawingAction::EndStep(const Vector3d& end)
{
    if (!Finish(end))
        return false;
    m_values.Record();
    m_values.Clear();
    JournalManager::GetInstance().Add(PointRecord{end, std::nullopt});
    return true;
}

#include "DrawingAction.h"

#include "Workspace.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionMgr.h"
#include "Geometry/Constants.h"
#include "Journal/JournalManager.h"
#include "View/UiViewUtility.h"

using namespace vesk;

namespace
{

/// What a kind of input says of a field.
struct InputMeaning
{
    ActionViewInput::Kind kind;
    InputState field;
    bool isCommitted;
};

constexpr InputMeaning InputMeanings[] = {
    {ActionViewInput::LengthEntered, InputState::IS_Length, false},
    {ActionViewInput::LengthCommitted, InputState::IS_Length, true},
    {ActionViewInput::AngleEntered, InputState::IS_Angle, false},
    {ActionViewInput::AngleCommitted, InputState::IS_Angle, true},
    {ActionViewInput::WidthEntered, InputState::IS_Width, false},
    {ActionViewInput::WidthCommitted, InputState::IS_Width, true},
    {ActionViewInput::HeightEntered, InputState::IS_Height, false},
    {ActionViewInput::HeightCommitted, InputState::IS_Height, true},
    {ActionViewInput::RadiusCommitted, InputState::IS_Radius, true},
    {ActionViewInput::RadiusWithAngleCommitted, InputState::IS_Radius, true},
    {ActionViewInput::CentralAngleCommitted, InputState::IS_CentralAngle, true},
};

const InputMeaning* FindMeaning(int kind)
{
    for (const InputMeaning& meaning : InputMeanings)
    {
        if (meaning.kind == kind)
            return &meaning;
    }
    return nullptr;
}

bool IsAngle(InputState field)
{
    return field == InputState::IS_Angle || field == InputState::IS_CentralAngle;
}

/// Whether the field has a neighbour that may be missing when it is committed.
bool IsOneOfTwo(InputState field)
{
    return field != InputState::IS_Radius && field != InputState::IS_CentralAngle;
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

void DrawingAction::OnViewInput(const ActionViewInput& input)
{
    const InputMeaning* pMeaning = FindMeaning(input.kind);
    if (pMeaning == nullptr || !Expects(pMeaning->field))
        return;
    const InputState field = pMeaning->field;
    const TypedValue typed = TemporaryDimensionMgr::GetInstance()->GetTypedValue();
    const double entered =
        IsAngle(field) ? input.value : LengthUnit::GetCurrent().ToModel(input.value);

    // A field that was only confirmed keeps its own value, not the rounded one that was shown.
    m_values.Take({field, typed.text, typed.isUnchanged ? GetValue(field) : entered});
    if (!pMeaning->isCommitted)
        m_values.Record();
    else if (!EndStep(GetEnd()) && !IsOneOfTwo(field))
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

/// False when the step cannot end there.
bool DrawingAction::EndStep(const Vector3d& end)
{
    if (!Finish(end))
        return false;
    m_values.Record();
    m_values.Clear();
    JournalManager::GetInstance().Add(PointRecord{end, std::nullopt});
    return true;
}

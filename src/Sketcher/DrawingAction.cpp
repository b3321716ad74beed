#include "DrawingAction.h"

#include "Workspace.h"

#include "Dimension/LengthUnit.h"
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

/// The other field of a pair, which may be missing when the first is committed.
std::optional<InputState> FindNeighbour(InputState field)
{
    switch (field)
    {
    case InputState::IS_Length:
        return InputState::IS_Angle;
    case InputState::IS_Angle:
        return InputState::IS_Length;
    case InputState::IS_Width:
        return InputState::IS_Height;
    case InputState::IS_Height:
        return InputState::IS_Width;
    default:
        return std::nullopt;
    }
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

std::wstring DrawingAction::GetRefusal(InputState field, double value)
{
    if (!Expects(field))
        return {};
    // The cursor may still give what the step needs.
    const std::optional<InputState> neighbour = FindNeighbour(field);
    if (neighbour.has_value() && !GetTyped(*neighbour).has_value())
        return {};
    const TypedValues::Trial trial(m_values, field, value);
    return CanFinish(GetEnd()) ? std::wstring() : L"这个值在这里不起作用，请换一个";
}

void DrawingAction::OnViewInput(const ActionViewInput& input, const TypedValue& typed)
{
    const InputMeaning* pMeaning = FindMeaning(input.kind);
    if (pMeaning == nullptr || !Expects(pMeaning->field))
        return;
    const InputState field = pMeaning->field;
    const double delivered =
        IsAngle(field) ? input.value : LengthUnit::GetCurrent().ToModel(input.value);
    const double entered = typed.modelValue.value_or(delivered);

    // A field that was only confirmed keeps its own value, not the rounded one that was shown.
    m_values.Take({field, typed.text, typed.isUnchanged ? GetValue(field) : entered});
    if (!pMeaning->isCommitted)
        m_values.Record();
    else if (!EndStep(GetEnd()) && !FindNeighbour(field).has_value())
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

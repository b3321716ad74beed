#include "Dimension/InputField.h"

#include "Dimension/ActionViewInput.h"
#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Foundation/HostText.h"
#include "Geometry/Constants.h"

#include <algorithm>
#include <iterator>
#include <typeindex>

namespace vesk
{

namespace
{

/// A value, independent of the kind of dimension.
struct ValueRow
{
    InputState state;
    Quantity quantity;
    const char* journalName;
    const wchar_t* caption;
};

constexpr ValueRow Values[] = {
    {InputState::IS_None, Quantity::Length, "none", L""},
    {InputState::IS_Length, Quantity::Length, "length", L"长度"_source},
    {InputState::IS_Angle, Quantity::Angle, "angle", L"角度"_source},
    {InputState::IS_Radius, Quantity::Length, "radius", L"半径"_source},
    {InputState::IS_CentralAngle, Quantity::Angle, "centralAngle", L"圆心角"_source},
    {InputState::IS_Width, Quantity::Length, "width", L"宽度"_source},
    {InputState::IS_Height, Quantity::Length, "height", L"高度"_source},
};

/// What the handler for a kind of context does with the keys in a field.
struct FieldRow
{
    std::type_index context;
    InputState state;
    bool takesWithSpace;
    InputState next = InputState::IS_None;
};

const FieldRow s_fields[] = {
    {typeid(LinearTemporaryDimensionContext), InputState::IS_Length, true, InputState::IS_Angle},
    {typeid(LinearTemporaryDimensionContext), InputState::IS_Angle, true, InputState::IS_Length},
    {typeid(RadiusTemporaryDimensionContext), InputState::IS_Radius, true},
    {typeid(CentralAngleTemporaryDimensionContext), InputState::IS_CentralAngle, false},
    {typeid(RectangleTemporaryDimensionContext), InputState::IS_Width, true, InputState::IS_Height},
    {typeid(RectangleTemporaryDimensionContext), InputState::IS_Height, true, InputState::IS_Width},
    {typeid(RotationTemporaryDimensionContext), InputState::IS_CentralAngle, true},
};

/// How a handler delivers a value.
struct InputRow
{
    ActionViewInput::Kind kind;
    InputMeaning meaning;
};

constexpr InputRow Inputs[] = {
    {ActionViewInput::LengthEntered, {InputState::IS_Length, false}},
    {ActionViewInput::LengthCommitted, {InputState::IS_Length, true}},
    {ActionViewInput::AngleEntered, {InputState::IS_Angle, false}},
    {ActionViewInput::AngleCommitted, {InputState::IS_Angle, true}},
    {ActionViewInput::RadiusCommitted, {InputState::IS_Radius, true}},
    {ActionViewInput::RadiusWithAngleCommitted, {InputState::IS_Radius, true}},
    {ActionViewInput::CentralAngleCommitted, {InputState::IS_CentralAngle, true}},
    {ActionViewInput::WidthEntered, {InputState::IS_Width, false}},
    {ActionViewInput::WidthCommitted, {InputState::IS_Width, true}},
    {ActionViewInput::HeightEntered, {InputState::IS_Height, false}},
    {ActionViewInput::HeightCommitted, {InputState::IS_Height, true}},
};

/// The row of a value; that of IS_None for an unknown value.
const ValueRow& ValueOf(InputState state)
{
    const auto* pFound =
        std::find_if(std::begin(Values), std::end(Values),
                     [state](const ValueRow& value) { return value.state == state; });
    return pFound != std::end(Values) ? *pFound : Values[0];
}

}

InputField FindInputField(const ITemporaryDimensionContext* pContext, InputState state)
{
    const Quantity quantity = QuantityOf(state);
    InputField field{state, quantity, {-Constants::MAX_MODEL_SIZE, Constants::MAX_MODEL_SIZE}};
    if (pContext == nullptr)
        return field;
    field.range = quantity == Quantity::Angle ? pContext->GetSecondValueRange()
                                              : pContext->GetFirstValueRange();
    for (const FieldRow& row : s_fields)
    {
        if (row.context != typeid(*pContext) || row.state != state)
            continue;
        field.takesWithSpace = row.takesWithSpace;
        if (pContext->HasField(state) && pContext->HasField(row.next))
            field.next = row.next;
    }
    return field;
}

InputMeaning FindInputMeaning(std::int32_t kind)
{
    const auto* pFound = std::find_if(std::begin(Inputs), std::end(Inputs),
                                      [kind](const InputRow& row) { return row.kind == kind; });
    return pFound != std::end(Inputs) ? pFound->meaning : InputMeaning();
}

Quantity QuantityOf(InputState state)
{
    return ValueOf(state).quantity;
}

std::wstring CaptionOf(InputState state)
{
    return TranslateHostText(ValueOf(state).caption);
}

const char* JournalNameOf(InputState state)
{
    return ValueOf(state).journalName;
}

std::optional<InputState> FindByJournalName(std::string_view name)
{
    const auto* pFound =
        std::find_if(std::begin(Values), std::end(Values),
                     [name](const ValueRow& value) { return value.journalName == name; });
    return pFound != std::end(Values) ? std::optional(pFound->state) : std::nullopt;
}

}

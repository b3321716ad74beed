#include "InputField.h"

#include "Dimension/CentralAngleTemporaryDimensionContext.h"
#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Dimension/RadiusTemporaryDimensionContext.h"
#include "Dimension/RectangleTemporaryDimensionContext.h"
#include "Dimension/RotationTemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "HostUi/FieldCaption.h"

#include <typeindex>

namespace vesk
{
namespace
{

/// What the handler of a kind of context does with the keys of a field.
struct FieldKeys
{
    std::type_index context;
    InputState state;
    bool commitsWithSpace;
    InputState next = InputState::IS_None; ///< The field that Tab leads to, if it does.
};

const FieldKeys s_fields[] = {
    {typeid(LinearTemporaryDimensionContext), InputState::IS_Length, true, InputState::IS_Angle},
    {typeid(LinearTemporaryDimensionContext), InputState::IS_Angle, true, InputState::IS_Length},
    {typeid(RadiusTemporaryDimensionContext), InputState::IS_Radius, true},
    {typeid(CentralAngleTemporaryDimensionContext), InputState::IS_CentralAngle, false},
    {typeid(RectangleTemporaryDimensionContext), InputState::IS_Width, true, InputState::IS_Height},
    {typeid(RectangleTemporaryDimensionContext), InputState::IS_Height, true, InputState::IS_Width},
    {typeid(RotationTemporaryDimensionContext), InputState::IS_CentralAngle, true},
};

bool IsAngle(InputState state)
{
    return state == InputState::IS_Angle || state == InputState::IS_CentralAngle;
}

/// Tab leads from one field to the other only where there are both.
bool HasOtherField(const ITemporaryDimensionContext& context)
{
    const auto* pLinear = dynamic_cast<const LinearTemporaryDimensionContext*>(&context);
    return pLinear == nullptr || (pLinear->IsLengthEnabled() && pLinear->IsAngleEnabled());
}

}

bool InputField::IsCommitting(int key) const
{
    return key == Qt::Key_Return || key == Qt::Key_Enter ||
           (key == Qt::Key_Space && commitsWithSpace) || (key == Qt::Key_Tab && !next.isEmpty());
}

InputField FindInputField(const ITemporaryDimensionContext* pContext, InputState state)
{
    InputField field;
    field.quantity = IsAngle(state) ? Quantity::Angle : Quantity::Length;
    field.range = {-Constants::MAX_MODEL_SIZE, Constants::MAX_MODEL_SIZE};
    if (pContext == nullptr)
        return field;
    field.range = IsAngle(state) ? pContext->GetSecondValueRange() : pContext->GetFirstValueRange();
    for (const FieldKeys& keys : s_fields)
    {
        if (keys.context != typeid(*pContext) || keys.state != state)
            continue;
        field.commitsWithSpace = keys.commitsWithSpace;
        if (HasOtherField(*pContext))
            field.next = FieldCaption(keys.next);
    }
    return field;
}

}

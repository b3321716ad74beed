#pragma once

#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"
#include "Geometry/Intervald.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace vesk
{

class ITemporaryDimensionContext;

/// What a value measures.
enum class Quantity
{
    Length,
    Angle,
};

/// A field of a provisional dimension: what may be typed in it, and what the keys do in it.
struct InputField
{
    InputState state = InputState::IS_None; ///< Which value it is for; IS_None for no field.
    Quantity quantity = Quantity::Length;   ///< What the value measures.
    Intervald range{0.0, 0.0};              ///< In the display unit; of angles in degrees.
    bool takesWithSpace = false;            ///< Space commits a plain number.

    /// The field that Tab goes on to after committing the value; IS_None if Tab commits nothing.
    InputState next = InputState::IS_None;
};

/// The meaning of a delivered input, given its kind (ActionViewInput::Kind).
struct InputMeaning
{
    InputState field = InputState::IS_None; ///< Which value; IS_None for an unknown kind.
    bool isCommitted = false; ///< The input has ended; otherwise it goes on in another field.
};

/// All values that can be typed.
inline constexpr std::array<InputState, 6> TypedStates = {
    InputState::IS_Length,       InputState::IS_Angle, InputState::IS_Radius,
    InputState::IS_CentralAngle, InputState::IS_Width, InputState::IS_Height};

/// The field that the handler of a context opens for a state. If there is no context, or its kind
/// is unknown, only Return and Enter commit a value.
VESK_HOST_API InputField FindInputField(const ITemporaryDimensionContext* pContext,
                                        InputState state);

/// The meaning of an input of that kind; its field is IS_None for an unknown kind.
VESK_HOST_API InputMeaning FindInputMeaning(std::int32_t kind);

VESK_HOST_API Quantity QuantityOf(InputState state);

/// What the user interface calls a value, in the user's language: "长度"; empty for IS_None.
VESK_HOST_API std::wstring CaptionOf(InputState state);

/// What journals call a value: "length", or "none".
VESK_HOST_API const char* JournalNameOf(InputState state);

/// The value with that journal name; nothing if there is none.
VESK_HOST_API std::optional<InputState> FindByJournalName(std::string_view name);

}

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

/// What kind of value a field takes.
enum class Quantity
{
    Length,
    Angle,
};

/// A field of a provisional dimension: what may be typed in it, and what the keys do there.
struct InputField
{
    InputState state = InputState::IS_None;
    Quantity quantity = Quantity::Length;
    Intervald range{0.0, 0.0}; ///< Of its values, in the unit shown.
    bool takesWithSpace = false;

    /// The field that Tab leads to, taking the value; IS_None where Tab takes none.
    InputState next = InputState::IS_None;
};

/// What an input delivered of a kind (ActionViewInput) says.
struct InputMeaning
{
    InputState field = InputState::IS_None;
    bool isCommitted = false; ///< The input has ended; else it goes on with another field.
};

/// All values that can be typed.
inline constexpr std::array<InputState, 6> TypedStates = {
    InputState::IS_Length,       InputState::IS_Angle, InputState::IS_Radius,
    InputState::IS_CentralAngle, InputState::IS_Width, InputState::IS_Height};

/// The field that the handler of a context opens in a state. Where the kind of context is not
/// known, or there is none, only Return and Enter take a value.
VESK_HOST_API InputField FindInputField(const ITemporaryDimensionContext* pContext,
                                        InputState state);

/// What a delivered input says by its kind; the field IS_None for an unknown kind.
VESK_HOST_API InputMeaning FindInputMeaning(std::int32_t kind);

VESK_HOST_API Quantity QuantityOf(InputState state);

/// What the user calls a value: "长度"; empty for IS_None.
VESK_HOST_API const wchar_t* CaptionOf(InputState state);

/// What journals call a value: "length", or "none".
VESK_HOST_API const char* JournalNameOf(InputState state);

/// The value that journals call so; nothing when there is none.
VESK_HOST_API std::optional<InputState> FindByJournalName(std::string_view name);

}

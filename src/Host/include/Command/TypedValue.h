#pragma once

#include "Dimension/InputState.h"
#include "Foundation/HostExport.h"

#include <optional>
#include <string>

namespace vesk
{

/// A value that the user typed for the running action.
struct TypedValue
{
    InputState field = InputState::IS_None; ///< What was typed.
    double value = 0.0;                     ///< In model units.
    std::wstring text;                      ///< As it was in the editor.
    bool isUnchanged = false; ///< The field showed its current value and the user did not edit it.
    bool isCommitted = false; ///< The input has ended; otherwise it goes on in another field.
};

/// The content of the editor when its value is committed.
struct EditorText
{
    std::wstring text;        ///< As it is when the value is committed.
    bool isUnchanged = false; ///< As in TypedValue.

    /// The value of the text in model units, rounded only once; converting the delivered value,
    /// which is in the display unit, may round twice. Not set if the text was not evaluated.
    std::optional<double> modelValue;
};

/// Attaches a text to the next value that a handler delivers while the scope exists; handlers
/// deliver only the number. Scopes may be nested; the innermost one counts.
class VESK_HOST_API EditorTextScope final
{
public:
    /// Copies the text.
    explicit EditorTextScope(const EditorText& text);
    ~EditorTextScope();
    EditorTextScope(const EditorTextScope&) = delete;
    EditorTextScope& operator=(const EditorTextScope&) = delete;

    /// Returns the text of the innermost scope, once only; an empty one if there is none.
    static EditorText Take();

private:
    std::optional<EditorText> m_before;
};

}

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
    InputState field = InputState::IS_None;
    double value = 0.0;       ///< In model units.
    std::wstring text;        ///< As it stood in the editor.
    bool isUnchanged = false; ///< The field showed its current value and nobody typed in it.
    bool isCommitted = false; ///< The input has ended; else it goes on with another field.
};

/// What stands in the editor when a value is taken from it.
struct EditorText
{
    std::wstring text;
    bool isUnchanged = false; ///< As in TypedValue.

    /// What the text stands for, in model units: rounded once, which the delivered value, in the
    /// unit shown, may not be when it is converted. Nothing where nobody judged the text.
    std::optional<double> modelValue;
};

/// Lets the next value that a handler delivers go along with its text, as long as the scope lives.
/// Handlers deliver the number alone. Scopes may be nested; the innermost counts.
class VESK_HOST_API EditorTextScope final
{
public:
    explicit EditorTextScope(const EditorText& text);
    ~EditorTextScope();
    EditorTextScope(const EditorTextScope&) = delete;
    EditorTextScope& operator=(const EditorTextScope&) = delete;

    /// Gives the text of the innermost scope away, once; an empty one when there is none.
    static EditorText Take();

private:
    std::optional<EditorText> m_before;
};

}

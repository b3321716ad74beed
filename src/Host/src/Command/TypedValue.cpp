#include "Command/TypedValue.h"

#include <utility>

namespace vesk
{

namespace
{

std::optional<EditorText> s_text;

}

EditorTextScope::EditorTextScope(const EditorText& text) : m_before(std::exchange(s_text, text)) {}

EditorTextScope::~EditorTextScope()
{
    s_text = std::move(m_before);
}

EditorText EditorTextScope::Take()
{
    return std::exchange(s_text, std::nullopt).value_or(EditorText());
}

}

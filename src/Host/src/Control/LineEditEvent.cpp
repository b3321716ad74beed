#include "Control/LineEditEvent.h"

#include <utility>

namespace vesk
{

LineEditEventArgs::LineEditEventArgs(LineEditEventType type, std::wstring id, std::wstring text)
    : m_type(type), m_id(std::move(id)), m_text(std::move(text))
{}

}

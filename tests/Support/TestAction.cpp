#include "Support/TestAction.h"

#include <utility>

namespace vesk::test
{

void TestAction::OnViewInput(const ActionViewInput& input, const TypedValue&)
{
    m_log.inputs.push_back(input);
    if (const auto onInput = std::exchange(m_log.onInput, nullptr))
        onInput();
}

OwnerPtr<ITemporaryDimensionContext> TestAction::CreateDimensionContext() const
{
    return m_log.createContext ? m_log.createContext() : nullptr;
}

}

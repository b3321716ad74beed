#include "Foundation/WeakReferenceable.h"

namespace vesk
{

WeakReferenceable::WeakReferenceable() noexcept = default;

WeakReferenceable::WeakReferenceable(const WeakReferenceable& /*other*/) noexcept {}

WeakReferenceable& WeakReferenceable::operator=(const WeakReferenceable& /*other*/) noexcept
{
    return *this;
}

WeakReferenceable::~WeakReferenceable()
{
    if (m_pToken != nullptr)
        m_pToken->isAlive = false;
}

std::shared_ptr<const WeakReferenceable::LifeToken> WeakReferenceable::GetLifeToken() const
{
    if (m_pToken == nullptr)
        m_pToken = std::make_shared<LifeToken>();
    return m_pToken;
}

}

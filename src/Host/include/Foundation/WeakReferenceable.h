#pragma once

#include "Foundation/HostExport.h"

#include <memory>

namespace vesk
{

/// Base of objects that others may watch without owning them.
///
/// Copies are watched separately: a weak reference follows the one object it was made from.
class VESK_HOST_API WeakReferenceable
{
public:
    /// Shared with every weak reference; tells whether the object still lives.
    struct LifeToken
    {
        bool isAlive = true;
    };

    /// The object's token, made on first use.
    std::shared_ptr<const LifeToken> GetLifeToken() const;

protected:
    WeakReferenceable() noexcept;
    WeakReferenceable(const WeakReferenceable&) noexcept;
    WeakReferenceable& operator=(const WeakReferenceable&) noexcept;
    ~WeakReferenceable();

private:
    mutable std::shared_ptr<LifeToken> m_pToken;
};

/// Points at a `T` derived from WeakReferenceable and answers null once that object is destroyed.
template <class T>
class WeakReference
{
public:
    WeakReference() = default;
    explicit WeakReference(T* pObject)
        : m_pObject(pObject), m_pToken(pObject != nullptr ? pObject->GetLifeToken() : nullptr)
    {}

    /// The object, or null when there is none or it no longer lives.
    T* Get() const { return m_pToken != nullptr && m_pToken->isAlive ? m_pObject : nullptr; }

private:
    T* m_pObject = nullptr;
    std::shared_ptr<const WeakReferenceable::LifeToken> m_pToken;
};

}

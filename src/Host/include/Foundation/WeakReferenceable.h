#pragma once

#include "Foundation/HostExport.h"

#include <memory>

namespace vesk
{

/// Base of objects that others may reference without owning them.
///
/// A copy is a separate object: a weak reference refers only to the object it was made from.
class VESK_HOST_API WeakReferenceable
{
public:
    /// Shared with every weak reference; says whether the object still exists.
    struct LifeToken
    {
        bool isAlive = true; ///< Cleared when the object is destroyed.
    };

    /// The object's token, created on first use.
    std::shared_ptr<const LifeToken> GetLifeToken() const;

protected:
    WeakReferenceable() noexcept;

    /// A separate object, to which no weak reference refers.
    WeakReferenceable(const WeakReferenceable&) noexcept;

    /// Keeps the references to this object: they do not move with the value.
    WeakReferenceable& operator=(const WeakReferenceable&) noexcept;
    ~WeakReferenceable();

private:
    mutable std::shared_ptr<LifeToken> m_pToken;
};

/// Points to a `T` derived from WeakReferenceable; null once that object is destroyed.
template <class T>
class WeakReference
{
public:
    WeakReference() = default;

    /// Refers to an object, null to none.
    explicit WeakReference(T* pObject)
        : m_pObject(pObject), m_pToken(pObject != nullptr ? pObject->GetLifeToken() : nullptr)
    {}

    /// The object; null if there is none or it has been destroyed.
    T* Get() const { return m_pToken != nullptr && m_pToken->isAlive ? m_pObject : nullptr; }

private:
    T* m_pObject = nullptr;
    std::shared_ptr<const WeakReferenceable::LifeToken> m_pToken;
};

}

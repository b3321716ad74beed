#pragma once

#include <cstddef>
#include <memory>
#include <type_traits>
#include <utility>

namespace vesk
{

/// Deletes one object whose class its holder need not know.
class IOwnerPtrDeleter
{
public:
    virtual ~IOwnerPtrDeleter() = default;

    /// Deletes the object. Called at most once.
    virtual void Delete() = 0;
};

/// Deletes an object through its concrete class, whatever interface its OwnerPtr has.
template <class Concrete>
class OwnerPtrDeleter final : public IOwnerPtrDeleter
{
public:
    /// Does not delete the object unless asked to; null is allowed.
    explicit OwnerPtrDeleter(Concrete* pObject) : m_pObject(pObject) {}

    void Delete() override { delete m_pObject; }

private:
    Concrete* m_pObject;
};

/// Sole owner of an object, with a deleter that knows the object's concrete class.
///
/// An `OwnerPtr<IControl>` made from a `QtButton*` deletes the whole button, although `IControl` is
/// not its first base. An `OwnerPtr` passed by value transfers ownership; a raw pointer only
/// observes.
template <class T>
class OwnerPtr
{
public:
    OwnerPtr() noexcept = default;

    /// Empty.
    OwnerPtr(std::nullptr_t) noexcept {}

    /// Takes ownership of `pObject` (null gives an empty pointer); frees it if that fails.
    template <class Concrete>
    explicit OwnerPtr(Concrete* pObject)
    {
        static_assert(std::is_convertible<Concrete*, T*>::value, "not a kind of T");
        if (pObject == nullptr)
            return;
        std::unique_ptr<Concrete> guard(pObject);
        m_pDeleter = std::make_unique<OwnerPtrDeleter<Concrete>>(pObject);
        m_pObject = guard.release();
    }

    /// Takes ownership from a pointer to a derived class.
    template <class U, class = std::enable_if_t<std::is_convertible<U*, T*>::value>>
    OwnerPtr(OwnerPtr<U>&& other) noexcept
        : m_pObject(other.m_pObject), m_pDeleter(std::move(other.m_pDeleter))
    {
        other.m_pObject = nullptr;
    }

    /// Takes over what `other` owns, which is empty afterwards.
    OwnerPtr(OwnerPtr&& other) noexcept
        : m_pObject(std::exchange(other.m_pObject, nullptr)),
          m_pDeleter(std::move(other.m_pDeleter))
    {}

    /// Frees what it owns and takes over what `other` owns, which is empty afterwards.
    OwnerPtr& operator=(OwnerPtr&& other) noexcept
    {
        if (this == &other)
            return *this;
        // The old object is deleted last: it may own `other`.
        const std::unique_ptr<IOwnerPtrDeleter> pOld =
            std::exchange(m_pDeleter, std::move(other.m_pDeleter));
        m_pObject = std::exchange(other.m_pObject, nullptr);
        if (pOld != nullptr)
            pOld->Delete();
        return *this;
    }

    OwnerPtr(const OwnerPtr&) = delete;
    OwnerPtr& operator=(const OwnerPtr&) = delete;

    ~OwnerPtr() { Reset(); }

    /// Deletes the owned object, if any. The pointer is already empty while the destructor runs.
    void Reset() noexcept
    {
        const std::unique_ptr<IOwnerPtrDeleter> pDeleter = std::move(m_pDeleter);
        m_pObject = nullptr;
        if (pDeleter != nullptr)
            pDeleter->Delete();
    }

    /// Releases ownership: the caller now owns the result.
    T* Release() noexcept
    {
        m_pDeleter.reset();
        return std::exchange(m_pObject, nullptr);
    }

    /// The object, still owned; null if empty.
    T* Get() const noexcept { return m_pObject; }

    /// The object's members. Must not be empty.
    T* operator->() const noexcept { return m_pObject; }

    /// The object. Must not be empty.
    T& operator*() const noexcept { return *m_pObject; }

    /// True unless empty.
    explicit operator bool() const noexcept { return m_pObject != nullptr; }

private:
    template <class>
    friend class OwnerPtr;
    template <class To, class From>
    friend OwnerPtr<To> OwnerPtrCast(OwnerPtr<From> opObject);

    T* m_pObject = nullptr;
    std::unique_ptr<IOwnerPtrDeleter> m_pDeleter;
};

template <class T>
bool operator==(const OwnerPtr<T>& opObject, std::nullptr_t) noexcept
{
    return opObject.Get() == nullptr;
}

template <class T>
bool operator!=(const OwnerPtr<T>& opObject, std::nullptr_t) noexcept
{
    return opObject.Get() != nullptr;
}

/// Constructs a `Concrete` and returns its owner.
template <class Concrete, class... Args>
OwnerPtr<Concrete> MakeOwner(Args&&... args)
{
    return OwnerPtr<Concrete>(new Concrete(std::forward<Args>(args)...));
}

/// Checked down-cast that keeps the deleter. An object of another class is deleted and the result
/// is empty.
template <class To, class From>
OwnerPtr<To> OwnerPtrCast(OwnerPtr<From> opObject)
{
    OwnerPtr<To> result;
    result.m_pObject = dynamic_cast<To*>(opObject.m_pObject);
    if (result.m_pObject == nullptr)
        return result;
    result.m_pDeleter = std::move(opObject.m_pDeleter);
    opObject.m_pObject = nullptr;
    return result;
}

}

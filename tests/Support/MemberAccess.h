#pragma once

#include <cstddef>
#include <cstring>

namespace vesk::test
{

/// Names a private member: access is not checked in an explicit instantiation. So tests of the
/// memory layout need no support from the class itself.
///
///     VESK_EXPOSE(Definition, OwnerPtr<ICommandButtonDefinition>, QtButton, m_pControlDefinition)
///     OffsetIn(button, MemberOf(Definition()))
template <class Tag, typename Tag::Type member>
struct Expose
{
    friend typename Tag::Type MemberOf(Tag) { return member; }
};

/// Offset of the member in the object, in bytes.
template <class Object, class Class, class Member>
std::ptrdiff_t OffsetIn(const Object& object, Member Class::*pMember)
{
    const Class& owner = object;
    return reinterpret_cast<const char*>(&(owner.*pMember)) -
           reinterpret_cast<const char*>(&object);
}

/// Offset of the base in the object, in bytes.
template <class Base, class Object>
std::ptrdiff_t BaseOffsetIn(const Object& object)
{
    const Base& base = object;
    return reinterpret_cast<const char*>(&base) - reinterpret_cast<const char*>(&object);
}

/// The slot of a virtual function in the vtable of the class that declares it first. The destructor
/// occupies the first two slots (Itanium C++ ABI).
template <class Function>
std::ptrdiff_t SlotOf(Function pFunction)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof words == sizeof pFunction, "not a pointer to a member function");
    std::memcpy(words, &pFunction, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

}

#define VESK_EXPOSE(Tag, Member, Class, member)                                                    \
    struct Tag                                                                                     \
    {                                                                                              \
        using Type = Member Class::*;                                                              \
        friend Type MemberOf(Tag);                                                                 \
    };                                                                                             \
    template struct vesk::test::Expose<Tag, &Class::member>;

#pragma once

#include <cstddef>
#include <cstring>

namespace vesk::test
{

/// Names a member that only its class may name: access is not checked in an explicit instantiation.
/// So tests of the memory layout need nothing of the class itself.
///
///     VESK_EXPOSE(ButtonDefinition, OwnerPtr<ICommandButtonDefinition>, QtButton,
///     m_pControlDefinition) OffsetIn(button, MemberOf(ButtonDefinition()))
template <class Tag, typename Tag::Type member>
struct Expose
{
    friend typename Tag::Type MemberOf(Tag) { return member; }
};

/// How many bytes of the object lie before the member.
template <class Object, class Class, class Member>
std::ptrdiff_t OffsetIn(const Object& object, Member Class::*pMember)
{
    const Class& owner = object;
    return reinterpret_cast<const char*>(&(owner.*pMember)) -
           reinterpret_cast<const char*>(&object);
}

/// How many bytes of the object lie before its base.
template <class Base, class Object>
std::ptrdiff_t BaseOffsetIn(const Object& object)
{
    const Base& base = object;
    return reinterpret_cast<const char*>(&base) - reinterpret_cast<const char*>(&object);
}

/// The place of a virtual operation in the table of virtual operations of the class that declares
/// it first. The destructor takes the first two places (Itanium C++ ABI).
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

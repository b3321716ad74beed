#pragma once

#include <QObject>
#include <QPointer>

namespace vesk
{

/// Sets a pointer of an object while the scope exists; it is null afterwards, unless the object is
/// gone by then.
template <class T>
class MemberScope
{
public:
    MemberScope(QObject& owner, T*& member, T* value) : m_pOwner(&owner), m_member(member)
    {
        member = value;
    }

    ~MemberScope()
    {
        if (m_pOwner != nullptr)
            m_member = nullptr;
    }

    MemberScope(const MemberScope&) = delete;
    MemberScope& operator=(const MemberScope&) = delete;

private:
    QPointer<QObject> m_pOwner;
    T*& m_member;
};

}

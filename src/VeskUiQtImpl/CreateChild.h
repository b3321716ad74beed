#pragma once

#include "VeskUiQtImpl/CheckSite.h"

#include <memory>

namespace vesk
{

/// Creates a Qt child of `pParent`, which owns it. Without a parent it warns in the name of
/// `function`, creates nothing and returns null.
template <class Child, class Parent>
Child* CreateChild(Parent* pParent, const char* function)
{
    auto pChild = std::make_unique<Child>(pParent);
    if (!Check(pChild->parent() != nullptr, VESK_SITE(function, L"parent cannot be null")))
        return nullptr;
    return pChild.release();
}

}

#pragma once

#include <set>
#include <string>

namespace vesk::test
{

/// A text equal to `text` that stays where it is until the program ends.
inline const std::wstring& Kept(const std::wstring& text)
{
    static std::set<std::wstring> s_texts;
    return *s_texts.insert(text).first;
}

}

#pragma once

#include "Foundation/SourceText.h"
#include "Foundation/TranslatorManager.h"

#include <cstddef>
#include <initializer_list>
#include <string>

namespace vesk
{

/// A text of the host, in the user's language.
inline std::wstring TranslateHostText(const wchar_t* source)
{
    return TranslatorManager::Get()->Translate(L"Host", source);
}

inline std::wstring operator""_tr(const wchar_t* source, std::size_t)
{
    return TranslateHostText(source);
}

/// Replaces `%1`, `%2`, … by the arguments, which contain no `%`.
inline std::wstring WithArguments(std::wstring text, std::initializer_list<std::wstring> arguments)
{
    int number = 0;
    for (const std::wstring& argument : arguments)
    {
        const std::wstring mark = L"%" + std::to_wstring(++number);
        const std::size_t place = text.find(mark);
        if (place != std::wstring::npos)
            text.replace(place, mark.size(), argument);
    }
    return text;
}

}

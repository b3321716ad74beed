#include "Foundation/Text.h"

#include "Foundation/WideText.h"

namespace vesk
{

std::string ToUtf8(const std::wstring& text)
{
    return WideToUtf8<wchar_t>(text);
}

std::wstring FromUtf8(const std::string& utf8)
{
    return Utf8ToWide<wchar_t>(utf8);
}

}

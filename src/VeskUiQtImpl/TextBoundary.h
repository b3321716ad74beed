#pragma once

#include <QString>

#include <string>

namespace vesk
{

/// The host's wide text as Qt text, and back: the only place where texts cross the boundary.
inline QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

}

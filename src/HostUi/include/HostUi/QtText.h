#pragma once

#include <QString>

#include <string>

namespace vesk
{

/// Convert between the host's wide texts and Qt's.
inline QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

}

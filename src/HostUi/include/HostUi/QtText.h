#pragma once

#include <QString>

#include <string>

namespace vesk
{

/// The two ways across the text boundary between the host's wide texts and Qt.
inline QString ToQString(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

}

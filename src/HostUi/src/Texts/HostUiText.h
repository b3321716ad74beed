#pragma once

#include "Foundation/SourceText.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>

namespace vesk
{

/// A text of this layer in the user's language; with a number, the plural form for it, in which it
/// replaces `%n`.
inline QString TranslateHostUiText(const char* source, int number = -1)
{
    return QCoreApplication::translate("HostUi", source, nullptr, number);
}

inline QString operator""_tr(const char* source, std::size_t)
{
    return TranslateHostUiText(source);
}

}

#pragma once

#include "Foundation/SourceText.h"
#include "Foundation/TranslatorManager.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>
#include <string>

using vesk::operator""_source;

/// A text marked with `_source`, in the user's language. With a number, the plural form for it, in
/// which it replaces `%n`. A text that has no translation is returned as it is.
inline QString Tr(const char* source, int number = -1)
{
    return QCoreApplication::translate("Sketcher", source, nullptr, number);
}

/// The same for a source text that has several meanings: `Tr("关闭"_source, "off")`.
inline QString Tr(const char* source, const char* meaning)
{
    return QCoreApplication::translate("Sketcher", source, meaning);
}

inline std::wstring Tr(const std::wstring& source)
{
    return vesk::TranslatorManager::Get()->Translate(L"Sketcher", source);
}

/// A text in the user's language: `"未选图元"_tr`.
inline QString operator""_tr(const char* source, std::size_t)
{
    return Tr(source);
}

inline std::wstring operator""_tr(const wchar_t* source, std::size_t)
{
    return Tr(source);
}

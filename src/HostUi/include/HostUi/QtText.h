#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string>

namespace vesk
{

/// Parts of the functions below.
namespace QtText
{

/// What exceeds it needs two units of UTF-16.
constexpr std::uint32_t LargestUnit = 0xFFFF;

/// Cuts each character down to a unit of UTF-16. Returns false if that was too little for one.
inline bool Narrow(const std::wstring& wide, QChar* pUnits)
{
    std::uint32_t all = 0;
    for (std::size_t i = 0; i < wide.size(); ++i)
    {
        const auto character = static_cast<std::uint32_t>(wide[i]);
        all |= character;
        pUnits[i] = QChar(static_cast<ushort>(character));
    }
    return all <= LargestUnit;
}

/// Compares all characters, without a branch for each.
inline bool HasUnits(const std::wstring& wide, const QChar* pUnits)
{
    std::uint32_t difference = 0;
    for (std::size_t i = 0; i < wide.size(); ++i)
        difference |= static_cast<std::uint32_t>(wide[i]) ^ pUnits[i].unicode();
    return difference == 0;
}

/// How many characters need two units.
inline std::size_t CountPairs(const std::wstring& wide)
{
    std::size_t count = 0;
    for (const wchar_t character : wide)
        count += static_cast<std::uint32_t>(character) > LargestUnit ? 1 : 0;
    return count;
}

/// The conversion of a text that has characters of two units.
inline QString WithPairs(const std::wstring& wide)
{
    QString text;
    text.reserve(static_cast<int>(wide.size() * 2));
    for (const wchar_t wideCharacter : wide)
    {
        const auto character = static_cast<std::uint32_t>(wideCharacter);
        if (character > LargestUnit)
            text += QChar(QChar::highSurrogate(character));
        text += QChar(character > LargestUnit ? QChar::lowSurrogate(character)
                                              : static_cast<ushort>(character));
    }
    return text;
}

}

/// Convert between the host's wide texts and Qt's. Every character is kept, whatever the size of
/// wchar_t: also a byte order mark and a zero.
inline QString ToQString(const std::wstring& wide)
{
    if (wide.empty())
        return QLatin1String("");
    QString text(static_cast<int>(wide.size()), Qt::Uninitialized);
    if (!QtText::Narrow(wide, text.data()))
        text = QtText::WithPairs(wide);
    return text;
}

inline std::wstring ToWide(const QString& text)
{
    return text.toStdWString();
}

/// Whether ToQString(wide) equals `text`; converts nothing unless `wide` has characters of two
/// units.
inline bool IsSameText(const QString& text, const std::wstring& wide)
{
    const auto size = static_cast<std::size_t>(text.size());
    if (size > wide.size())
        return size == wide.size() + QtText::CountPairs(wide) && text == ToQString(wide);
    return size == wide.size() && QtText::HasUnits(wide, text.constData());
}

}

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/DimensionKeys.h"

#include <QKeyEvent>

namespace vesk
{

bool HasMinus(OpeningKeys keys)
{
    return keys != OpeningKeys::Digits;
}

bool HasLetters(OpeningKeys keys)
{
    return keys == OpeningKeys::AllCharacters;
}

bool HasComma(OpeningKeys keys)
{
    return keys == OpeningKeys::AllCharacters;
}

bool IsDigitKey(int key)
{
    return key >= '0' && key <= '9';
}

bool IsKeypadDigitKey(int key)
{
    return key >= VirtualKey::Keypad0 && key <= VirtualKey::Keypad9;
}

bool IsLetterKey(int key)
{
    return key >= 'A' && key <= 'Z';
}

bool IsMinusKey(int key)
{
    return key == '-' || key == VirtualKey::KeypadMinus || key == VirtualKey::Minus;
}

bool IsCommaKey(int key)
{
    return key == ',' || key == VirtualKey::Comma;
}

std::optional<QString> OpeningText(const QKeyEvent& event, OpeningKeys keys)
{
    const int key = event.key();
    if (IsDigitKey(key))
        return QString::number(key - '0');
    if (IsKeypadDigitKey(key))
        return QString::number(key - VirtualKey::Keypad0);
    if (HasLetters(keys) && IsLetterKey(key))
        return event.text();
    if (HasMinus(keys) && IsMinusKey(key))
        return QStringLiteral("-");
    return std::nullopt;
}

bool IsTakenFromView(int virtualKey, OpeningKeys keys)
{
    if (IsDigitKey(virtualKey) || IsKeypadDigitKey(virtualKey))
        return true;
    // The character codes themselves are not key codes of the view.
    if (virtualKey == VirtualKey::Minus || virtualKey == VirtualKey::KeypadMinus)
        return HasMinus(keys);
    if (virtualKey == VirtualKey::Comma)
        return HasComma(keys);
    return IsLetterKey(virtualKey) && HasLetters(keys);
}

QString TextOf(int virtualKey)
{
    if (IsDigitKey(virtualKey) || IsLetterKey(virtualKey))
        return QString(QChar(virtualKey)).toLower();
    if (IsKeypadDigitKey(virtualKey))
        return QString::number(virtualKey - VirtualKey::Keypad0);
    return IsMinusKey(virtualKey) ? QStringLiteral("-") : QString();
}

Qt::KeyboardModifiers ToQtModifiers(bool isCtrl, bool isAlt, bool isShift)
{
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    modifiers.setFlag(Qt::ControlModifier, isCtrl);
    modifiers.setFlag(Qt::AltModifier, isAlt);
    modifiers.setFlag(Qt::ShiftModifier, isShift);
    return modifiers;
}

}

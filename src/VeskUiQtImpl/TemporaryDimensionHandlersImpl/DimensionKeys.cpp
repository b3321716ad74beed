#include "TemporaryDimensionHandlersImpl/DimensionKeys.h"

#include <QKeyEvent>

namespace vesk
{

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

std::optional<QString> OpeningText(const QKeyEvent& event, const OpeningKeys& keys)
{
    const int key = event.key();
    if (IsDigitKey(key))
        return QString::number(key - '0');
    if (IsKeypadDigitKey(key))
        return QString::number(key - VirtualKey::Keypad0);
    if (keys.hasLetters && IsLetterKey(key))
        return event.text();
    if (keys.hasMinus && IsMinusKey(key))
        return QStringLiteral("-");
    return std::nullopt;
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

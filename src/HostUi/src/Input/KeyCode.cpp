#include "Input/KeyCode.h"

#include "Dimension/InputField.h"

#include <QKeyEvent>

namespace vesk
{
namespace
{

int ToVirtualKeypadKey(int key)
{
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        return VirtualKeypad0 + key - Qt::Key_0;
    return key == Qt::Key_Minus ? VirtualKeypadMinus : 0;
}

}

int ToVirtualKey(const QKeyEvent& event)
{
    const int key = event.key();
    if (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier))
        return 0;
    if (event.modifiers() & Qt::KeypadModifier)
        return ToVirtualKeypadKey(key);
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z))
        return key;
    if (key == Qt::Key_Minus)
        return VirtualMinus;

    // What Shift+comma gives on real keyboards.
    const bool isShift = event.modifiers() & Qt::ShiftModifier;
    const bool isShiftedComma = isShift && (key == Qt::Key_Less || key == Qt::Key_Semicolon);
    return key == Qt::Key_Comma || isShiftedComma ? VirtualComma : 0;
}

bool IsModifierKey(const QKeyEvent& event)
{
    // Shift, Ctrl, Meta, Alt and the lock keys.
    return (event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock) ||
           event.key() == Qt::Key_AltGr;
}

bool CanBeginValue(const QKeyEvent& event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    if (event.text().size() != 1)
        return false;
    const QChar character = event.text().front();
    return character.isLetterOrNumber() || QStringLiteral(".,-+(").contains(character);
}

bool TakesValue(const InputField& field, int key)
{
    switch (key)
    {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return true;
    case Qt::Key_Space:
        return field.takesWithSpace;
    case Qt::Key_Tab:
        return field.next != InputState::IS_None;
    default:
        return false;
    }
}

}

#pragma once

#include <QString>

#include <optional>

class QKeyEvent;

namespace vesk
{

/// Key codes as the host gives them: digits and capital letters are their ASCII codes.
namespace VirtualKey
{

constexpr int Keypad0 = 96;
constexpr int Keypad9 = 105;
constexpr int KeypadMinus = 109;
constexpr int Comma = 188;
constexpr int Minus = 189;

}

/// Which keys open the editor of a kind; each set includes the one before.
enum class OpeningKeys
{
    Digits,
    DigitsAndMinus,
    AllCharacters, ///< Letters, and the comma that leads to the second field.
};

bool HasMinus(OpeningKeys keys);
bool HasLetters(OpeningKeys keys);
bool HasComma(OpeningKeys keys);

bool IsDigitKey(int key);
bool IsKeypadDigitKey(int key);
bool IsLetterKey(int key);

/// The minus of the main keyboard or the keypad, or the character itself.
bool IsMinusKey(int key);

/// The comma of the main keyboard, or the character itself.
bool IsCommaKey(int key);

/// The initial text when a key opens the editor; empty optional if the key does not open it.
std::optional<QString> OpeningText(const QKeyEvent& event, OpeningKeys keys);

/// Whether the handler wants a key pressed in the view.
bool IsTakenFromView(int virtualKey, OpeningKeys keys);

/// The text of a key pressed in the view, letters in lower case; empty for the comma.
QString TextOf(int virtualKey);

/// The Qt modifiers for the host's three flags.
Qt::KeyboardModifiers ToQtModifiers(bool isCtrl, bool isAlt, bool isShift);

}

#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

namespace vesk
{

/// A hand on the keyboard, the mouse and the screen of a display: real X events, to whatever has
/// the focus.
class InputDriver
{
public:
    explicit InputDriver(QString display = QString());

    /// Presses keys one after the other without a pause between them but the rate's. A text between
    /// keys goes in as single characters: `Keys({Text("125.5"), {"Tab"}, …})` is one stream.
    bool Keys(const QStringList& keys, int keysPerSecond = 200) const;

    /// The key names of a text of printable ASCII characters.
    static QStringList Text(const QString& text);

    bool KeyDown(const QString& key) const;
    bool KeyUp(const QString& key) const;
    bool MoveTo(QPoint position) const;
    /// Clicks, and waits until the window manager has passed the click on: it holds clicks back for
    /// a moment, and a key that is pressed meanwhile would overtake them.
    bool Click(QPoint position, int button = 1) const;

    /// Clicks the places in turn, about a hundred a second. At more than three hundred Qt itself
    /// loses some.
    bool ClickAll(const QList<QPoint>& positions) const;

    /// Drags with the left button, in steps as a hand makes them, and rests before letting go.
    bool Drag(QPoint from, QPoint to) const;

    /// Turns the wheel at the pointer's place; positive turns away from the user.
    bool Wheel(int steps) const;

    /// True when the server shows a window at exactly that place.
    bool HasWindowAt(const QRect& rect) const;

    /// How many windows of the program the server shows; a list that drops down is one more.
    int CountWindows() const;

    /// True when the window with that title has the keyboard.
    bool HasKeyboard(const QString& title) const;

    /// The number of the window to which the X server sends keys, whatever the window manager
    /// knows; 1 where it sends them to whatever is under the mouse.
    QString GetKeyboardOwner() const;

    /// Asks the window manager to close the window that was mapped first, as Alt+F4 does.
    bool CloseMainWindow() const;

    /// Gives the only screen another size, which is not larger than the first one.
    bool ResizeScreen(QSize size) const;

    /// Saves a picture of the whole screen.
    bool TakePicture(const QString& file) const;

private:
    bool WaitForWindowManager() const;
    bool Xdotool(const QStringList& arguments) const;
    bool Run(const QString& program, const QStringList& arguments,
             QByteArray* pOutput = nullptr) const;

    QString m_display;
};

}

#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

namespace vesk
{

/// Operates the keyboard, the mouse and the screen of a display: real X events, sent to whatever
/// has the focus.
class InputDriver
{
public:
    /// Programs show their windows on `display`; the devices are those of another X server if
    /// that one is nested in it.
    InputDriver(QString display, QString devices);

    /// Presses keys one after the other with no pauses but those of the rate. A text between keys
    /// is passed as single characters: `Keys({Text("125.5"), {"Tab"}, …})` is one stream.
    bool Keys(const QStringList& keys, int keysPerSecond = 200) const;

    /// The key names of a text of printable ASCII characters.
    static QStringList Text(const QString& text);

    bool KeyDown(const QString& key) const;
    bool KeyUp(const QString& key) const;
    bool MoveTo(QPoint position) const;
    /// Clicks, and waits until the window manager has passed on the click: it holds clicks back for
    /// a moment, and a key pressed meanwhile would overtake them.
    bool Click(QPoint position, int button = 1) const;

    /// Clicks the positions in turn, about a hundred per second. At more than three hundred, Qt
    /// itself loses some.
    bool ClickAll(const QList<QPoint>& positions) const;

    /// Drags with the left button, in steps as a hand makes them, and rests before letting go.
    bool Drag(QPoint from, QPoint to) const;

    /// Turns the wheel at the pointer position; positive is away from the user.
    bool Wheel(int steps) const;

    /// True if the server shows a window with exactly that geometry.
    bool HasWindowAt(const QRect& rect) const;

    /// The number of windows of the program that the server shows; a drop-down list counts as one.
    int CountWindows() const;

    /// True if the window with that title has the keyboard focus.
    bool HasKeyboard(const QString& title) const;

    /// The number of the window to which the X server sends keys, whatever the window manager
    /// believes; 1 if it sends them to whatever is under the mouse.
    QString GetKeyboardOwner() const;

    /// Asks the window manager to close the window that was mapped first, as Alt+F4 does.
    bool CloseMainWindow() const;

    /// Resizes the only screen, to at most its initial size.
    bool ResizeScreen(QSize size) const;

    /// Saves a screenshot of the whole screen.
    bool TakePicture(const QString& file) const;

private:
    bool WaitForWindowManager() const;
    bool Xdotool(const QStringList& arguments) const;
    bool Ask(const QString& program, const QStringList& arguments,
             QByteArray* pOutput = nullptr) const;

    QString m_display;
    QString m_devices;
};

}

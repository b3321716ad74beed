#pragma once

#include "Options.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QString>
#include <QTimer>

#include <deque>
#include <functional>
#include <vector>

class QAbstractButton;
class QAction;
class QComboBox;
class QDialog;
class QToolButton;
class SketchView;
class SketcherWindow;

/// Operates a whole session of the program in this process as a user would: with mouse and
/// keyboard, one step after the other, even while the event loop of an action runs.
///
/// Steps are queued first and executed by Run; the window is closed after the last one.
class ScriptedUser final : public QObject
{
    Q_OBJECT

public:
    ScriptedUser();

    /// Clicks the button (of any kind) with that id, once it is enabled.
    ScriptedUser& Click(const QString& controlId);

    /// Clicks the arrow of a menu button, and waits until the menu is open.
    ScriptedUser& OpenMenu(const QString& buttonId);

    /// Opens the menu of a button, and the sub-menu that holds the entry, and clicks the entry of
    /// that command.
    ScriptedUser& Choose(const QString& buttonId, const QString& commandId);

    /// Opens the list of a combo box with the mouse and selects an item with the keys.
    ScriptedUser& ChooseItem(const QString& boxId, int index);

    /// Moves the mouse to a world point, or clicks there.
    ScriptedUser& MoveTo(double x, double y);
    ScriptedUser& ClickAt(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Presses the left button at a world point; moves the mouse while it is pressed; releases it.
    ScriptedUser& PressAt(double x, double y, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    ScriptedUser& DragTo(double x, double y);
    ScriptedUser& ReleaseAt(double x, double y);

    /// All three.
    ScriptedUser& Drag(double startX, double startY, double endX, double endY,
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Draws one line between two world points and ends the tool.
    ScriptedUser& DrawLine(double startX, double startY, double endX, double endY);

    /// Types each character as a separate key, wherever the keyboard focus is.
    ScriptedUser& Type(const QString& text);
    ScriptedUser& Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Executes any other step, or checks something.
    ScriptedUser& Do(std::function<void()> step);

    /// Executes all of these as a user faster than the program: everything is in the event queue
    /// before the first step is handled.
    ScriptedUser& DoAtOnce(const std::vector<std::function<void()>>& steps);

    /// Waits until the action of that command runs; if empty, until none runs.
    ScriptedUser& UntilRunning(const QString& commandId);

    /// Waits until the condition holds; the test fails after two minutes.
    ScriptedUser& Until(std::function<bool()> condition);

    /// Runs a session with these options and returns its exit code.
    int Run(const Options& options = {});

    /// Moves the mouse within the view, inside a step: without a screen there is no real pointer to
    /// move.
    static void MovePointer(const QPoint& pixel, Qt::MouseButtons buttons = Qt::NoButton);

    /// Presses a key, or types a character, wherever the keyboard focus is, inside a step.
    static void TypeNow(QChar character);
    static void PressNow(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// The window and its view, inside a step.
    static SketcherWindow* FindWindow();
    static SketchView* FindView();
    /// The dialog that is open; null if none is.
    static QDialog* FindDialog();
    static QAbstractButton* FindButton(const QString& controlId);
    static QToolButton* FindMenuButton(const QString& controlId);
    static QComboBox* FindBox(const QString& controlId);

    /// The persistent text of the status bar; empty if there is none.
    static QString States();

    /// True while the action of that command runs; if empty, while none runs.
    static bool IsRunning(const QString& commandId);

    /// The entry of a command in a menu; null if there is none.
    static QAction* FindEntry(const QString& commandId);

private:
    /// Returns true once the step is done, false to retry it.
    using Step = std::function<bool()>;

    void Schedule();
    void DoNext();

    std::deque<Step> m_steps;
    QElapsedTimer m_waiting;
    QTimer m_next{this};
};

#pragma once

#include "Options.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QString>

#include <deque>
#include <functional>

class QToolButton;
class SketchView;
class SketcherWindow;

/// Works with a whole session of the program in this process, as a user would: with the mouse and
/// the keyboard, one step after the other, also while an action's event loop runs.
///
/// Steps are noted first and done by Run; the window is closed after the last one.
class ScriptedUser final : public QObject
{
    Q_OBJECT

public:
    /// Clicks the ribbon button with that id, once it is enabled.
    ScriptedUser& Click(const QString& controlId);

    /// Moves the mouse to, or clicks at, a world point.
    ScriptedUser& MoveTo(double x, double y);
    ScriptedUser& ClickAt(double x, double y);

    /// Types each character as a key of its own, wherever the keyboard is.
    ScriptedUser& Type(const QString& text);
    ScriptedUser& Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    /// Does something else, or checks something.
    ScriptedUser& Do(std::function<void()> step);

    /// Waits until the condition holds; the test fails after five seconds.
    ScriptedUser& Until(std::function<bool()> condition);

    /// Runs a session with these options and returns its exit code.
    int Run(const Options& options = {});

    /// The window and its view, inside a step.
    static SketcherWindow* FindWindow();
    static SketchView* FindView();
    static QToolButton* FindButton(const QString& controlId);

private:
    /// True when the step is done, false to try it again.
    using Step = std::function<bool()>;

    void Schedule();
    void DoNext();

    std::deque<Step> m_steps;
    QElapsedTimer m_waiting;
};

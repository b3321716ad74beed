#pragma once

#include <QObject>
#include <QPointer>

class QLayout;
class QMainWindow;

namespace vesk
{

/// Keeps a main window from laying itself out at each of many changes: lives on the stack of the
/// function that makes them, which asks for one layout at the end.
///
/// The window must not miss what happens to it meanwhile. So the pause ends early when the window
/// is resized or loses a child, or when an event loop is about to lay it out.
class LayoutPause final : public QObject
{
public:
    /// Does nothing for null, for a window that is not visible, and inside another pause.
    explicit LayoutPause(QMainWindow* pWindow);

    /// Ends the pause. Without `LayOut`, the window is laid out when events are next processed.
    ~LayoutPause() override;

    /// Ends the pause and lays out what changed.
    void LayOut();

    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    void End();

    bool m_isOn = false;
    QPointer<QLayout> m_pLayout;
};

}

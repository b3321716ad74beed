#pragma once

#include <QObject>

class QDockWidget;

namespace vesk
{

/// Puts right where the toolkit believes a floating pane to be.
///
/// The toolkit asks when it hears that something has changed; a window manager that is busy may
/// place the window only then, and say nothing more. What is saved, dragged or opened beside the
/// pane goes by the belief. So the window system is asked again whenever the pane is seen or used.
class PanePosition final : public QObject
{
    Q_OBJECT

public:
    /// Watches a pane from now on, once.
    static void Watch(QDockWidget& pane);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    explicit PanePosition(QDockWidget& pane);
    void WatchWindow();
    void Correct() const;

    QDockWidget& m_pane;
};

}

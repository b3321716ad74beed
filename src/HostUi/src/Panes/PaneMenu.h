#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;
class QMenu;
class QPoint;

namespace vesk
{

/// The menu of a pane, which does by keys what the mouse does at its title and its edges: floats
/// it, moves it to another side of the window, gives it more or less room, closes it.
///
/// Alt+minus opens that of the pane that has the keyboard, and so does a right click on the title
/// of a docked pane.
class PaneMenu final : public QObject
{
    Q_OBJECT

public:
    /// The menus of all panes of a window, which is not owned; the parent owns this.
    PaneMenu(QMainWindow& window, QObject* pParent);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void OnKey();
    void Open(QDockWidget& pane, const QPoint& position);
    void AddPlaces(QMenu& menu, QDockWidget& pane);
    void AddSizes(QMenu& menu, QDockWidget& pane);
    void Resize(QDockWidget& pane, Qt::Orientation orientation, int change);

    QMainWindow& m_window;
};

}

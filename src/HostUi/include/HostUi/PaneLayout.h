#pragma once

#include "Dock/IDockManager.h"
#include "HostUi/HostUiExport.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QTimer>

#include <string>
#include <vector>

class QDockWidget;
class QMainWindow;
class QScreen;

namespace vesk
{

/// Where a pane stands in the factory layout.
struct PanePlace
{
    std::wstring name;    ///< The pane's name.
    DockArea area;        ///< One of the four areas.
    int extent;           ///< In pixels: its width at the left and right, else its height.
    std::wstring tabWith; ///< The pane behind whose tab it stands; empty for a place of its own.
};

/// Where the panes of a main window stand: sizes, tabs, floating places, hidden or not.
///
/// Panes are matched by name. A pane that was hidden or floated stays so; one that a saved layout
/// does not know goes to its factory place; places of unknown panes are kept for the next save. A
/// floating pane is always where its user can get hold of it, also after a screen has shrunk or
/// gone, and floats at a size of its own. A docked pane stays wide and high enough to be of use.
class VESK_HOST_UI_API PaneLayout final : public QObject
{
    Q_OBJECT

public:
    /// Window and manager, not owned, outlive the layout. Panes without a factory place are left
    /// where they are.
    PaneLayout(QMainWindow& window, IDockManager& docks, std::vector<PanePlace> places);
    ~PaneLayout() override;

    /// The layout as it is, in a form of its own; while all panes are hidden at once, as it was
    /// before.
    QByteArray Save();

    /// Brings a layout back that Save returned, of this run or an earlier one. False, and the
    /// factory layout stands, when it cannot be used.
    bool Restore(const QByteArray& layout);

    /// Brings the factory layout back, in which every pane is visible.
    void RestoreDefault();

    /// Hides all panes or, the second time, brings back exactly what was. A pane that is shown in
    /// between ends that: then the next time hides all again.
    void ToggleAllHidden();

    bool IsAllHidden() const { return !m_beforeHiding.isEmpty(); }

    /// Brings floating panes back of which a user cannot get hold: 64 pixels of the title's width
    /// in all its height and the close button have to be on a screen.
    void BringFloatingIntoReach();

signals:
    /// A pane was shown or hidden.
    void visibilityChanged();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    struct Pane
    {
        QDockWidget* pWidget;
        IDock* pDock;
    };

    std::vector<Pane> FindPanes() const;
    QDockWidget* FindWidget(const std::wstring& name) const;
    void Prepare();
    void WatchScreen(QScreen* pScreen);
    void OnFloated(bool isFloating);
    void Float(QDockWidget& pane);
    void EndDrag();
    void NoteSize(const QDockWidget& pane);
    bool Apply(const QByteArray& layout);
    void PlaceFloating(QMap<QString, QRect> places);
    void ShareOut(DockArea area, const QList<QDockWidget*>& panes);
    void PlaceLost();

    QMainWindow& m_window;
    IDockManager& m_docks;
    std::vector<PanePlace> m_places;

    /// While all panes are hidden at once.
    QByteArray m_beforeHiding;

    /// Where panes floated that a layout named and nobody has added.
    QMap<QString, QRect> m_unknownPlaces;

    /// The panes that have been named here.
    std::vector<QPointer<QDockWidget>> m_named;

    /// At which size each pane floated last, and which do so now, by name.
    QMap<QString, QSize> m_floatingSizes;
    QSet<QString> m_floating;

    /// The pane that is being dragged out of its area.
    QPointer<QDockWidget> m_pDragged;
    QTimer m_reachCheck;
};

}

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

#include <memory>
#include <string>
#include <vector>

class QDockWidget;
class QMainWindow;
class QScreen;

namespace vesk
{

class PaneRetreat;

/// The position of a pane in the default layout.
struct PanePlace
{
    std::wstring name;    ///< The pane's name.
    DockArea area;        ///< One of the four areas.
    int extent;           ///< In pixels: the width at the left and right, else the height.
    std::wstring tabWith; ///< The pane it is tabbed with, behind that pane; empty for none.
};

/// The layout of a main window's panes: sizes, tabs, floating positions, visibility.
///
/// Panes are matched by name. A pane that was hidden or floating stays so; one that a saved layout
/// does not name goes to its default position; positions of unknown panes are kept for the next
/// save. A floating pane always stays within the user's reach, even after a screen shrinks or
/// disappears, and floats at a size of its own. A docked pane stays wide and high enough to be
/// usable.
///
/// If the window may become smaller than its panes and the least size of its central widget (its
/// minimum size is set), panes give way: they are hidden, the last default position first, and are
/// shown again when the window is large enough. The pane that was shown last stays. A saved layout
/// contains those that have given way.
class VESK_HOST_UI_API PaneLayout final : public QObject
{
    Q_OBJECT

public:
    /// Window and manager are not owned and outlive the layout. Panes without a default position
    /// are left where they are.
    PaneLayout(QMainWindow& window, IDockManager& docks, std::vector<PanePlace> places);
    ~PaneLayout() override;

    /// The current layout in an opaque format; while ToggleAllHidden hides all panes, the layout
    /// from before.
    QByteArray Save();

    /// Restores a layout that Save returned in this run or an earlier one. If it is unusable,
    /// restores the default layout and returns false.
    bool Restore(const QByteArray& layout);

    /// Restores the default layout, in which every pane is visible.
    void RestoreDefault();

    /// Hides all panes; the next call restores exactly the layout from before. If a pane is shown
    /// in between, the next call hides all again.
    void ToggleAllHidden();

    /// True while all panes are hidden at once and can be brought back.
    bool IsAllHidden() const { return !m_beforeHiding.isEmpty(); }

    /// Brings back floating panes that are out of the user's reach: 64 pixels of the title's width,
    /// at its full height, and the close button must be on a screen.
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
    void PutBehind(QDockWidget* pFront, QDockWidget& pane);

    QMainWindow& m_window;
    IDockManager& m_docks;
    std::vector<PanePlace> m_places;
    std::unique_ptr<PaneRetreat> m_pRetreat;

    /// The layout from before ToggleAllHidden hid all panes; empty otherwise.
    QByteArray m_beforeHiding;

    /// Floating positions of panes that a layout names but the manager does not have.
    QMap<QString, QRect> m_unknownPlaces;

    /// The panes whose object names were set here.
    std::vector<QPointer<QDockWidget>> m_named;

    /// The size at which each pane last floated, and the panes that float now, by name.
    QMap<QString, QSize> m_floatingSizes;
    QSet<QString> m_floating;

    /// The pane being dragged out of its area.
    QPointer<QDockWidget> m_pDragged;
    QTimer m_reachCheck;
};

}

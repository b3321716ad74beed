#pragma once

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class QDockWidget;
class QMainWindow;

namespace vesk
{

/// Hides docked panes while the window is too small for them and for what its central widget needs
/// at least, and shows them again, as wide and as high as before, as soon as it is large enough.
///
/// The last pane in the order gives way first, with those that are tabbed with it or share the
/// width or height that it takes; the pane that the user has shown last does not give way. A window
/// gets that small only if its minimum size is set. Panes are known by their object names.
class PaneRetreat final : public QObject
{
    Q_OBJECT

public:
    /// The window is not owned and outlives this.
    explicit PaneRetreat(QMainWindow& window);

    /// Sets which panes may give way.
    void SetPanes(const QStringList& names) { m_names = names; }

    /// What Restore needs to know in this or another run: the panes that have given way, and the
    /// sizes that panes are to have.
    QByteArray Save() const;

    /// Restores what Save has returned, after the panes were arranged as they were then. Anything
    /// else makes it forget all.
    void Restore(const QByteArray& state);

    /// Sets the size that a pane is to have; 0 for an extent that does not matter.
    void SetSize(const QString& name, const QSize& size) { m_sizes[name] = size; }

    /// Ignores what happens to the panes as long as it lives: the program arranges them.
    class Pause
    {
    public:
        explicit Pause(PaneRetreat& retreat) : m_retreat(retreat) { ++m_retreat.m_pauses; }
        ~Pause() { --m_retreat.m_pauses; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        PaneRetreat& m_retreat;
    };

    /// To be told what happens to a pane.
    void OnPaneShown(const QDockWidget& pane);
    void OnPaneResized();

    /// The pane that sends this is in another area.
    void OnPaneMoved() { m_sizes.remove(sender()->objectName()); }

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    /// Panes that gave way together.
    struct Group
    {
        QStringList names;
        QStringList fronts; ///< Those that were not behind a tab of another.
        QSize room;         ///< What the window needs in addition to show them.
    };

    void Check();
    bool Arrange();
    bool IsSqueezed() const;
    void NoteSizes();
    QMap<QString, QSize> SizesInFront() const;
    void RestoreSizes();
    bool IsTooSmall(Qt::Orientation orientation) const;
    bool GiveWay(Qt::Orientation orientation);
    void GiveWay(const QList<QDockWidget*>& panes, Qt::Orientation orientation);
    bool IsInTheWay(QDockWidget& pane, Qt::Orientation orientation) const;
    int StackExtent(Qt::DockWidgetArea area, Qt::Orientation orientation) const;
    QList<QDockWidget*> FindGroup(QDockWidget& pane, Qt::Orientation orientation) const;
    bool ComeBack();
    void Show(const Group& group);
    void RestoreAcross(Qt::Orientation orientation);
    void RestoreShares(Qt::Orientation orientation);
    QSize LeastSize() const;
    QDockWidget* Find(const QString& name) const;
    QList<QDockWidget*> FindDocked() const;
    QList<QDockWidget*> FindInFront() const;
    Qt::Orientation AcrossOf(QDockWidget& pane) const;

    QMainWindow& m_window;
    QStringList m_names;

    /// Those that have given way, the first one first.
    QVector<Group> m_groups;

    /// The sizes that panes are to have where there is room for them, by name.
    QMap<QString, QSize> m_sizes;
    QMap<QString, QSize> m_pressedSizes; ///< When the mouse was pressed.
    QString m_shownLast;
    QSize m_checkedSize; ///< Of the window when all was in order last.
    bool m_areSomeBack = false;
    bool m_isSqueezed = false;
    int m_pauses = 0;
};

}

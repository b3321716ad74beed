#pragma once

#include "HostUi/PaneLayout.h"
#include "HostUi/QtText.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/DockManagerImpl.h"

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QScreen>

#include <memory>

namespace vesk::test
{

/// A main window that can hold panes.
class PaneWindow final : public QMainWindow, public IApplicationWindow
{
public:
    PaneWindow()
    {
        setCentralWidget(new QWidget);
        resize(1000, 700);
    }

    WindowId GetWindowId() const override { return winId(); }
};

/// A run of a program: its window on screen, with panes in the default layout.
struct Run
{
    explicit Run(const QStringList& names = {"A", "B", "C", "D", "E", "F"})
    {
        host.window.SetDockManager(&manager);
        host.window.SetWindowId(window.GetWindowId());
        for (const QString& name : names)
            AddPane(name);
        pLayout = std::make_unique<PaneLayout>(window, manager, Places());
        pLayout->RestoreDefault();
        window.show();
        Settle();
    }

    /// A and B at the left, A above B, C tabbed behind A; D and E at the right; F at the bottom.
    static std::vector<PanePlace> Places()
    {
        return {{L"A", DockArea::Left, 200, L""},  {L"B", DockArea::Left, 200, L""},
                {L"C", DockArea::Left, 200, L"A"}, {L"D", DockArea::Right, 250, L""},
                {L"E", DockArea::Right, 250, L""}, {L"F", DockArea::Bottom, 120, L""}};
    }

    void AddPane(const QString& name)
    {
        manager.AddDock(manager.CreateDock(ToWide(name), ToWide(name)), DockArea::Left,
                        DockOrientation::Vertical);
        Pane(name)->setWidget(new QLabel(name));
    }

    QDockWidget* Pane(const QString& name)
    {
        return dynamic_cast<QDockWidget*>(manager.GetDock(ToWide(name)));
    }

    /// B, A and C tabbed with A in front; D floats, E is hidden.
    void Arrange()
    {
        window.tabifyDockWidget(Pane("B"), Pane("A"));
        window.tabifyDockWidget(Pane("A"), Pane("C"));
        Pane("A")->raise();
        Pane("D")->setFloating(true);
        Pane("D")->setGeometry(300, 200, 260, 180);
        Pane("E")->hide();
        window.resizeDocks({Pane("A")}, {330}, Qt::Horizontal);
        Settle();
    }

    static void Settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }

    QByteArray State() { return window.saveState(); }

    HostFixture host;
    PaneWindow window;
    DockManagerImpl manager{&window};
    std::unique_ptr<PaneLayout> pLayout;
};

/// True if the user sees the pane or its tab, or can show it; for a floating pane, if its title can
/// be dragged and its close button clicked.
inline bool IsPlaced(const Run& run, QDockWidget* pPane)
{
    if (!pPane->isFloating())
        return run.window.dockWidgetArea(pPane) != Qt::NoDockWidgetArea;
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect frame = pPane->frameGeometry();
    const QRect title(frame.topLeft(), QPoint(frame.right(), pPane->geometry().top() - 1));
    const QRect seen = title & screen;
    return seen.width() >= 64 && seen.height() == title.height() &&
           screen.contains(title.topRight());
}

}

// Whether all panes are shown for little more than one relayout, and whether a pane costs little
// more than its widget.

#include "Harness/Question.h"

#include "Dock/IDock.h"
#include "Foundation/NqStyleSheetHelper.h"
#include "VeskUiQtImpl/DockManagerImpl.h"
#include "View/IUiManager.h"

#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>

#include <memory>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

/// A main window with its manager of panes, both known to the host.
class Window : public QMainWindow, public IApplicationWindow, public IUiManager
{
public:
    Window()
    {
        resize(1600, 1000);
        Set(this);
    }
    ~Window() override { Set(nullptr); }

    WindowId GetWindowId() const override { return winId(); }
    IApplicationWindow* GetMainWindow() const override
    {
        return const_cast<Window*>(this); // NOLINT(cppcoreguidelines-pro-type-const-cast)
    }
    IDockManager* GetDockManager() const override { return &m_manager; }

private:
    mutable DockManagerImpl m_manager{this};
};

/// How panes came to be hidden.
enum class Before
{
    Shown,       ///< one above the other on the left, and then all were hidden
    ShownAsTabs, ///< the same, with ten tabs in each place
    NeverShown,  ///< one above the other on the left, hidden before the window appeared
};

/// A visible window whose panes are hidden.
struct HiddenPanes
{
    HiddenPanes(long count, Before before)
    {
        IDockManager& manager = *window.GetDockManager();
        for (long i = 0; i < count; ++i)
        {
            const std::wstring name = L"pane " + std::to_wstring(i);
            manager.AddDock(manager.CreateDock(name, name), DockArea::Left,
                            DockOrientation::Vertical);
            IDock* pDock = manager.GetDock(name);
            if (before == Before::NeverShown)
                pDock->Hide();
            if (before == Before::ShownAsTabs && i % 10 != 0)
                window.tabifyDockWidget(widgets.back(), dynamic_cast<QDockWidget*>(pDock));
            widgets.push_back(dynamic_cast<QDockWidget*>(pDock));
            widgets.back()->setWidget(new QWidget);
        }
        window.show();
        QCoreApplication::processEvents();
        manager.HideAllDockPane();
        QCoreApplication::processEvents();
    }

    void ShowEach() const
    {
        for (QDockWidget* pWidget : widgets)
            pWidget->show();
    }

    Window window;
    std::vector<QDockWidget*> widgets;
};

void ShowAll(Stopwatch& stopwatch, long count, Before before)
{
    const HiddenPanes panes(count, before);
    stopwatch.Time([&] { panes.window.GetDockManager()->ShowAllDockPane(); });
}

/// Nothing is laid out until the window appears.
void ShowInHiddenWindow(Stopwatch& stopwatch, long count, Before before)
{
    HiddenPanes panes(count, before);
    panes.window.hide();
    stopwatch.Time([&] {
        panes.ShowEach();
        panes.window.show();
    });
}

void ShowEach(Stopwatch& stopwatch, long count, Before before)
{
    const HiddenPanes panes(count, before);
    stopwatch.Time([&] { panes.ShowEach(); });
}

Question& AskAboutShowing(const std::string& name, long count, Before before, double timesAhead)
{
    return Ask(name)
        .Ours([=](Stopwatch& stopwatch) { ShowAll(stopwatch, count, before); })
        .Limit([=](Stopwatch& stopwatch) { ShowInHiddenWindow(stopwatch, count, before); })
        .Peer("a loop of show()", [=](Stopwatch& stopwatch) { ShowEach(stopwatch, count, before); })
        .AheadOfPeer(timesAhead)
        .WithoutInstructions()
        .Rounds(11);
}

/// A sheet of 50 KB: a thousand rules that fit no widget of the window, as most do.
std::wstring LongSheet()
{
    std::wstring sheet;
    for (int i = 0; sheet.size() < 50 * 1024; ++i)
        sheet += L"QToolButton#button" + std::to_wstring(i) + L" { color: #102030; }\n";
    return sheet;
}

constexpr int DockCount = 20;

void AskAboutConstruction()
{
    const std::wstring sheet = LongSheet();
    Ask("P17 construct docks with a sheet of 50 KB")
        .Ours([sheet](Stopwatch& stopwatch) {
            NqStyleSheetHelper::Instance()->SetCurrentStyleData(sheet);
            const Window window;
            std::vector<OwnerPtr<IDock>> docks(DockCount);
            stopwatch.Time([&] {
                for (OwnerPtr<IDock>& opDock : docks)
                    opDock = window.GetDockManager()->CreateDock(L"pane", L"A pane");
            });
            NqStyleSheetHelper::Instance()->SetCurrentStyleData({});
        })
        .Limit([sheet](Stopwatch& stopwatch) {
            std::vector<std::unique_ptr<QDockWidget>> docks(DockCount);
            stopwatch.Time([&] {
                for (std::unique_ptr<QDockWidget>& pDock : docks)
                {
                    pDock = std::make_unique<QDockWidget>(QStringLiteral("A pane"));
                    pDock->setStyleSheet(QString::fromStdWString(sheet));
                }
            });
        })
        .TimeAtMost(0.83);
}

}

void AskQuestions()
{
    AskAboutConstruction();
    AskAboutShowing("P18 show all of 100 docks", 100, Before::Shown, 5).TimeAtMost(1.15);
    AskAboutShowing("P18 show all of 300 docks", 300, Before::Shown, 9).TimeAtMost(1.45);
    AskAboutShowing("P18 show 100 docks for the first time", 100, Before::NeverShown, 5);
    Ask("P18 show all docks, ten tabs in each place, growth")
        .GrowsAtMost(1.3, {50, 100, 200, 400},
                     [](Stopwatch& stopwatch, long count) {
                         ShowAll(stopwatch, count, Before::ShownAsTabs);
                     })
        .Rounds(11);
}

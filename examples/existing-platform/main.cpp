// A floor planner with a window, a tool bar and a canvas of its own, to which buttons and typed
// dimensions of the library are added.

#include "Canvas.h"
#include "Platform.h"
#include "RoomAction.h"

#include <Command/Command.h>
#include <Command/ICommandManager.h>
#include <Control/CommandButtonDefinition.h>
#include <Control/IControl.h>
#include <Control/VeskIControlFactory.h>
#include <HostCore.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/DimensionInputController.h>
#include <HostUi/TranslationCatalogue.h>

#include <QApplication>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolBar>

#include <cstdio>
#include <utility>

using namespace vesk;

namespace
{

OwnerPtr<ICommand> MakeRoomCommand(Canvas& canvas)
{
    const auto start = [&canvas](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        return MakeOwner<RoomAction>([&canvas](const QRectF& room) { canvas.AddRoom(room); });
    };
    return MakeOwner<Command>(L"Planner.Room", Command::Kind::Interactive, start);
}

/// A button of the library for a command. The caller owns the control.
OwnerPtr<IControl> AddButton(QToolBar& toolBar, Platform& platform, const std::wstring& commandId,
                             const std::wstring& caption)
{
    auto opDefinition = MakeOwner<CommandButtonDefinition>(commandId, commandId);
    CommandButtonDefinition& definition = *opDefinition;
    definition.SetCaption(caption);
    // A widget that is visible without a parent would open as a window.
    definition.SetVisible(false);
    OwnerPtr<IControl> opControl =
        VeskIControlFactory::Get()->CreateQtButton(std::move(opDefinition));
    toolBar.addWidget(dynamic_cast<QWidget*>(opControl.Get()));
    definition.SetVisible(true);
    platform.AddRefresh([&definition, pControl = opControl.Get()] {
        definition.SetChecked(ActionManager::GetRunningCommandId() == definition.GetCommandId());
        pControl->UpdateStatus();
    });
    return opControl;
}

}

int main(int argc, char* argv[])
{
    const QApplication qtApplication(argc, argv);
    HostCore host;
    const TranslationCatalogue translations;
    const ControlLibrary library;
    if (!library.IsLoaded())
    {
        std::fprintf(stderr, "no control library: %s\n", qPrintable(library.GetError()));
        return 1;
    }

    // What the program had before.
    QMainWindow window;
    DimensionInputController input;
    auto* pCanvas = new Canvas(input);
    window.setCentralWidget(pCanvas);
    QToolBar* pToolBar = window.addToolBar("Draw");
    QObject::connect(pCanvas, &Canvas::hintChanged, &window,
                     [&window](const QString& hint) { window.statusBar()->showMessage(hint); });
    QObject::connect(pCanvas, &Canvas::roomAdded, &window, &QMainWindow::setWindowTitle);

    // What is added for the library.
    PlatformWindow platformWindow(window);
    Platform platform(platformWindow);
    host.GetViewManager().AddView(pCanvas);
    ICommandManager::Get()->AddCommand(MakeRoomCommand(*pCanvas));
    const OwnerPtr<IControl> opButton = AddButton(*pToolBar, platform, L"Planner.Room", L"Room");
    platform.RefreshControls();

    window.show();
    const int code = QApplication::exec();
    ActionManager::Reset();
    host.GetViewManager().RemoveView(pCanvas);
    return code;
}

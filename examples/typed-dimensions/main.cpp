// A drawing program for lines whose lengths and angles can be typed.
// usage: typed-dimensions [JOURNAL]

#include "LineAction.h"
#include "LineView.h"

#include <Command/ActionManager.h>
#include <Command/Command.h>
#include <Command/ICommandManager.h>
#include <Control/CommandButtonDefinition.h>
#include <HostCore.h>
#include <HostUi/ControlHost.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/DimensionInputController.h>
#include <HostUi/MainWindow.h>
#include <HostUi/RibbonFocus.h>
#include <HostUi/TranslationCatalogue.h>
#include <HostUi/UiApplication.h>
#include <Journal/JournalManager.h>
#include <Qtitan/RibbonBar.h>
#include <Qtitan/RibbonGroup.h>
#include <Qtitan/RibbonPage.h>

#include <QApplication>
#include <QToolButton>

#include <cstdio>
#include <string>

using namespace vesk;

namespace
{

void ShowLength(MainWindow& window, const Line& line)
{
    window.ShowNotice(QString("length %1").arg((line.end - line.start).norm()));
}

OwnerPtr<ICommand> MakeLineCommand(LineView& view, MainWindow& window)
{
    const auto draw = [&view, &window](const Line& line) {
        view.Add(line);
        ShowLength(window, line);
    };
    const auto start = [draw](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
        return MakeOwner<LineAction>(draw);
    };
    return MakeOwner<Command>(L"Example.Line", Command::Kind::Interactive, start);
}

bool OpenJournal(const char* path)
{
    std::string error;
    if (JournalManager::GetInstance().Open(path, error))
        return true;
    std::fprintf(stderr, "%s\n", error.c_str());
    return false;
}

}

int main(int argc, char* argv[])
{
    const QApplication qtApplication(argc, argv);
    HostCore host;
    const TranslationCatalogue translations;
    UiApplication application;
    const ControlLibrary library;
    if (!library.IsLoaded())
    {
        std::fprintf(stderr, "no control library: %s\n", qPrintable(library.GetError()));
        return 1;
    }
    if (argc > 1 && !OpenJournal(argv[1]))
        return 1;

    DimensionInputController input;
    MainWindow window;
    auto* pView = new LineView(1, input, &window);
    window.SetDrawingView(pView);
    application.SetMainWindow(&window);
    host.GetViewManager().AddView(pView);
    const RibbonFocus focus(*window.GetRibbon(), *pView, input);
    ControlHost controls;

    ICommandManager::Get()->AddCommand(MakeLineCommand(*pView, window));
    auto opButton = MakeOwner<CommandButtonDefinition>(L"Example.Line", L"Example.Line");
    opButton->SetCaption(L"Line");
    opButton->SetVisible(false);
    Qtitan::RibbonGroup* pGroup = window.GetRibbon()->addPage("Start")->addGroup("Draw");
    pGroup->addButton(qobject_cast<QToolButton*>(controls.Create(std::move(opButton))));

    controls.RefreshControls();
    window.resize(900, 600);
    window.show();
    const int code = QApplication::exec();
    ActionManager::Reset();
    host.GetViewManager().RemoveView(pView);
    return code;
}

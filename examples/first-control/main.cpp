// A button that counts its clicks, and a label that shows how many there were.

#include <Command/Command.h>
#include <Command/ICommandManager.h>
#include <Control/CommandButtonDefinition.h>
#include <Control/LabelDefinition.h>
#include <HostCore.h>
#include <HostUi/ControlHost.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/MainWindow.h>
#include <HostUi/UiApplication.h>
#include <Qtitan/RibbonBar.h>
#include <Qtitan/RibbonGroup.h>
#include <Qtitan/RibbonPage.h>

#include <QApplication>
#include <QToolButton>

#include <cstdio>

using namespace vesk;

namespace
{

/// A command that adds one to the count in the label.
OwnerPtr<ICommand> MakeCountCommand(LabelDefinition& label)
{
    const auto count = [&label, clicks = 0](IUiView*, const CommandParameters&) mutable {
        label.SetCaption(L"clicks: " + std::to_wstring(++clicks));
        return OwnerPtr<IAction>();
    };
    return MakeOwner<Command>(L"Example.Count", Command::Kind::Plain, count);
}

}

int main(int argc, char* argv[])
{
    const QApplication qtApplication(argc, argv);
    HostCore host;
    UiApplication application;
    const ControlLibrary library;
    if (!library.IsLoaded())
    {
        std::fprintf(stderr, "no control library: %s\n", qPrintable(library.GetError()));
        return 1;
    }
    MainWindow window;
    application.SetMainWindow(&window);
    Qtitan::RibbonGroup* pGroup = window.GetRibbon()->addPage("Start")->addGroup("Counting");
    ControlHost controls;

    auto opLabel = MakeOwner<LabelDefinition>(L"Example.Clicks");
    LabelDefinition& label = *opLabel;
    label.SetCaption(L"clicks: 0");
    label.SetVisible(false);
    pGroup->addWidget(controls.Create(std::move(opLabel)));
    label.SetVisible(true);

    ICommandManager::Get()->AddCommand(MakeCountCommand(label));
    auto opButton = MakeOwner<CommandButtonDefinition>(L"Example.Count", L"Example.Count");
    opButton->SetCaption(L"Count");
    opButton->SetTooltip(L"Adds one");
    opButton->SetVisible(false);
    pGroup->addButton(qobject_cast<QToolButton*>(controls.Create(std::move(opButton))));

    controls.RefreshControls();
    window.resize(640, 360);
    window.show();
    return QApplication::exec();
}

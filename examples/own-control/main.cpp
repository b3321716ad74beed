// A dial, which is a kind of control that the library does not have, with a label that shows its
// value and a button that sets it back.

#include "Dial.h"

#include <Command/Command.h>
#include <Command/ICommandManager.h>
#include <Control/CommandButtonDefinition.h>
#include <Control/LabelDefinition.h>
#include <Foundation/UpdateCtrlStatusEvent.h>
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

/// Shows the value of a dial on a label, and who set it.
class ValueLabel final : public IControlDefinitionChangeEventHandler
{
public:
    ValueLabel(const DialDefinition& dial, LabelDefinition& label) : m_dial(dial), m_label(label)
    {
        m_dial.GetControlDefinitionChangeEvent()->Add(this);
    }

    ~ValueLabel() override { m_dial.GetControlDefinitionChangeEvent()->Delete(this); }

    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        const std::wstring who = pArgs->IsChangeByUser() ? L"you" : L"the program";
        m_label.SetCaption(std::to_wstring(m_dial.GetValue()) + L", set by " + who);
        // Whether there is something to reset depends on the value.
        IApplication::Get()->PostEvent(MakeOwner<UpdateCtrlStatusEvent>());
    }

private:
    const DialDefinition& m_dial;
    LabelDefinition& m_label;
};

OwnerPtr<ICommand> MakeResetCommand(DialDefinition& dial)
{
    const auto reset = [&dial](IUiView*, const CommandParameters&) {
        dial.SetValue(0);
        return OwnerPtr<IAction>();
    };
    return MakeOwner<Command>(L"Example.Reset", Command::Kind::Plain, reset,
                              [&dial] { return dial.GetValue() != 0; });
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
    Qtitan::RibbonGroup* pGroup = window.GetRibbon()->addPage("Start")->addGroup("Dial");
    ControlHost controls;

    auto opDial = MakeOwner<DialDefinition>(L"Example.Dial");
    DialDefinition& dial = *opDial;
    pGroup->addWidget(controls.Add(MakeOwner<Dial>(std::move(opDial))));

    auto opLabel = MakeOwner<LabelDefinition>(L"Example.Value");
    LabelDefinition& label = *opLabel;
    label.SetCaption(L"turn the dial");
    label.SetVisible(false);
    pGroup->addWidget(controls.Create(std::move(opLabel)));
    label.SetVisible(true);

    ICommandManager::Get()->AddCommand(MakeResetCommand(dial));
    auto opButton = MakeOwner<CommandButtonDefinition>(L"Example.Reset", L"Example.Reset");
    opButton->SetCaption(L"Reset");
    opButton->SetVisible(false);
    pGroup->addSmallButton(qobject_cast<QToolButton*>(controls.Create(std::move(opButton))));

    const auto pShown = std::make_unique<ValueLabel>(dial, label);
    controls.RefreshControls();
    window.resize(640, 360);
    window.show();
    return QApplication::exec();
}

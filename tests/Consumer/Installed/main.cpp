// A host in one file: a window with a button of the control library, whose command it runs.

#include <Command/Command.h>
#include <Command/IAction.h>
#include <Command/ICommandManager.h>
#include <Control/CommandButtonDefinition.h>
#include <HostCore.h>
#include <HostUi/ControlHost.h>
#include <HostUi/ControlLibrary.h>
#include <HostUi/UiApplication.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <utility>

using namespace vesk;

int main(int argc, char* argv[])
{
    QApplication qtApplication(argc, argv);
    HostCore host;
    UiApplication application;
    const ControlLibrary library;
    if (!library.IsLoaded())
    {
        std::fprintf(stderr, "no control library: %s\n", qPrintable(library.GetError()));
        return 1;
    }

    int count = 0;
    ICommandManager::Get()->AddCommand(MakeOwner<Command>(
        L"Count", Command::Kind::Plain, [&count](IUiView*, const CommandParameters&) {
            ++count;
            return OwnerPtr<IAction>();
        }));
    QWidget window;
    ControlHost controls;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"Count.Button", L"Count");
    CommandButtonDefinition* pDefinition = opDefinition.Get();
    pDefinition->SetCaption(L"数一数");
    pDefinition->SetVisible(false);
    auto* pButton = qobject_cast<QAbstractButton*>(controls.Create(std::move(opDefinition)));
    if (pButton == nullptr)
        return 2;
    (new QVBoxLayout(&window))->addWidget(pButton);
    pDefinition->SetVisible(true);
    controls.RefreshControls();
    window.show();

    bool isShown = false;
    QTimer::singleShot(0, pButton, [pButton, &isShown] {
        isShown = pButton->isVisible();
        pButton->click();
    });
    QTimer::singleShot(0, &qtApplication, &QApplication::quit);
    QApplication::exec();
    std::printf("button \"%s\" shown: %d, commands run: %d\n", qPrintable(pButton->text()),
                isShown ? 1 : 0, count);
    return isShown && count == 1 ? 0 : 3;
}

// Whether a click on a button reaches its command for as little as a click on a tool button that
// writes the record and makes the call itself.

#include "Buttons.h"
#include "Harness/Question.h"

#include "Command/ActionManager.h"
#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "HostCore.h"
#include "Journal/CommandParameters.h"
#include "Journal/IJournalData.h"
#include "Journal/JournalManager.h"
#include "Journal/NqIJournalFactory.h"

#include <QTemporaryDir>

using namespace vesk;

namespace
{

constexpr int Clicks = 200;

/// A host whose journal is a file, with one command.
struct ClickedHost
{
    ClickedHost()
    {
        std::string error;
        if (!JournalManager::GetInstance().Open(folder.filePath("journal").toStdString(), error))
            qFatal("%s", error.c_str());
        auto opCommand = MakeOwner<Command>(L"Command.0", Command::Kind::Plain,
                                            [this](IUiView*, const CommandParameters&) {
                                                ++calls;
                                                return OwnerPtr<IAction>();
                                            });
        pCommand = opCommand.Get();
        ICommandManager::Get()->AddCommand(std::move(opCommand));
    }

    HostCore core;
    QTemporaryDir folder;
    Command* pCommand;
    int calls = 0;
    QWidget window;
};

/// What a button written by hand does when it is clicked.
void RunByHand(Command& command, bool isChecked)
{
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(isChecked));
    auto opData = OwnerPtrCast<IJournalCommandData>(
        NqIJournalFactory::GetImpl()->CreateJournalData(L"JournalCommandData"));
    opData->SetCommandId(command.GetCommandId());
    opData->SetCommandParameters(parameters);
    IJournalManager::Get()->AddCommandDataWithParameters(std::move(opData));
    ActionManager::ProcessCommand(nullptr, &command, parameters, nullptr);
}

void ClickOften(Stopwatch& stopwatch, ClickedHost& host, QAbstractButton& button)
{
    host.window.grab();
    stopwatch.Time([&] {
        for (int i = 0; i < Clicks; ++i)
            button.click();
    });
    if (host.calls != Clicks)
        qFatal("%d commands after %d clicks", host.calls, Clicks);
}

}

void AskQuestions()
{
    Ask("P7 click on a button, up to its command")
        .Ours([](Stopwatch& stopwatch) {
            ClickedHost host;
            QtButton button(MakeDefinition(0, QString()), &host.window);
            ClickOften(stopwatch, host, button);
        })
        .Limit([](Stopwatch& stopwatch) {
            ClickedHost host;
            PlainButton button(DataOf(0, QString()), &host.window);
            QObject::connect(&button, &QAbstractButton::clicked, &host.window,
                             [&host](bool isChecked) { RunByHand(*host.pCommand, isChecked); });
            ClickOften(stopwatch, host, button);
        })
        .TimeAtMost(1.03);
}

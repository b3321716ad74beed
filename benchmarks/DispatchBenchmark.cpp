// Whether a command that a control sends costs little more than finding it, two lines of the
// journal, and calling it.

#include "Harness/Question.h"
#include "PlainLines.h"

#include "Command/Command.h"
#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "HostCore.h"
#include "Journal/CommandParameters.h"
#include "Journal/JournalManager.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include <QAction>
#include <QHash>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

using namespace vesk;

namespace
{

constexpr int Commands = 1000;

int s_calls = 0;

std::string Path()
{
    static const QTemporaryDir s_folder;
    return s_folder.filePath("journal").toStdString();
}

/// The ids in the order in which they are sent.
std::vector<std::wstring> Ids()
{
    std::vector<std::wstring> ids;
    for (int i = 0; i < Commands; ++i)
        ids.push_back(L"Sketcher.Tool" + std::to_wstring(i * 7 % Commands));
    return ids;
}

/// A host with all commands, each of which counts its calls.
struct Host
{
    Host()
    {
        for (const std::wstring& id : Ids())
            ICommandManager::Get()->AddCommand(MakeOwner<Command>(
                id, Command::Kind::Plain, [](IUiView*, const CommandParameters&) {
                    ++s_calls;
                    return OwnerPtr<IAction>();
                }));
    }

    HostCore core;
};

struct Tool
{
    virtual ~Tool() = default;
    virtual void Run() { ++s_calls; }
};

using Tools = std::unordered_map<std::wstring, std::unique_ptr<Tool>>;

Tools MakeTools()
{
    Tools tools;
    for (const std::wstring& id : Ids())
        tools.emplace(id, std::make_unique<Tool>());
    return tools;
}

void SendAll(const std::vector<std::wstring>& ids, const Tools& tools, PlainLines& lines)
{
    int number = 0;
    for (const std::wstring& id : ids)
    {
        Tool& tool = *tools.find(id)->second;
        lines << "{\"n\":" << ++number << ",\"kind\":\"command\",\"id\":\"" << id << "\"}\n";
        lines.Write();
        tool.Run();
        lines << "{\"n\":" << number << ",\"kind\":\"end\",\"result\":\"done\"}\n";
        lines.Write();
    }
}

void AskAboutDispatch()
{
    Ask("P23 dispatch: look up, journal, run")
        .Ours([ids = Ids()](Stopwatch& stopwatch) {
            const Host host;
            QObject sender;
            std::string error;
            JournalManager::GetInstance().Open(Path(), error);
            stopwatch.Time([&] {
                for (const std::wstring& id : ids)
                    ProcessCommandUtil::ProcessRibbonBarCommand(id, {}, &sender);
            });
            JournalManager::GetInstance().Close();
        })
        .Limit([ids = Ids()](Stopwatch& stopwatch) {
            const Tools tools = MakeTools();
            PlainLines lines(Path());
            stopwatch.Time([&] { SendAll(ids, tools, lines); });
        })
        .TimeAtMost(1.5);
}

void AskAboutLookUp()
{
    Ask("P23 dispatch without the journal")
        .Ours([ids = Ids()](Stopwatch& stopwatch) {
            const Host host;
            const CommandParameters none;
            stopwatch.Time([&] {
                for (const std::wstring& id : ids)
                    ICommandManager::Get()->GetCommand(id)->Execute(nullptr, none);
            });
        })
        .Limit([ids = Ids()](Stopwatch& stopwatch) {
            const Tools tools = MakeTools();
            stopwatch.Time([&] {
                for (const std::wstring& id : ids)
                    tools.find(id)->second->Run();
            });
        })
        .Peer("QAction",
              [ids = Ids()](Stopwatch& stopwatch) {
                  QObject owner;
                  QHash<QString, QAction*> actions;
                  std::vector<QString> texts;
                  for (const std::wstring& id : ids)
                  {
                      texts.push_back(QString::fromStdWString(id));
                      auto* pAction = new QAction(&owner);
                      QObject::connect(pAction, &QAction::triggered, &owner, [] { ++s_calls; });
                      actions.insert(texts.back(), pAction);
                  }
                  stopwatch.Time([&] {
                      for (const QString& text : texts)
                          actions.value(text)->trigger();
                  });
              })
        .AheadOfPeer(3.0);
}

}

void AskQuestions()
{
    AskAboutDispatch();
    AskAboutLookUp();
}

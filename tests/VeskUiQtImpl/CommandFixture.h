#pragma once

#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include <utility>

namespace vesk::test
{

using Operation = void (*)(const std::wstring&, const CommandParameters&, QObject*);

constexpr char Ribbon[] = "vesk::ProcessCommandUtil::ProcessRibbonBarCommand";
constexpr char StatusBar[] = "vesk::ProcessCommandUtil::ProcessStatusBarCommand";

inline CommandParameters SomeParameters()
{
    CommandParameters parameters;
    parameters.Add(L"Clicked", CommandParameterValue(true));
    return parameters;
}

/// Removes the view manager while it lives.
class NoViewManager
{
public:
    NoViewManager() : m_pManager(IUiDocumentViewManager::Get()) { Access::Set(nullptr); }
    ~NoViewManager() { Access::Set(m_pManager); }
    NoViewManager(const NoViewManager&) = delete;
    NoViewManager& operator=(const NoViewManager&) = delete;

private:
    struct Access : IUiDocumentViewManager
    {
        using IUiDocumentViewManager::Set;
    };
    IUiDocumentViewManager* m_pManager;
};

/// A host with one plain command, "Plain", that records its calls.
struct CommandFixture
{
    CommandFixture()
    {
        pCommand = host.AddCommand(L"Plain", [this](const CommandParameters& parameters) {
            calls.push_back(parameters);
            wasExecuted = ProcessCommandUtil::IsLastCommandExecuted();
            recordCountInside = host.journal.GetCommands().size();
            if (const auto act = std::exchange(onCommand, nullptr))
                act();
        });
    }

    HostFixture host;
    QObject sender;
    Command* pCommand;
    std::vector<CommandParameters> calls;

    /// Called once, inside the next call of the command.
    std::function<void()> onCommand;
    bool wasExecuted = true;
    std::size_t recordCountInside = 0;
};

}

Q_DECLARE_METATYPE(vesk::test::Operation)

namespace vesk::test
{

inline void AddOperations()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<QByteArray>("function");
    QTest::newRow("ribbon") << Operation(&ProcessCommandUtil::ProcessRibbonBarCommand)
                            << QByteArray(Ribbon);
    QTest::newRow("status bar") << Operation(&ProcessCommandUtil::ProcessStatusBarCommand)
                                << QByteArray(StatusBar);
}

}

#pragma once

#include "Command/Command.h"
#include "HostCore.h"
#include "Support/JournalRecorder.h"
#include "Support/TestAction.h"
#include "Support/TestApplication.h"
#include "Support/TestView.h"
#include "Support/TestWindow.h"
#include "Support/WarningRecorder.h"

#include <functional>
#include <string>

namespace vesk::test
{

/// A complete host with a main window and one view in it, for the lifetime of the fixture.
///
/// It removes everything and restores every static of the host; a warning that the test did not
/// consume fails the test.
class HostFixture
{
public:
    HostFixture();
    ~HostFixture();
    HostFixture(const HostFixture&) = delete;
    HostFixture& operator=(const HostFixture&) = delete;

    /// Registers a command that calls `execute` with its parameters. Not owned by the caller.
    Command* AddCommand(const std::wstring& id,
                        std::function<void(const CommandParameters&)> execute);

    /// Registers a command that runs as a TestAction. Not owned by the caller.
    Command* AddInteractiveCommand(const std::wstring& id);

    /// Starts an action, so that typed values are delivered to `actionLog`.
    void BeginAction();

    WarningRecorder warnings;
    HostCore core;
    JournalRecorder journal;
    TestApplication application;
    TestWindow window;
    TestView view;
    ActionLog actionLog;
};

}

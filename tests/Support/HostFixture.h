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

/// A whole host with a main window and one view in it, for the time in which it lives.
///
/// It removes everything and brings every static of the host back; a warning that the test did not
/// take fails the test.
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

    /// Begins an action, so that typed values are delivered to `actionLog`.
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

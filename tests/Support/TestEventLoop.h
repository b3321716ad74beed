#pragma once

#include "Command/ActionManager.h"

#include <QEventLoop>

#include <functional>

namespace vesk::test
{

/// Runs actions in a nested Qt event loop during its lifetime.
class TestEventLoop final : public IActionEventLoop
{
public:
    TestEventLoop();
    ~TestEventLoop() override;
    TestEventLoop(const TestEventLoop&) = delete;
    TestEventLoop& operator=(const TestEventLoop&) = delete;

    void Run() override;
    void Quit() override;

    /// Called once, inside the next loop, as from an event.
    void SetOnRun(std::function<void()> onRun) { m_onRun = std::move(onRun); }
    int GetRunCount() const { return m_runCount; }
    bool IsRunning() const { return m_pLoop != nullptr; }

private:
    QEventLoop* m_pLoop = nullptr;
    std::function<void()> m_onRun;
    int m_runCount = 0;
};

}

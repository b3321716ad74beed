#include "Support/TestEventLoop.h"

#include <QTimer>

#include <utility>

namespace vesk::test
{

TestEventLoop::TestEventLoop()
{
    ActionManager::SetEventLoop(this);
}

TestEventLoop::~TestEventLoop()
{
    ActionManager::SetEventLoop(nullptr);
}

void TestEventLoop::Run()
{
    ++m_runCount;
    QEventLoop loop;
    QEventLoop* pOuter = std::exchange(m_pLoop, &loop);
    if (const auto onRun = std::exchange(m_onRun, nullptr))
        QTimer::singleShot(0, &loop, onRun);
    loop.exec();
    m_pLoop = pOuter;
}

void TestEventLoop::Quit()
{
    if (m_pLoop != nullptr)
        m_pLoop->quit();
}

}

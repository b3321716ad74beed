#include "Examples/ExampleUser.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace vesk
{
namespace
{

constexpr int PollMs = 5;
constexpr int PatienceMs = 120000;

}

ExampleUser::ExampleUser(std::vector<ExampleStep> steps) : m_steps(std::move(steps))
{
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ExampleUser::OnEnd);
    m_waiting.start();
    QTimer::singleShot(0, this, &ExampleUser::TakeStep);
}

/// An act may run an event loop until a later step ends it: so the timer of the next one is set
/// before.
void ExampleUser::TakeStep()
{
    if (m_next == m_steps.size())
        return;
    const ExampleStep& step = m_steps[m_next];
    const bool isReached = step.isReached();
    if (!isReached && m_waiting.elapsed() > PatienceMs)
        return QCoreApplication::exit(1);
    QTimer::singleShot(PollMs, this, &ExampleUser::TakeStep);
    if (!isReached)
        return;
    ++m_next;
    m_waiting.restart();
    step.act();
}

void ExampleUser::OnEnd() const
{
    if (m_next == m_steps.size())
        return;
    std::fprintf(stderr, "the program has ended before there was %s\n",
                 qPrintable(m_steps[m_next].awaited));
    std::_Exit(1);
}

}

#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace vesk
{

/// One thing that a user waits for, and what they do then.
struct ExampleStep
{
    QString awaited;
    std::function<bool()> isReached;
    std::function<void()> act;
};

/// Sits in an example program and uses it: acts one after another, each as soon as what it waits
/// for is on screen. Ends the program with exit code 1 if that does not happen within two minutes,
/// or if the program ends before the last step.
class ExampleUser final : public QObject
{
    Q_OBJECT

public:
    explicit ExampleUser(std::vector<ExampleStep> steps);

private:
    void TakeStep();
    void OnEnd() const;

    std::vector<ExampleStep> m_steps;
    std::size_t m_next = 0;
    QElapsedTimer m_waiting;
};

}

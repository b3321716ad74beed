#pragma once

#include <QProcess>

namespace vesk
{

/// A program that ends when the test does, even if the test crashes.
class ChildProcess final : public QProcess
{
public:
    /// Ends the program: as it is asked to, or without its consent.
    void End();

protected:
    void setupChildProcess() override;
};

}

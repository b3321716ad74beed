#pragma once

#include <QProcess>

namespace vesk
{

/// A program that ends when the test does, even if the test crashes.
class ChildProcess final : public QProcess
{
public:
#if QT_VERSION_MAJOR != 5
    ChildProcess();
#endif

    /// Ends the program: as it is asked to, or without its consent.
    void End();

// The versions of Qt share no way to run something in the new process.
#if QT_VERSION_MAJOR == 5
protected:
    void setupChildProcess() override;
#endif
};

}

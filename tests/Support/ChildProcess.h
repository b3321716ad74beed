#pragma once

#include <QProcess>

namespace vesk
{

/// A program that ends when the test does, even if the test crashes.
class ChildProcess final : public QProcess
{
// The versions of Qt share no way to run something in the new process.
#if QT_VERSION_MAJOR == 5
protected:
    void setupChildProcess() override;
#else
public:
    ChildProcess();
#endif
};

}

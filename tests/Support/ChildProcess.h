#pragma once

#include <QProcess>

namespace vesk
{

/// A program that ends when the test does, even if the test crashes.
class ChildProcess final : public QProcess
{
protected:
    void setupChildProcess() override;
};

}

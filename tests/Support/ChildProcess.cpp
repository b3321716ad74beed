#include "Support/ChildProcess.h"

#include <sys/prctl.h>

#include <csignal>

namespace vesk
{

void ChildProcess::End()
{
    if (state() == QProcess::NotRunning)
        return;
    terminate();
    if (!waitForFinished(3000))
        kill();
    waitForFinished();
}

void ChildProcess::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

}

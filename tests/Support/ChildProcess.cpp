#include "Support/ChildProcess.h"

#include <sys/prctl.h>

#include <csignal>

namespace vesk
{
namespace
{

void EndWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

}

void ChildProcess::End()
{
    if (state() == QProcess::NotRunning)
        return;
    terminate();
    if (!waitForFinished(3000))
        kill();
    waitForFinished();
}

#if QT_VERSION_MAJOR == 5
void ChildProcess::setupChildProcess()
{
    EndWithParent();
}
#else
ChildProcess::ChildProcess()
{
    setChildProcessModifier(&EndWithParent);
}
#endif

}

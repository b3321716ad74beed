#include "Support/ChildProcess.h"

#include <sys/prctl.h>

#include <csignal>

namespace vesk
{

void ChildProcess::setupChildProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}

}

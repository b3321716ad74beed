#include "Warnings/Check.h"

#include "Warnings/DebugMessageMgr.h"

namespace vesk
{

void ReportFailure(const CheckSite& site)
{
    DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(site.file, site.line, site.function,
                                                         site.message, site.person, site.date);
}

}

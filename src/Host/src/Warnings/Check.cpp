#include "Warnings/Check.h"

#include "Warnings/DebugMessageMgr.h"

namespace vesk
{

bool Check(bool condition, const CheckSite& site)
{
    if (!condition)
        DebugMessageMgr::GetDebugMessageMgr()->ShowDebugWarn(site.file, site.line, site.function,
                                                             site.message, site.person, site.date);
    return condition;
}

}

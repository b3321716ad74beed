#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

/// The site of a precondition, and the message for its failure.
struct CheckSite
{
    const char* file;       ///< The source file, as the compiler names it.
    int line;               ///< The line of the check.
    const char* function;   ///< Qualified, like "vesk::QtButton::On".
    const wchar_t* message; ///< The failed condition.
    const wchar_t* person;  ///< Who is responsible for the check.
    const wchar_t* date;    ///< The day the check was written, "2026-11-21".
};

/// Reports `site` as a debug warning.
VESK_HOST_API void ReportFailure(const CheckSite& site);

/// Reports `site` as a debug warning when `condition` is false, and returns `condition`.
inline bool Check(bool condition, const CheckSite& site)
{
    if (!condition)
        ReportFailure(site);
    return condition;
}

/// The same for the site that `makeSite()` returns, which costs nothing unless it is reported.
///
/// The caller itself returns from the function, so that every exit is visible in the code: `if
/// (!Check(pArgs != nullptr, VESK_SITE("vesk::QtButton::On", L"pArgs为空"))) return;`
template <class MakeSite>
bool Check(bool condition, const MakeSite& makeSite)
{
    if (!condition)
        ReportFailure(makeSite());
    return condition;
}

}

#pragma once

#include "Foundation/HostExport.h"

namespace vesk
{

/// Where and by whom a precondition was written, and what it says when it fails.
struct CheckSite
{
    const char* file;
    int line;
    const char* function;   ///< Qualified, as "vesk::QtButton::On".
    const wchar_t* message; ///< The failed condition.
    const wchar_t* person;  ///< Who is responsible for the check.
    const wchar_t* date;    ///< The day the check was written, "2026-11-21".
};

/// Reports `site` as a debug warning when `condition` is false, and returns `condition`.
///
/// The caller leaves the function itself, so that every exit stands in the code:
/// `if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtButton::On", L"pArgs为空"))) return;`
VESK_HOST_API bool Check(bool condition, const CheckSite& site);

}

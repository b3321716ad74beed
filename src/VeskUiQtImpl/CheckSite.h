#pragma once

#include "Warnings/Check.h"

/// The place of a precondition of this library, for `vesk::Check`. `function` is the qualified
/// name.
#define VESK_SITE(function, message)                                                               \
    ::vesk::CheckSite                                                                              \
    {                                                                                              \
        __FILE__, __LINE__, function, message, L"vesk-ui", L"2026-11-21"                           \
    }

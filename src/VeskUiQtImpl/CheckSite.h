#pragma once

#include "Warnings/Check.h"

/// The site of a precondition of this library, for `vesk::Check`. `function` is the qualified name
/// of the function.
#define VESK_SITE(function, message)                                                               \
    [&] {                                                                                          \
        return ::vesk::CheckSite{                                                                  \
            __FILE__, __LINE__, function, message, L"vesk-ui", L"2026-11-21"};                     \
    }

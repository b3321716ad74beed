#pragma once

#include "Warnings/Check.h"

/// The site of a precondition in the host, for `vesk::Check`. `function` is the qualified name.
#define VESK_HOST_SITE(function, message)                                                          \
    [&] {                                                                                          \
        return ::vesk::CheckSite{__FILE__, __LINE__,     function,                                 \
                                 message,  L"vesk-host", L"2026-11-21"};                           \
    }

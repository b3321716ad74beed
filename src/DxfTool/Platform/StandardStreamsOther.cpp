// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/StandardStreams.h"

void MakeStandardStreamsExact()
{
    // They always are.
}

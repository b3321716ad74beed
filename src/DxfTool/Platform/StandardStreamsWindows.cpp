// SPDX-License-Identifier: GPL-3.0-or-later

#include "Platform/StandardStreams.h"

#include <cstdio>

#include <fcntl.h>
#include <io.h>

void MakeStandardStreamsExact()
{
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
}

// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfTool.h"
#include "Platform/StandardStreams.h"

#include <iostream>

int main(int argc, char** argv)
{
    MakeStandardStreamsExact();
    std::ios::sync_with_stdio(false);
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    return static_cast<int>(RunDxfTool(arguments, std::cin, std::cout, std::cerr));
}

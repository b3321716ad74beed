#include "AbruptEnd.h"

#include <cstdlib>
#include <iostream>
#include <utility>

namespace
{

constexpr int ExitWithoutDisplay = 1;

std::function<void()> s_atExit;

void OnExit()
{
    const std::function<void()> function = std::exchange(s_atExit, nullptr);
    if (!function)
        return;
    function();
    std::cerr << std::flush;
    // Destructors of static objects would run while the objects that use them still exist.
    std::_Exit(ExitWithoutDisplay);
}

}

AbruptEnd::AbruptEnd(std::function<void()> function)
{
    // After all that the program needs at its end was created: it is called before that goes.
    [[maybe_unused]] static const bool s_isRegistered = std::atexit(&OnExit) == 0;
    s_atExit = std::move(function);
}

AbruptEnd::~AbruptEnd()
{
    s_atExit = nullptr;
}

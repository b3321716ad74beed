#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>
#include <thread>

namespace
{

void TellWithoutEnd()
{
    while (std::cerr << R"({"kind":"progress","share":null})" << '\n')
    {}
}

}

/// Behaves as VESK_STAND_IN says: a text, or the code to exit with.
int main()
{
    const char* pManner = std::getenv("VESK_STAND_IN");
    const std::string manner = pManner != nullptr ? pManner : "";
    if (manner == "crash")
        __builtin_trap();
    if (manner == "hangs")
        std::this_thread::sleep_for(std::chrono::minutes(10));
    if (manner == "messages without end")
        TellWithoutEnd();
    if (manner == "reads nothing")
        return std::fclose(stdin) == 0 ? 2 : 1;
    if (manner == "rubbish")
        std::cout << "rubbish\n";
    return std::atoi(manner.c_str());
}

#include "JournalTool.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    return RunJournalTool(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}

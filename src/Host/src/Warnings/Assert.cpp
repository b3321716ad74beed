#include "Warnings/Assert.h"

#include "Foundation/Text.h"
#include "Warnings/WarningLog.h"

#include <atomic>
#include <cstdio>

namespace vesk
{

namespace
{

std::atomic<bool> s_isAssertEnabled{true};

}

bool IsAssertEnabled()
{
    return s_isAssertEnabled;
}

void SetAssertEnabled(bool isEnabled)
{
    s_isAssertEnabled = isEnabled;
}

void DumpAssertToLog(const std::string& condition, const std::string& file, int line,
                     const std::string& function)
{
    try
    {
        WarningLog::GetInstance().Add(
            file, line,
            {{"file", file}, {"line", line}, {"function", function}, {"condition", condition}});
    }
    catch (...)
    {
        // Out of memory: a report is not worth ending the program.
    }
}

AssertHelper* AssertHelper::GetInstance()
{
    static AssertHelper s_helper;
    return &s_helper;
}

void AssertHelper::Assert(const std::wstring& condition, const std::wstring& file, int line)
{
    std::fprintf(stderr, "%s:%d: assertion failed: %s\n", ToUtf8(file).c_str(), line,
                 ToUtf8(condition).c_str());
}

}

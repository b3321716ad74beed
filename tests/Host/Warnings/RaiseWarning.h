#pragma once

#include "Warnings/DebugMessageMgr.h"

#include <string>

namespace vesk
{

inline DebugMessageMgr& Manager()
{
    return *DebugMessageMgr::GetDebugMessageMgr();
}

/// Raises a warning in "QtButton.cpp" at that line.
inline void Warn(int line = 1, const std::wstring& message = L"pArgs为空")
{
    Manager().ShowDebugWarn("QtButton.cpp", line, "vesk::QtButton::On", message, L"vesk-ui",
                            L"2026-11-21");
}

inline void WarnTimes(int count, int line = 1)
{
    for (int i = 0; i < count; ++i)
        Warn(line);
}

}

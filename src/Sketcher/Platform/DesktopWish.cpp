#include "Platform/DesktopWish.h"

DesktopWish::~DesktopWish() = default;

void DesktopWish::SetDark(bool isDark)
{
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    emit changed();
}

void DesktopWish::SetHighContrast(bool isHighContrast)
{
    if (isHighContrast == m_isHighContrast)
        return;
    m_isHighContrast = isHighContrast;
    emit changed();
}

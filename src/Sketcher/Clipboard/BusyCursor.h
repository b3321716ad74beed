#pragma once

#include <QCursor>
#include <QGuiApplication>

/// While it lives the cursor says everywhere that the program is busy; if it need not, nothing
/// changes.
class BusyCursor final
{
public:
    explicit BusyCursor(bool isNeeded) : m_isNeeded(isNeeded)
    {
        if (m_isNeeded)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    ~BusyCursor()
    {
        if (m_isNeeded)
            QGuiApplication::restoreOverrideCursor();
    }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;

private:
    const bool m_isNeeded;
};

#pragma once

#include "Desktop/ChildProcess.h"

#include <QString>
#include <QStringList>

namespace vesk
{

/// Hears what the X server tells a window about the keyboard.
class FocusMonitor
{
public:
    /// `window` is a number, as InputDriver::GetKeyboardOwner gives it.
    FocusMonitor(const QString& display, const QString& window);
    ~FocusMonitor();
    FocusMonitor(const FocusMonitor&) = delete;
    FocusMonitor& operator=(const FocusMonitor&) = delete;

    /// What came since the last call, as "FocusIn NotifyNonlinear".
    QStringList Take();

private:
    ChildProcess m_xev;
    QString m_output;
};

}

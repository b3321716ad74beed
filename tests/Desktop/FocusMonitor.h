#pragma once

#include "Support/ChildProcess.h"

#include <QString>
#include <QStringList>

namespace vesk
{

/// Records the focus events that the X server sends to a window.
class FocusMonitor
{
public:
    /// `window` is a number as returned by InputDriver::GetKeyboardOwner.
    FocusMonitor(const QString& display, const QString& window);
    ~FocusMonitor();
    FocusMonitor(const FocusMonitor&) = delete;
    FocusMonitor& operator=(const FocusMonitor&) = delete;

    /// The events since the last call, such as "FocusIn NotifyNonlinear".
    QStringList Take();

private:
    ChildProcess m_xev;
    QString m_output;
};

}

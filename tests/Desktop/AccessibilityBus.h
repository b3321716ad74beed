#pragma once

#include "Support/ChildProcess.h"

#include <QMap>
#include <QString>

namespace vesk
{

/// A private message bus of a desktop's session, and the bus on it by which programs such as screen
/// readers see others.
class AccessibilityBus
{
public:
    AccessibilityBus() = default;
    ~AccessibilityBus();
    AccessibilityBus(const AccessibilityBus&) = delete;
    AccessibilityBus& operator=(const AccessibilityBus&) = delete;

    /// Starts both for a display. Returns false if one of them cannot be started.
    bool Start(const QString& display);

    /// What programs on it must find in their environment.
    QMap<QString, QString> GetEnvironment() const;

private:
    ChildProcess m_session;
    ChildProcess m_launcher;
    QString m_display;
    QString m_address;
};

}

#include "Desktop/AccessibilityBus.h"

#include "Support/Polling.h"

#include <QProcessEnvironment>

namespace vesk
{

namespace
{

constexpr char Launcher[] = "/usr/libexec/at-spi-bus-launcher";

}

AccessibilityBus::~AccessibilityBus()
{
    m_launcher.End();
    m_session.End();
}

bool AccessibilityBus::Start(const QString& display)
{
    m_display = display;
    m_session.setStandardErrorFile(QProcess::nullDevice());
    m_session.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    const bool hasAddress =
        m_session.waitForStarted() && PollUntil([this] {
            m_session.waitForReadyRead(50);
            m_address += QString::fromLatin1(m_session.readAllStandardOutput());
            return m_address.endsWith('\n') || m_session.state() == QProcess::NotRunning;
        });
    m_address = m_address.trimmed();
    if (!hasAddress || m_address.isEmpty())
        return false;

    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QMap<QString, QString> variables = GetEnvironment();
    for (auto variable = variables.begin(); variable != variables.end(); ++variable)
        environment.insert(variable.key(), variable.value());
    m_launcher.setProcessEnvironment(environment);
    m_launcher.setStandardOutputFile(QProcess::nullDevice());
    m_launcher.setStandardErrorFile(QProcess::nullDevice());
    m_launcher.start(Launcher, {"--launch-immediately"});
    return m_launcher.waitForStarted();
}

QMap<QString, QString> AccessibilityBus::GetEnvironment() const
{
    return {{"DBUS_SESSION_BUS_ADDRESS", m_address},
            {"DISPLAY", m_display},
            {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1"}};
}

}

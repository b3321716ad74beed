#include "Desktop/FocusMonitor.h"

#include <QProcessEnvironment>
#include <QRegularExpression>

namespace vesk
{

FocusMonitor::FocusMonitor(const QString& display, const QString& window)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    m_xev.setProcessEnvironment(environment);
    m_xev.start("xev", {"-id", window, "-event", "focus"});
}

FocusMonitor::~FocusMonitor()
{
    m_xev.terminate();
    m_xev.waitForFinished();
}

QStringList FocusMonitor::Take()
{
    m_xev.waitForReadyRead(10);
    m_output += QString::fromLatin1(m_xev.readAllStandardOutput());
    static const QRegularExpression s_event("(Focus\\w+) event[^\\n]*\\n[^\\n]*detail (\\w+)\\n");
    QStringList events;
    int end = 0;
    auto found = s_event.globalMatch(m_output);
    while (found.hasNext())
    {
        const QRegularExpressionMatch match = found.next();
        events << match.captured(1) + ' ' + match.captured(2);
        end = match.capturedEnd();
    }
    m_output.remove(0, end);
    return events;
}

}

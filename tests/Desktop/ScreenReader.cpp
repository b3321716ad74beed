#include "Desktop/ScreenReader.h"

#include "Support/Polling.h"

#include <QJsonDocument>
#include <QProcessEnvironment>

namespace vesk
{

namespace
{

bool Matches(const QJsonObject& object, const QJsonObject& wanted)
{
    for (auto property = wanted.begin(); property != wanted.end(); ++property)
    {
        if (object[property.key()] != property.value())
            return false;
    }
    return true;
}

}

ScreenReader::~ScreenReader()
{
    if (m_client.state() == QProcess::NotRunning)
        return;
    m_client.closeWriteChannel();
    if (!m_client.waitForFinished(3000))
        m_client.kill();
    m_client.waitForFinished();
}

bool ScreenReader::Start(const QMap<QString, QString>& environment)
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (auto variable = environment.begin(); variable != environment.end(); ++variable)
        variables.insert(variable.key(), variable.value());
    m_client.setProcessEnvironment(variables);
    m_client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    // The interpreter of the distribution has its bindings; another one may be first on the path.
    m_client.start("/usr/bin/python3", {"-W", "ignore", VESK_SCREEN_READER});
    return m_client.waitForStarted() && Ask("heard").isArray();
}

QJsonObject ScreenReader::Find(const QJsonObject& wanted)
{
    QJsonValue found;
    PollUntil([&] {
        found = Ask("find", wanted);
        return found.isObject() || m_client.state() == QProcess::NotRunning;
    });
    return found.toObject();
}

bool ScreenReader::Press(const QString& name, const QString& role)
{
    return !Find({{"name", name}, {"role", role}}).isEmpty() &&
           Ask("press", {{"name", name}, {"role", role}}).toBool();
}

QJsonArray ScreenReader::GetRows(const QString& table)
{
    return Ask("rows", {{"name", table}, {"role", "table"}}).toArray();
}

bool ScreenReader::Hears(const QString& event, const QJsonObject& wanted)
{
    return PollUntil([&] {
               for (const QJsonValue told : Ask("heard").toArray())
                   m_heard.append(told);
               for (; m_understood < m_heard.size(); ++m_understood)
               {
                   const QJsonObject told = m_heard[m_understood].toObject();
                   if (told["event"] == event && Matches(told, wanted))
                       return true;
               }
               return m_client.state() == QProcess::NotRunning;
           }) &&
           m_client.state() != QProcess::NotRunning;
}

QJsonValue ScreenReader::Ask(const QString& what, QJsonObject request)
{
    request["do"] = what;
    m_client.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    QByteArray line;
    PollUntil([&] {
        m_client.waitForReadyRead(50);
        line += m_client.readLine();
        return line.endsWith('\n') || m_client.state() == QProcess::NotRunning;
    });
    // A document of its own must be an object or an array.
    return QJsonDocument::fromJson("[" + line.trimmed() + "]").array().at(0);
}

}

#include "Desktop/DesktopTest.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>

namespace vesk
{

QVector<DrawnLine> DesktopTest::CloseAndReadLines()
{
    return CloseProgram() ? Session().Lines() : QVector<DrawnLine>();
}

QVector<QPointF> DesktopTest::ReadCorners()
{
    const QByteArray model = ReadBytes(Session().PathOf("model.json"));
    QVector<QPointF> corners;
    for (const QJsonValue entity : QJsonDocument::fromJson(model)["entities"].toArray())
    {
        for (const QJsonValue corner : entity["corners"].toArray())
            corners << QPointF(corner.toArray()[0].toDouble(), corner.toArray()[1].toDouble());
    }
    return corners;
}

bool DesktopTest::DrawsOneLine(double length, std::optional<double> angle)
{
    constexpr double Tolerance = 1e-9;
    if (!Session().WaitForEntities(1))
        return false;
    const QVector<DrawnLine> lines = CloseAndReadLines();
    if (lines.size() == 1 && qAbs(lines[0].GetLength() - length) <= Tolerance &&
        (!angle || AngleBetween(lines[0].GetAngle(), *angle) <= Tolerance))
        return true;
    for (const DrawnLine& line : lines)
        qWarning("drawn: length %.17g, angle %.17g", line.GetLength(), line.GetAngle());
    return false;
}

bool DesktopTest::CloseProgram()
{
    m_isClosed = true;
    return Session().Close() == 0;
}

void DesktopTest::KillProgram()
{
    m_isClosed = true;
    Session().Kill();
}

int DesktopTest::CountFromEnvironment(const char* name, int everyday)
{
    bool isNumber = false;
    const int count = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? count : everyday;
}

void DesktopTest::initTestCase()
{
    QVERIFY2(m_server.Start(), qPrintable(m_server.GetError()));
}

void DesktopTest::init()
{
    m_isClosed = false;
    m_isErrorOutputAccepted = false;
    m_areWarningsAccepted = false;
    m_pSession = std::make_unique<DesktopSession>(m_server);
    if (m_pSession->Start({}, PrepareEnvironment()))
        return;
    // Qt calls no cleanup after this.
    SaveEvidence();
    QFAIL("the program did not start");
}

void DesktopTest::cleanup()
{
    if (!QTest::currentTestFailed())
        CheckHealth();
    if (QTest::currentTestFailed())
        SaveEvidence();
    m_pSession.reset();
}

void DesktopTest::SaveEvidence()
{
    Session().SaveEvidence(QCoreApplication::applicationDirPath() + "/../desktop-failures/" +
                           metaObject()->className() + "." + QTest::currentTestFunction());
}

void DesktopTest::CheckHealth()
{
    if (!m_isClosed)
        QCOMPARE(Session().Close(), 0);
    if (!m_isErrorOutputAccepted)
        QCOMPARE(Session().GetErrorOutput(), QString());
    if (!m_areWarningsAccepted)
        QCOMPARE(Session().GetWarnings(), QByteArray());
}

}

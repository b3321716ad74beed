#include "Warnings/Assert.h"

#include "Host/Warnings/LogFile.h"
#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"

#include <QCoreApplication>
#include <QProcess>

namespace vesk
{

class AssertTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { DebugMessageMgr::GetDebugMessageMgr()->CloseLog(); }

    void assertionsAreEnabledAtStart();
    void assertionsCanBeSwitched();
    void aDumpedAssertionIsALineOfTheLog();
    void aDumpedAssertionForgesNoLine();
    void anAssertionGoesToStandardErrorAndTheProcessGoesOn();
};

void AssertTest::assertionsAreEnabledAtStart()
{
    QVERIFY(IsAssertEnabled());
}

void AssertTest::assertionsCanBeSwitched()
{
    SetAssertEnabled(false);
    QVERIFY(!IsAssertEnabled());
    SetAssertEnabled(true);

    QVERIFY(IsAssertEnabled());
}

void AssertTest::aDumpedAssertionIsALineOfTheLog()
{
    const LogFile log;
    DebugMessageMgr::GetDebugMessageMgr()->OpenLog(log.GetPath());

    DumpAssertToLog("false && \"reason\"", "Displayer.cpp", 58, "vesk::Displayer::Display");

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["condition"].toString(), QString("false && \"reason\""));
    QCOMPARE(records[0]["file"].toString(), QString("Displayer.cpp"));
    QCOMPARE(records[0]["line"].toInt(), 58);
    QCOMPARE(records[0]["function"].toString(), QString("vesk::Displayer::Display"));
    QVERIFY(records[0]["time"].isString());
    QCOMPARE(records[0]["count"].toInt(), 1);
}

void AssertTest::aDumpedAssertionForgesNoLine()
{
    const LogFile log;
    DebugMessageMgr::GetDebugMessageMgr()->OpenLog(log.GetPath());

    DumpAssertToLog("a\n{\"condition\":\"forged\"}", "a\xFF.cpp", 1, "f");

    QCOMPARE(log.Read().count('\n'), 1);
    QCOMPARE(log.ReadRecords().size(), 1);
}

void AssertTest::anAssertionGoesToStandardErrorAndTheProcessGoesOn()
{
    QProcess process;

    process.start(QCoreApplication::applicationFilePath(), {"--assert"});
    QVERIFY(process.waitForFinished());
    const QByteArray text = process.readAllStandardError();

    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QVERIFY2(text.contains("pArgs为空") && text.contains("Button.cpp:7"), text.constData());
}

namespace
{

int Assert(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    AssertHelper::GetInstance()->Assert(L"pArgs为空", L"Button.cpp", 7);
    return 0;
}

const test::TestEntry s_assert{"--assert", &Assert};

}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::AssertTest);
#include "AssertTest.moc"

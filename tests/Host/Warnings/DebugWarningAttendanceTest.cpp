#include "Foundation/IApplication.h"
#include "Warnings/DebugMessageMgr.h"
#include "Warnings/IDebugWarningScheduler.h"

#include "Host/Warnings/LogFile.h"
#include "Host/Warnings/RaiseWarning.h"
#include "Support/IdleApplication.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

/// Counts the warnings that would be shown to the user; none is shown.
class Scheduler final : public IDebugWarningScheduler
{
public:
    Scheduler() { Manager().SetScheduler(this); }
    ~Scheduler() override { Manager().SetScheduler(nullptr); }

    bool IsDialogAllowed() const override { return false; }
    void Post(std::function<void()> /*function*/) override { ++count; }
    void PostWhenIdle(std::chrono::milliseconds /*delay*/,
                      std::function<void()> /*function*/) override
    {}

    int count = 0;
};

constexpr char Variable[] = "VESK_UNATTENDED";

}

/// Whether a user is considered present before SetAttended is called.
class DebugWarningAttendanceTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_before = qgetenv(Variable); }
    void cleanup();

    void theEnvironmentTellsWhetherSomebodyIsThere_data();
    void theEnvironmentTellsWhetherSomebodyIsThere();
    void withoutTheVariableSomebodyIsThere();

private:
    QByteArray m_before;
};

void DebugWarningAttendanceTest::cleanup()
{
    qputenv(Variable, m_before);
    Manager().Reset();
}

void DebugWarningAttendanceTest::theEnvironmentTellsWhetherSomebodyIsThere_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("count");
    QTest::newRow("unattended") << QByteArray("1") << 0;
    QTest::newRow("attended") << QByteArray("0") << 1;
    QTest::newRow("anything else") << QByteArray("11") << 1;
}

void DebugWarningAttendanceTest::theEnvironmentTellsWhetherSomebodyIsThere()
{
    QFETCH(QByteArray, value);
    QFETCH(int, count);
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const test::IdleApplication application;
    const Scheduler scheduler;
    qputenv(Variable, value);

    Manager().Reset();
    Warn();

    QCOMPARE(scheduler.count, count);
    Manager().CloseLog();
}

void DebugWarningAttendanceTest::withoutTheVariableSomebodyIsThere()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    const test::IdleApplication application;
    const Scheduler scheduler;
    qunsetenv(Variable);

    Manager().Reset();
    Warn();

    QCOMPARE(scheduler.count, 1);
    Manager().CloseLog();
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::DebugWarningAttendanceTest);
#include "DebugWarningAttendanceTest.moc"

#include "Warnings/Check.h"

#include "Host/Warnings/LogFile.h"
#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"

namespace vesk
{

namespace
{

constexpr CheckSite Site{"QtButton.cpp", 12,         "vesk::QtButton::On",
                         L"pArgs为空",   L"vesk-ui", L"2026-11-21"};

/// Records the warnings raised while it exists.
class Recorder final : public IDebugWarningObserver
{
public:
    Recorder()
    {
        DebugMessageMgr::GetDebugMessageMgr()->OpenLog(m_log.GetPath());
        DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
    }
    ~Recorder() override
    {
        DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this);
        DebugMessageMgr::GetDebugMessageMgr()->CloseLog();
    }

    void OnDebugWarning(const DebugWarning& warning) override { m_warnings.push_back(warning); }
    const std::vector<DebugWarning>& GetWarnings() const { return m_warnings; }

private:
    LogFile m_log;
    std::vector<DebugWarning> m_warnings;
};

}

class CheckTest : public QObject
{
    Q_OBJECT

private slots:
    void aTrueConditionIsReturnedSilently();
    void aFalseConditionIsReturnedAndReported();
    void aSiteIsMadeForAFailureOnly();
};

void CheckTest::aTrueConditionIsReturnedSilently()
{
    const Recorder recorder;

    const bool result = Check(true, Site);

    QVERIFY(result);
    QVERIFY(recorder.GetWarnings().empty());
}

void CheckTest::aFalseConditionIsReturnedAndReported()
{
    const Recorder recorder;

    const bool result = Check(false, Site);

    QVERIFY(!result);
    QCOMPARE(recorder.GetWarnings().size(), std::size_t{1});
    const DebugWarning& warning = recorder.GetWarnings().front();
    QCOMPARE(warning.file, std::string("QtButton.cpp"));
    QCOMPARE(warning.line, 12);
    QCOMPARE(warning.function, std::string("vesk::QtButton::On"));
    QCOMPARE(warning.message, std::wstring(L"pArgs为空"));
    QCOMPARE(warning.person, std::wstring(L"vesk-ui"));
    QCOMPARE(warning.date, std::wstring(L"2026-11-21"));
}

void CheckTest::aSiteIsMadeForAFailureOnly()
{
    const Recorder recorder;
    int made = 0;
    const auto makeSite = [&made] {
        ++made;
        return Site;
    };

    QVERIFY(Check(true, makeSite));
    QCOMPARE(made, 0);

    QVERIFY(!Check(false, makeSite));
    QCOMPARE(made, 1);
    QCOMPARE(recorder.GetWarnings().size(), std::size_t{1});
    QCOMPARE(recorder.GetWarnings().front().line, Site.line);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CheckTest);
#include "CheckTest.moc"

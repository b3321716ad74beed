#include "VeskUiQtImpl/CheckSite.h"

#include "Support/HostFixture.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// What the library reports about the site of a failed precondition.
class CheckSiteTest : public QObject
{
    Q_OBJECT

private slots:
    void aSiteTellsWhereItStands();
    void aReportTellsTheSite();
    void aConditionThatHoldsIsNotReported();
};

void CheckSiteTest::aSiteTellsWhereItStands()
{
    const int line = __LINE__ + 1;
    const CheckSite site = VESK_SITE("vesk::QtButton::On", L"pArgs为空")();

    QCOMPARE(QByteArray(site.file), QByteArray(__FILE__));
    QCOMPARE(site.line, line);
    QCOMPARE(site.function, "vesk::QtButton::On");
    QCOMPARE(std::wstring(site.message), std::wstring(L"pArgs为空"));
    QCOMPARE(std::wstring(site.person), std::wstring(L"vesk-ui"));
    QCOMPARE(std::wstring(site.date), std::wstring(L"2026-11-21"));
}

void CheckSiteTest::aReportTellsTheSite()
{
    HostFixture host;

    const int line = __LINE__ + 1;
    QVERIFY(!Check(false, VESK_SITE("vesk::QtButton::On", L"pArgs为空")));

    const DebugWarning warning = host.warnings.TakeAny();
    QCOMPARE(warning.file, std::string(__FILE__));
    QCOMPARE(warning.line, line);
    QCOMPARE(warning.function, std::string("vesk::QtButton::On"));
    QCOMPARE(warning.message, std::wstring(L"pArgs为空"));
    QCOMPARE(warning.person, std::wstring(L"vesk-ui"));
    QCOMPARE(warning.date, std::wstring(L"2026-11-21"));
}

void CheckSiteTest::aConditionThatHoldsIsNotReported()
{
    HostFixture host;

    QVERIFY(Check(true, VESK_SITE("vesk::QtButton::On", L"pArgs为空")));

    QVERIFY2(host.warnings.IsEmpty(), qPrintable(host.warnings.Describe()));
}

}

VESK_TESTS(vesk::test::CheckSiteTest);
#include "CheckSiteTest.moc"

#include "Foundation/UtcTime.h"

#include "Support/TestValues.h"

#include <QDateTime>

Q_DECLARE_METATYPE(std::string)

namespace vesk
{

namespace
{

std::chrono::system_clock::time_point At(long long millis)
{
    return std::chrono::system_clock::time_point(std::chrono::milliseconds(millis));
}

}

class UtcTimeTest : public QObject
{
    Q_OBJECT

private slots:
    void saysTheMomentInUtc_data();
    void saysTheMomentInUtc();
    void agreesWithTheCalendarOnEveryDay();
    void aTimeBefore1970ShowsAsItsFirstMoment();
};

void UtcTimeTest::saysTheMomentInUtc_data()
{
    QTest::addColumn<long long>("millis");
    QTest::addColumn<std::string>("text");

    QTest::newRow("start") << 0LL << std::string("1970-01-01T00:00:00.000Z");
    QTest::newRow("last millisecond of a day")
        << 86399999LL << std::string("1970-01-01T23:59:59.999Z");
    QTest::newRow("leap day of 2000") << 951782400000LL << std::string("2000-02-29T00:00:00.000Z");
    QTest::newRow("after the leap day")
        << 951868800000LL << std::string("2000-03-01T00:00:00.000Z");
    QTest::newRow("end of 2026") << 1798761599999LL << std::string("2026-12-31T23:59:59.999Z");
}

void UtcTimeTest::saysTheMomentInUtc()
{
    QFETCH(long long, millis);
    QFETCH(std::string, text);

    QCOMPARE(FormatUtcTime(At(millis)), text);
}

void UtcTimeTest::agreesWithTheCalendarOnEveryDay()
{
    constexpr long long dayAndABit = 86400000LL + 61001LL;

    for (long long millis = 0; millis < 4200000000000LL; millis += dayAndABit)
        QCOMPARE(QString::fromStdString(FormatUtcTime(At(millis))),
                 QDateTime::fromMSecsSinceEpoch(millis, Qt::UTC).toString(Qt::ISODateWithMs));
}

void UtcTimeTest::aTimeBefore1970ShowsAsItsFirstMoment()
{
    QCOMPARE(FormatUtcTime(At(-1)), std::string("1970-01-01T00:00:00.000Z"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::UtcTimeTest);
#include "UtcTimeTest.moc"

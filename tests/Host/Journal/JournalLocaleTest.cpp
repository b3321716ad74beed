#include "Journal/JournalFormat.h"

#include "Dimension/TemporaryDimensionStyle.h"
#include "Host/DecimalPointScope.h"
#include "Support/TestValues.h"

#include <clocale>

namespace vesk
{

/// Numbers in a locale whose decimal point is not a point.
class JournalLocaleTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreTheSameInEveryLocale_data();
    void numbersAreTheSameInEveryLocale();
};

void JournalLocaleTest::numbersAreTheSameInEveryLocale_data()
{
    QTest::addColumn<QByteArray>("symbol");
    QTest::addColumn<QByteArray>("decimalPoint");
    QTest::newRow("comma") << QByteArray(",") << QByteArray(",");
    if (DecimalPointScope::IsAnySymbolPossible())
        QTest::newRow("of two bytes") << QByteArray("<U066B>") << QByteArray("\xD9\xAB");
}

void JournalLocaleTest::numbersAreTheSameInEveryLocale()
{
    QFETCH(QByteArray, symbol);
    QFETCH(QByteArray, decimalPoint);
    const DecimalPointScope locale(symbol);
    QCOMPARE(QByteArray(localeconv()->decimal_point), decimalPoint);
    JournalRecord record;
    std::string error;

    const std::string line =
        JournalFormat::ToLine({1, PointRecord{{1.5, -0.1, 2.5e-300}, std::nullopt}});
    const bool isRead = JournalFormat::FromLine(line, record, error);

    QCOMPARE(QString::fromStdString(line),
             QString(R"({"n":1,"kind":"point","point":[1.5,-0.1,2.5e-300]})"));
    QVERIFY2(isRead, error.c_str());
    QCOMPARE(std::get<PointRecord>(record.what).point, Vector3d(1.5, -0.1, 2.5e-300));
    QCOMPARE(TemporaryDimensionStyle().FormatLength(1234.5), std::wstring(L"1234.500"));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalLocaleTest);
#include "JournalLocaleTest.moc"

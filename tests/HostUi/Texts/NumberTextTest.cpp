#include "HostUi/NumberText.h"

#include "Support/TestValues.h"

#include <QLocale>
#include <QScopeGuard>

namespace vesk
{

class NumberTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreWrittenAsInTheLocaleWithoutThousands_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("decimals");
        QTest::addColumn<QString>("expected");

        const QLocale german(QLocale::German);
        QTest::newRow("C") << QLocale::c() << 1234567.5 << 3 << "1234567.500";
        QTest::newRow("English") << QLocale(QLocale::English) << 1234567.5 << 3 << "1234567.500";
        QTest::newRow("German") << german << 1234567.5 << 3 << "1234567,500";
        QTest::newRow("French") << QLocale(QLocale::French) << 1234567.5 << 3 << "1234567,500";
        QTest::newRow("negative") << german << -0.25 << 2 << "-0,25";
        QTest::newRow("whole") << german << 120.0 << 0 << "120";
    }

    void numbersAreWrittenAsInTheLocaleWithoutThousands()
    {
        QFETCH(QLocale, locale);
        QFETCH(double, value);
        QFETCH(int, decimals);
        QLocale::setDefault(locale);
        const auto restored = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });

        const QString text = ToLocalText(value, decimals);

        QTEST(text, "expected");
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::NumberTextTest);
#include "NumberTextTest.moc"

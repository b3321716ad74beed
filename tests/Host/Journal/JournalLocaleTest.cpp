#include "Journal/JournalFormat.h"

#include "Dimension/TemporaryDimensionStyle.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>

namespace vesk
{

namespace
{

/// The C locale's decimal point, as set by a locale that is made for the test. Back to "C"
/// afterwards.
class DecimalPointScope
{
public:
    explicit DecimalPointScope(const QByteArray& symbol)
    {
        QFile source(m_folder.filePath("source"));
        source.open(QIODevice::WriteOnly);
        source.write("LC_NUMERIC\ndecimal_point \"" + symbol +
                     "\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
        source.close();
        // It complains of all the other categories, which nobody needs here.
        QProcess::execute("localedef", {"-c", "--quiet", "-f", "UTF-8", "-i", source.fileName(),
                                        m_folder.filePath("points")});
        qputenv("LOCPATH", m_folder.path().toLocal8Bit());
        setlocale(LC_NUMERIC, "points");
    }

    ~DecimalPointScope()
    {
        setlocale(LC_NUMERIC, "C");
        qunsetenv("LOCPATH");
    }

    DecimalPointScope(const DecimalPointScope&) = delete;
    DecimalPointScope& operator=(const DecimalPointScope&) = delete;

private:
    QTemporaryDir m_folder;
};

}

/// Numbers in a locale whose decimal point is none.
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
    QTest::newRow("of two bytes") << QByteArray("<U066B>") << QByteArray("\xD9\xAB");
}

void JournalLocaleTest::numbersAreTheSameInEveryLocale()
{
    QFETCH(QByteArray, symbol);
    QFETCH(QByteArray, decimalPoint);
    const DecimalPointScope locale(symbol);
    if (localeconv()->decimal_point != decimalPoint)
        QSKIP("This machine cannot make such a locale.");
    JournalRecord record;
    std::string error;

    const std::string line =
        JournalFormat::ToLine({1, PointRecord{{1.5, -0.1, 2.5e-300}, std::nullopt}});
    const bool isRead = JournalFormat::FromLine(line, record, error);

    QCOMPARE(QString::fromStdString(line),
             QString(R"({"n":1,"kind":"point","point":[1.5,-0.1,2.5e-300]})"));
    QVERIFY2(isRead, error.c_str());
    QVERIFY(std::get<PointRecord>(record.what).point == Vector3d(1.5, -0.1, 2.5e-300));
    QCOMPARE(TemporaryDimensionStyle().FormatLength(1234.5), std::wstring(L"1234.500"));
}

}

QTEST_APPLESS_MAIN(vesk::JournalLocaleTest)
#include "JournalLocaleTest.moc"

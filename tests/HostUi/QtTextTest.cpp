#include "HostUi/QtText.h"

#include "Support/TestValues.h"

Q_DECLARE_METATYPE(std::wstring)

namespace vesk::test
{

class QtTextTest : public QObject
{
    Q_OBJECT

private slots:
    void textSurvivesBothWays_data();
    void textSurvivesBothWays();
};

void QtTextTest::textSurvivesBothWays_data()
{
    QTest::addColumn<std::wstring>("wide");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << std::wstring() << QString();
    QTest::newRow("plain") << std::wstring(L"12.5") << QString("12.5");
    QTest::newRow("Chinese") << std::wstring(L"直线") << QString::fromUtf8("直线");
    QTest::newRow("beyond the basic plane")
        << std::wstring(L"\U0001F4D0x\U00020000") << QString::fromUtf8("\U0001F4D0x\U00020000");
    QTest::newRow("zero inside") << std::wstring(L"a\0b", 3) << QString::fromLatin1("a\0b", 3);
}

void QtTextTest::textSurvivesBothWays()
{
    QFETCH(std::wstring, wide);
    QFETCH(QString, text);

    QCOMPARE(ToQString(wide), text);
    QCOMPARE(ToWide(text), wide);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::test::QtTextTest);
#include "QtTextTest.moc"

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
    void characterOfTwoUnitsIsKeptAnywhere_data();
    void characterOfTwoUnitsIsKeptAnywhere();
    void emptyTextIsNotNull();
    void textIsTheSameAsItsConversionOnly_data();
    void textIsTheSameAsItsConversionOnly();
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
    QTest::newRow("byte order mark") << std::wstring(L"\uFEFFa") << QString(QChar(0xFEFF)) + "a";
    QTest::newRow("last of one unit") << std::wstring(L"\uFFFF") << QString(QChar(0xFFFF));
}

void QtTextTest::textSurvivesBothWays()
{
    QFETCH(std::wstring, wide);
    QFETCH(QString, text);

    QCOMPARE(ToQString(wide), text);
    QCOMPARE(ToWide(text), wide);
}

void QtTextTest::characterOfTwoUnitsIsKeptAnywhere_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    for (int before = 0; before < 20; ++before)
        for (int after = 0; after < 20; ++after)
            QTest::addRow("%d before, %d after", before, after) << before << after;
}

void QtTextTest::characterOfTwoUnitsIsKeptAnywhere()
{
    QFETCH(int, before);
    QFETCH(int, after);

    const QString text =
        ToQString(std::wstring(before, L'a') + L"\U0001F4D0" + std::wstring(after, L'b'));

    QCOMPARE(text, QString(before, 'a') + QString::fromUtf8("\U0001F4D0") + QString(after, 'b'));
}

void QtTextTest::emptyTextIsNotNull()
{
    QVERIFY(!ToQString(std::wstring()).isNull());
}

void QtTextTest::textIsTheSameAsItsConversionOnly_data()
{
    const QString pair = QString::fromUtf8("\U0001F4D0");
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::wstring>("wide");
    QTest::addColumn<bool>("isSame");
    QTest::newRow("null") << QString() << std::wstring() << true;
    QTest::newRow("equal") << QString("abc") << std::wstring(L"abc") << true;
    QTest::newRow("first differs") << QString("abc") << std::wstring(L"xbc") << false;
    QTest::newRow("last differs") << QString("abc") << std::wstring(L"abx") << false;
    QTest::newRow("shorter") << QString("ab") << std::wstring(L"abc") << false;
    QTest::newRow("longer") << QString("abcd") << std::wstring(L"abc") << false;
    QTest::newRow("empty") << QString("a") << std::wstring() << false;
    QTest::newRow("pair") << pair + "a" << std::wstring(L"\U0001F4D0a") << true;
    QTest::newRow("pairs") << pair + pair << std::wstring(L"\U0001F4D0\U0001F4D0") << true;
    QTest::newRow("other pair") << pair << std::wstring(L"\U0001F4D1") << false;
    QTest::newRow("low half only") << QString(pair[1]) << std::wstring(L"\U0001F4D0") << false;
    QTest::newRow("cut down") << QString(QChar(0xF4D0)) << std::wstring(L"\U0001F4D0") << false;
}

void QtTextTest::textIsTheSameAsItsConversionOnly()
{
    QFETCH(QString, text);
    QFETCH(std::wstring, wide);
    QFETCH(bool, isSame);

    QCOMPARE(IsSameText(text, wide), isSame);
    QCOMPARE(text == ToQString(wide), isSame);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::test::QtTextTest);
#include "QtTextTest.moc"

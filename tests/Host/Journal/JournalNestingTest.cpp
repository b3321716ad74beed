#include "Journal/JournalFormat.h"

#include "Support/TestValues.h"

namespace vesk
{

namespace
{

/// Why a line is no record; empty if it is one.
std::string FaultOf(const std::string& line)
{
    JournalRecord record;
    std::string error;
    return JournalFormat::FromLine(line, record, error) ? "" : error;
}

}

/// Lines that are nested too deeply to be parsed.
class JournalNestingTest : public QObject
{
    Q_OBJECT

private slots:
    void deepNestingIsTold_data();
    void deepNestingIsTold();
};

void JournalNestingTest::deepNestingIsTold_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");
    const QString tooDeep = "nested too deeply";
    const QByteArray begin = R"({"n":1,"kind":"undo","entity":)";
    constexpr int Deep = 20000;

    QTest::newRow("lists") << begin + QByteArray(Deep, '[') + QByteArray(Deep, ']') + "}"
                           << tooDeep;
    QTest::newRow("lists without end") << begin + QByteArray(Deep, '[') << tooDeep;
    QTest::newRow("objects") << begin + QByteArray("{\"a\":").repeated(Deep) << tooDeep;
    QTest::newRow("a list too many") << begin + QByteArray(32, '[') << tooDeep;
    QTest::newRow("the deepest") << begin + QByteArray(31, '[') + QByteArray(31, ']') + "}"
                                 << R"("entity" is not an integer)";
    QTest::newRow("lists in turn") << begin + "[" + QByteArray("[],").repeated(Deep) + "1]}"
                                   << R"("entity" is not an integer)";
    QTest::newRow("lists of texts in turn")
        << begin + "[" + QByteArray("[\"a\"],").repeated(Deep) + "1]}"
        << R"("entity" is not an integer)";
    QTest::newRow("lists in order")
        << begin + QByteArray("[[],[[]]],").repeated(Deep) << "not valid JSON";
    QTest::newRow("lists behind a text with a quote")
        << begin + "\"\\\"\\\\\"," + QByteArray(Deep, '[') << tooDeep;
    QTest::newRow("brackets in a text with a quote")
        << begin + "\"\\\"" + QByteArray(Deep, '[') + "\"}"
        << R"("entity" is not an integer)";
    QTest::newRow("brackets in a text") << begin + '"' + QByteArray(Deep, '[') + "\"}"
                                        << R"("entity" is not an integer)";
}

void JournalNestingTest::deepNestingIsTold()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);

    QCOMPARE(QString::fromStdString(FaultOf(line.toStdString())), error);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalNestingTest);
#include "JournalNestingTest.moc"

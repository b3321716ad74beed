#include "Journal/JournalFormat.h"

#include "Support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

namespace vesk
{

namespace
{

/// The result of reading a file.
struct Reading
{
    bool isRead = false;
    std::vector<JournalRecord> records;
    QString error;
};

Reading ReadPath(const QString& path)
{
    Reading reading;
    std::string error;
    reading.isRead = JournalFormat::ReadFile(path.toStdString(), reading.records, error);
    reading.error = QString::fromStdString(error);
    return reading;
}

Reading ReadContent(const QByteArray& content)
{
    const QTemporaryDir folder;
    // A non-ASCII name.
    QFile file(folder.filePath(QString::fromUtf8("日志.jsonl")));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    file.close();
    return ReadPath(file.fileName());
}

const QByteArray Command1 = R"({"n":1,"kind":"command","id":"A"})";
const QByteArray End1 = R"({"n":1,"kind":"end","result":"done"})";
const QByteArray Header =
    R"({"n":0,"kind":"journal","version":2,"program":"sketcher","time":"2026-11-21T08:15:30.123Z"})";
const QByteArray Undo2 = R"({"n":2,"kind":"undo","entity":1})";

}

class JournalFileTest : public QObject
{
    Q_OBJECT

private slots:
    void recordsAreReadInOrder();
    void aHeaderIsTheFirstRecord();
    void linesAreReadWithTheirText();
    void anEmptyFileHoldsNothing();
    void aTornLastLineIsNothing_data();
    void aTornLastLineIsNothing();
    void aBadLineIsNamed_data();
    void aBadLineIsNamed();
    void aFileThatCannotBeReadIsTold();
    void whatWasReadBeforeIsForgotten();
    void recordsTakeNoMoreMemoryThanTheyNeed();
    void blankLinesTakeNoMemoryForRecords();
};

void JournalFileTest::recordsTakeNoMoreMemoryThanTheyNeed()
{
    QByteArray content;
    for (int i = 1; i <= 1000; ++i)
        content += R"({"n":)" + QByteArray::number(i) + R"(,"kind":"close"})" + '\n';

    const Reading reading = ReadContent(content);

    QCOMPARE(reading.records.size(), std::size_t(1000));
    QCOMPARE(reading.records.capacity(), std::size_t(1000));
}

void JournalFileTest::blankLinesTakeNoMemoryForRecords()
{
    const Reading reading = ReadContent(QByteArray(23000, '\n'));

    QVERIFY(!reading.isRead);
    QVERIFY(reading.records.capacity() <= 1000);
}

void JournalFileTest::recordsAreReadInOrder()
{
    const Reading reading = ReadContent(Command1 + '\n' + Undo2 + "\r\n" + End1 + '\n');

    QVERIFY2(reading.isRead, qPrintable(reading.error));
    QCOMPARE(reading.records.size(), std::size_t(3));
    QCOMPARE(reading.records[0].number, 1);
    QCOMPARE(reading.records[1].number, 2);
    QVERIFY(std::holds_alternative<EndRecord>(reading.records[2].what));
}

void JournalFileTest::aHeaderIsTheFirstRecord()
{
    const Reading reading = ReadContent(Header + '\n' + Command1 + '\n');

    QVERIFY2(reading.isRead, qPrintable(reading.error));
    QCOMPARE(reading.records.size(), std::size_t(2));
    QCOMPARE(reading.records[0].number, 0);
    QCOMPARE(std::get<HeaderRecord>(reading.records[0].what).program, std::wstring(L"sketcher"));
}

void JournalFileTest::linesAreReadWithTheirText()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("journal"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(Header + '\n' + "{ \"n\":2,\"kind\":\"undo\",\"entity\":1}\nto");
    file.close();
    std::vector<JournalLine> lines;
    std::string torn;
    std::string error;

    QVERIFY(JournalFormat::ReadLines(file.fileName().toStdString(), lines, torn, error));

    QCOMPARE(lines.size(), std::size_t(2));
    QCOMPARE(QByteArray::fromStdString(lines[0].text), Header);
    QCOMPARE(lines[1].text, std::string("{ \"n\":2,\"kind\":\"undo\",\"entity\":1}"));
    QCOMPARE(lines[1].record.number, 2);
    QCOMPARE(torn, std::string("to"));
}

void JournalFileTest::anEmptyFileHoldsNothing()
{
    const Reading reading = ReadContent("");

    QVERIFY2(reading.isRead, qPrintable(reading.error));
    QVERIFY(reading.records.empty());
}

void JournalFileTest::aTornLastLineIsNothing_data()
{
    QTest::addColumn<QByteArray>("last");
    QTest::newRow("torn") << QByteArray(R"({"n":2,"kind":"und)");
    QTest::newRow("whole but for its end") << Undo2;
    QTest::newRow("rubbish") << QByteArray("\xFF\xFE");
    QTest::newRow("spaces") << QByteArray("  ");
}

void JournalFileTest::aTornLastLineIsNothing()
{
    QFETCH(QByteArray, last);

    const Reading reading = ReadContent(Command1 + '\n' + last);

    QVERIFY2(reading.isRead, qPrintable(reading.error));
    QCOMPARE(reading.records.size(), std::size_t(1));
}

void JournalFileTest::aBadLineIsNamed_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    QTest::newRow("rubbish") << Command1 + "\nrubbish\n"
                             << "line 2: not valid JSON";
    QTest::newRow("blank") << Command1 + "\n\n" + End1 + '\n' << "line 2: not valid JSON";
    QTest::newRow("blank at the end") << Command1 + "\n\n"
                                      << "line 2: not valid JSON";
    const QString byReturn = "ends with a bare carriage return";
    QTest::newRow("ends by returns") << Command1 + '\r' + Undo2 + '\r' << "line 1: " + byReturn;
    QTest::newRow("one end by a return") << Undo2 + '\r' << "line 1: " + byReturn;
    QTest::newRow("ends by returns further on")
        << Command1 + '\n' + Undo2 + '\r' + End1 << "line 2: " + byReturn;
    QTest::newRow("returns before a line feed") << Command1 + '\r' + Undo2 + '\n'
                                                << "line 1: not valid JSON";
    QTest::newRow("key twice") << Command1 + "\n{\"n\":2,\"n\":2,\"kind\":\"undo\",\"entity\":1}\n"
                               << R"(line 2: duplicate key "n")";
    QTest::newRow("deep") << Command1 + '\n' + QByteArray(20000, '[') + '\n'
                          << "line 2: nested too deeply";
    const QString headerWithin = "a header that is not in the first line";
    QTest::newRow("header twice") << Header + '\n' + Header + '\n' << "line 2: " + headerWithin;
    QTest::newRow("header after a record") << Command1 + '\n' + Header + '\n'
                                           << "line 2: " + headerWithin;
    QTest::newRow("number twice") << Command1 + '\n' + Command1 + '\n'
                                  << "line 2: record 1 comes after record 1";
    QTest::newRow("number before") << Undo2 + '\n' + Command1 + '\n'
                                   << "line 2: record 1 comes after record 2";
    QTest::newRow("end of nothing") << End1 + '\n' << "line 1: no command 1 to end";
    QTest::newRow("end twice") << Command1 + '\n' + End1 + '\n' + End1 + '\n'
                               << "line 3: no command 1 to end";
    QTest::newRow("end of no command")
        << Undo2 + "\n{\"n\":2,\"kind\":\"end\",\"result\":\"done\"}\n"
        << "line 2: no command 2 to end";
}

void JournalFileTest::aBadLineIsNamed()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, error);

    const Reading reading = ReadContent(content);

    QVERIFY(!reading.isRead);
    QCOMPARE(reading.error, error);
}

void JournalFileTest::aFileThatCannotBeReadIsTold()
{
    const QTemporaryDir folder;

    QCOMPARE(ReadPath(folder.filePath("none")).error, QString("the file cannot be read"));
    QCOMPARE(ReadPath(folder.path()).error, QString("the file cannot be read"));
    QVERIFY(!ReadPath(folder.path()).isRead);
}

void JournalFileTest::whatWasReadBeforeIsForgotten()
{
    std::vector<JournalRecord> records(3);
    std::string error;

    QVERIFY(!JournalFormat::ReadFile("", records, error));

    QVERIFY(records.empty());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalFileTest);
#include "JournalFileTest.moc"

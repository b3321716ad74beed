#include "JournalTool.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

#include <sstream>

namespace
{

const QByteArray s_header = "{\"n\":0,\"kind\":\"journal\",\"version\":2,\"program\":\"sketcher\","
                            "\"time\":\"2026-11-21T08:15:30.123Z\"}\n";
const QByteArray s_command = "{\"n\":1,\"kind\":\"command\",\"id\":\"Sketcher.Line\"}\n";
const QByteArray s_point = "{\"n\":2,\"kind\":\"point\",\"point\":[1.5,0,0]}\n";
const QByteArray s_mark = "{\"n\":3,\"kind\":\"mark\",\"digest\":\"a1\",\"t\":5}\n";
const QByteArray s_end = "{\"n\":1,\"kind\":\"end\",\"result\":\"done\"}\n";
const QByteArray s_close = "{\"n\":4,\"kind\":\"close\"}\n";
const QByteArray s_whole = s_header + s_command + s_point + s_mark + s_end + s_close;

/// What a run of the program gave.
struct Result
{
    int code;
    QString out;
    QString err;
};

Result Run(const QStringList& arguments)
{
    std::vector<std::string> texts;
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    std::ostringstream out;
    std::ostringstream err;
    const int code = RunJournalTool(texts, out, err);
    return {code, QString::fromStdString(out.str()), QString::fromStdString(err.str())};
}

}

/// The program that looks at journals.
class JournalToolTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachRecordIsShownInWords_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("words");

        QTest::newRow("header") << s_header
                                << "0: journal of version 2, by \"sketcher\" at "
                                   "2026-11-21T08:15:30.123Z";
        QTest::newRow("command") << QByteArray(
                                        "{\"n\":1,\"kind\":\"command\",\"id\":\"A\",\"parameters\":"
                                        "{\"b\":true,\"i\":5,\"r\":0.5,\"t\":\"x\\ny\"}}\n")
                                 << "1: command A b=true i=5 r=0.5 t=\"x y\"";
        QTest::newRow("point") << s_point << "2: point 1.5, 0, 0";
        QTest::newRow("picked")
            << QByteArray("{\"n\":2,\"kind\":\"point\",\"point\":[0,0,0],\"entity\":3}\n")
            << "2: point 0, 0, 0 on entity 3";
        QTest::newRow("value") << QByteArray("{\"n\":2,\"kind\":\"value\",\"field\":\"length\","
                                             "\"text\":\"1cm\",\"value\":10}\n")
                               << "2: length \"1cm\" = 10";
        QTest::newRow("selection")
            << QByteArray("{\"n\":2,\"kind\":\"selection\",\"entities\":[3,1]}\n")
            << "2: selects 3 1";
        QTest::newRow("no selection")
            << QByteArray("{\"n\":2,\"kind\":\"selection\",\"entities\":[]}\n")
            << "2: selects nothing";
        QTest::newRow("property") << QByteArray(
                                         "{\"n\":2,\"kind\":\"property\",\"object\":\"drawing\","
                                         "\"property\":\"name\",\"value\":\"图\"}\n")
                                  << QStringLiteral("2: name of drawing = \"图\"");
        QTest::newRow("undo") << QByteArray("{\"n\":2,\"kind\":\"undo\",\"entity\":3}\n")
                              << "2: undo of entity 3";
        QTest::newRow("redo") << QByteArray("{\"n\":2,\"kind\":\"redo\",\"entity\":3}\n")
                              << "2: redo of entity 3";
        QTest::newRow("mark") << s_mark << "3: drawing a1 at 5 ms";
        QTest::newRow("close") << s_close << "4: end of the program";
    }

    void eachRecordIsShownInWords()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, words);

        const Result result = Run({"show", Write("journal", line)});

        QCOMPARE(result.code, 0);
        QCOMPARE(result.out, words + '\n');
    }

    void aJournalIsChecked_data()
    {
        QTest::addColumn<QByteArray>("journal");
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("said");

        QTest::newRow("complete") << s_whole << 0 << "version 2, 5 records, 1 marks\n";
        QTest::newRow("version 1") << s_command + s_end << 0 << "version 1, 2 records, 0 marks\n";
        QTest::newRow("empty") << QByteArray() << 0 << "version 1, 0 records, 0 marks\n";
        QTest::newRow("unfinished")
            << s_command << 1
            << "version 1, 1 records, 0 marks\nrecord 1: Sketcher.Line is not finished\n";
        QTest::newRow("crashed") << s_header << 1
                                 << "version 2, 0 records, 0 marks\n"
                                    "the program has not ended in order\n";
        QTest::newRow("torn") << s_whole + "{\"n\"" << 1
                              << "version 2, 5 records, 1 marks\nthe last line is incomplete\n";
    }

    void aJournalIsChecked()
    {
        QFETCH(QByteArray, journal);
        QFETCH(int, code);
        QFETCH(QString, said);

        const Result result = Run({"check", Write("journal", journal)});

        QCOMPARE(result.code, code);
        QCOMPARE(result.out, said);
    }

    void anInvalidJournalIsNamed_data()
    {
        QTest::addColumn<QString>("command");
        for (const char* pName : {"show", "check", "to-test"})
            QTest::newRow(pName) << pName;
    }

    void anInvalidJournalIsNamed()
    {
        QFETCH(QString, command);
        const QString path = Write("journal", s_header + "rubbish\n");

        const Result result = Run({command, path});

        QCOMPARE(result.code, 2);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.err, "vesk-journal: " + path + ": line 2: not valid JSON\n");
    }

    void cuttingKeepsTheLinesAsTheyAre_data()
    {
        QTest::addColumn<QString>("last");
        QTest::addColumn<QByteArray>("left");

        QTest::newRow("none") << "0" << s_header;
        QTest::newRow("within") << "2" << s_header + s_command + s_point;
        QTest::newRow("with the end that follows")
            << "3" << s_header + s_command + s_point + s_mark + s_end;
        QTest::newRow("beyond") << "99" << s_whole;
    }

    void cuttingKeepsTheLinesAsTheyAre()
    {
        QFETCH(QString, last);
        QFETCH(QByteArray, left);
        const QString path = Write("journal", s_whole + "torn");
        const QString output = m_folder.filePath("cut");

        QCOMPARE(Run({"cut", path, last}).out, QString(left));
        QCOMPARE(Run({"cut", path, last, "--output", output}).code, 0);
        QCOMPARE(vesk::ReadBytes(output), left);
    }

    void anOutputThatCannotBeWrittenIsNamed()
    {
        const QString output = m_folder.filePath("none/cut");

        const Result result = Run({"cut", Write("journal", s_whole), "2", "--output", output});

        QCOMPARE(result.code, 2);
        QCOMPARE(result.err, "vesk-journal: " + output + " cannot be written\n");
    }

    void theSameSessionAtAnotherTimeIsTheSame()
    {
        QByteArray other = s_whole;
        other.replace("\"t\":5", "\"t\":700").replace("08:15", "09:30");

        const Result result = Run({"diff", Write("a", s_whole), Write("b", other)});

        QCOMPARE(result.code, 0);
        QCOMPARE(result.out, QString());
    }

    void theFirstRecordAtWhichSessionsPartIsShown_data()
    {
        QTest::addColumn<QByteArray>("other");
        QTest::addColumn<QString>("said");

        QByteArray moved = s_whole;
        moved.replace("1.5", "2.5");
        QTest::newRow("another point") << moved << "- 2: point 1.5, 0, 0\n+ 2: point 2.5, 0, 0\n";
        QTest::newRow("shorter") << s_header + s_command
                                 << "- 2: point 1.5, 0, 0\n+ ends before that record\n";
        QTest::newRow("longer") << s_whole + "{\"n\":5,\"kind\":\"undo\",\"entity\":1}\n"
                                << "- ends before that record\n+ 5: undo of entity 1\n";
    }

    void theFirstRecordAtWhichSessionsPartIsShown()
    {
        QFETCH(QByteArray, other);
        QFETCH(QString, said);

        const Result result = Run({"diff", Write("a", s_whole), Write("b", other)});

        QCOMPARE(result.code, 1);
        QCOMPARE(result.out, said);
    }

    void aTestReplaysTheJournalByItsName()
    {
        const Result result = Run({"to-test", Write("day.jsonl", s_whole), "--name", "Day"});

        QCOMPARE(result.code, 0);
        QVERIFY(result.out.contains("class DayTest final"));
        QVERIFY(result.out.contains("VESK_JOURNALS \"/day.jsonl\""));
        QVERIFY(result.out.contains("contains(\"a1\")"));
        QVERIFY(!result.out.contains('@'));
    }

    void aTestNeedsAMark()
    {
        const QString path = Write("day.jsonl", s_header + s_command + s_end);

        const Result result = Run({"to-test", path});

        QCOMPARE(result.code, 2);
        QCOMPARE(result.out, QString());
        QCOMPARE(result.err, "vesk-journal: " + path + ": no mark to compare with\n");
    }

    void nonsenseIsTold_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown") << QStringList{"burn", "file"};
        QTest::newRow("no file") << QStringList{"show"};
        QTest::newRow("no number") << QStringList{"cut", "file", "end"};
        QTest::newRow("no name of a class") << QStringList{"to-test", "file", "--name", "a b"};
        QTest::newRow("begins with a digit") << QStringList{"to-test", "file", "--name", "1a"};
    }

    void nonsenseIsTold()
    {
        QFETCH(QStringList, arguments);

        const Result result = Run(arguments);

        QCOMPARE(result.code, 2);
        QVERIFY(!result.err.isEmpty());
    }

    void helpIsNoFailure()
    {
        const Result result = Run({"--help"});

        QCOMPARE(result.code, 0);
        QVERIFY(result.out.contains("to-test"));
    }

    void aDamagedByteIsReadOrToldWithItsLine_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("show") << QStringList({"show", "FILE"});
        QTest::newRow("check") << QStringList({"check", "FILE"});
        QTest::newRow("cut") << QStringList({"cut", "FILE", "3"});
        QTest::newRow("diff") << QStringList({"diff", "FILE", "WHOLE"});
        QTest::newRow("to-test") << QStringList({"to-test", "FILE"});
    }

    void aDamagedByteIsReadOrToldWithItsLine()
    {
        QFETCH(QStringList, arguments);
        const QString path = Write("whole", s_whole);
        arguments.replaceInStrings("WHOLE", path);
        arguments.replaceInStrings("FILE", path + "-damaged");

        for (int i = 0; i < s_whole.size(); ++i)
        {
            QByteArray damaged = s_whole;
            damaged[i] = static_cast<char>(damaged[i] ^ (1 << i % 8));
            Write("whole-damaged", damaged);
            const Result result = Run(arguments);
            const bool isRead =
                result.code == JournalExit::Fine || result.code == JournalExit::Different;
            QVERIFY2(isRead || result.err.contains(": line "), qPrintable(result.err));
        }
    }

private:
    QString Write(const QString& name, const QByteArray& content)
    {
        const QString path = m_folder.filePath(name);
        if (!vesk::WriteBytes(path, content))
            QTest::qFail("cannot write", __FILE__, __LINE__);
        return path;
    }

    QTemporaryDir m_folder;
};

VESK_TESTS_WITHOUT_APPLICATION(JournalToolTest);
#include "JournalToolTest.moc"

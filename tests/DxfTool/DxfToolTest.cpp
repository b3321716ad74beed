// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfTool.h"

#include "DxfText.h"

#include "Model/DocumentFile.h"
#include "Support/TestValues.h"

#include <sstream>

namespace
{

struct ToolRun
{
    DxfExit code;
    std::string output;
    std::string messages;
};

ToolRun RunTool(const std::vector<std::string>& arguments, const std::string& input)
{
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream messages;
    const DxfExit code = RunDxfTool(arguments, in, out, messages);
    return {code, out.str(), messages.str()};
}

const std::string s_file =
    DxfFile({{0, "LINE"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}, {0, "TEXT"}, {1, "x"}});

}

Q_DECLARE_METATYPE(DxfExit)

class DxfToolTest final : public QObject
{
    Q_OBJECT

private slots:
    void importWritesADrawingFileAndAReport()
    {
        const ToolRun run = RunTool({"import"}, s_file);

        QCOMPARE(run.code, DxfExit::Done);
        const DocumentReading document = DocumentFile::FromText(run.output);
        QCOMPARE(document.outcome, DocumentReading::Outcome::Whole);
        QCOMPARE(document.content.entities.size(), std::size_t(1));
        QCOMPARE(run.messages,
                 std::string("{\"kind\":\"imported\",\"type\":\"LINE\",\"count\":1}\n"
                             "{\"kind\":\"skipped\",\"type\":\"TEXT\",\"reason\":\"unsupported\","
                             "\"count\":1}\n"));
    }

    void exportReadsADrawingFile()
    {
        const std::string document = RunTool({"import"}, s_file).output;

        const ToolRun written = RunTool({"export"}, document);
        const ToolRun again = RunTool({"import"}, written.output);

        QCOMPARE(written.code, DxfExit::Done);
        QCOMPARE(again.output, document);
    }

    void helpIsNoFailure()
    {
        const ToolRun run = RunTool({"--help"}, {});

        QCOMPARE(run.code, DxfExit::Done);
        QVERIFY(run.output.find("vesk-dxf import") != std::string::npos);
        QCOMPARE(run.messages, std::string());
    }

    void progressIsAShareOfTheWholeWhateverTheSection()
    {
        std::string file = DxfFile({});
        std::string lines = "0\nSECTION\n2\nBLOCKS\n";
        for (int i = 0; i < 5000; ++i)
            lines += "0\nLINE\n10\n1\n20\n2\n11\n3\n21\n4\n";
        file.insert(file.find("0\nSECTION\n2\nENTITIES"), lines + "0\nENDSEC\n");

        const ToolRun run = RunTool({"import"}, file);

        QVERIFY(run.messages.find("{\"kind\":\"progress\",\"share\":1.0}\n") == 0);
        QVERIFY(run.messages.find("null") == std::string::npos);
    }

    void tooManyEntitiesAreNotExported()
    {
        SketchContent content;
        content.entities = {{1, LineShape{{0, 0, 0}, {1, 0, 0}}, {}},
                            {2, LineShape{{0, 0, 0}, {2, 0, 0}}, {}}};
        content.lastId = 2;
        const std::string document = DocumentFile::ToText(content);

        QCOMPARE(RunTool({"export", "--max-entities", "1"}, document).code, DxfExit::TooLarge);
        QCOMPARE(RunTool({"export", "--max-entities", "2"}, document).code, DxfExit::Done);
    }

    void outputThatCannotBeWrittenIsTold()
    {
        std::istringstream input(s_file);
        std::ostringstream output;
        std::ostringstream messages;
        output.setstate(std::ios::badbit);

        QCOMPARE(RunDxfTool({"import"}, input, output, messages), DxfExit::Unwritten);
    }

    void whatGoesWrongHasItsOwnCode_data()
    {
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<DxfExit>("code");

        const QByteArray file = QByteArray::fromStdString(s_file);
        QTest::newRow("no arguments") << QByteArray() << file << DxfExit::Usage;
        QTest::newRow("unknown") << QByteArray("convert") << file << DxfExit::Usage;
        QTest::newRow("no value") << QByteArray("import --unit") << file << DxfExit::Usage;
        QTest::newRow("no unit") << QByteArray("import --unit x") << file << DxfExit::Usage;
        QTest::newRow("unit of export") << QByteArray("export --unit mm") << file << DxfExit::Usage;
        QTest::newRow("no count") << QByteArray("import --max-entities 0") << file
                                  << DxfExit::Usage;
        QTest::newRow("huge") << QByteArray("import --max-entities 1000000001") << file
                              << DxfExit::Usage;
        QTest::newRow("half a count")
            << QByteArray("import --max-entities 5x") << file << DxfExit::Usage;
        QTest::newRow("not dxf") << QByteArray("import") << QByteArray("{}") << DxfExit::Unusable;
        QTest::newRow("not a drawing") << QByteArray("export") << file << DxfExit::Unusable;
        QTest::newRow("nobody knows the unit")
            << QByteArray("import") << QByteArray(file).replace("INSUNITS", "UNITS")
            << DxfExit::NoUnit;
    }

    void whatGoesWrongHasItsOwnCode()
    {
        QFETCH(QByteArray, arguments);
        QFETCH(QByteArray, input);
        QFETCH(DxfExit, code);
        std::vector<std::string> texts;
        for (const QByteArray& argument : arguments.split(' '))
            texts.push_back(argument.toStdString());

        const ToolRun run = RunTool(texts, input.toStdString());

        QCOMPARE(run.code, code);
        QCOMPARE(run.output.empty(), code != DxfExit::Done);
        QCOMPARE(run.messages.find("\"kind\":\"error\"") != std::string::npos,
                 code != DxfExit::Done);
    }
};

VESK_TESTS_WITHOUT_APPLICATION(DxfToolTest);
#include "DxfToolTest.moc"

// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfReader.h"

#include "DxfText.h"

#include "Model/DocumentFile.h"
#include "Support/TestValues.h"

#include <sstream>

using Outcome = DxfReading::Outcome;
using vesk::Vector3d;

namespace
{

std::string ReportOf(const DxfReading& reading)
{
    std::ostringstream stream;
    reading.report.Write(stream);
    return stream.str();
}

const std::string s_line = DxfFile(
    {{0, "LINE"}, {8, "0"}, {10, "1"}, {20, "2"}, {30, "0"}, {11, "3"}, {21, "4"}, {31, "0"}});

/// The file with another text in place of the one that it contains.
std::string Replaced(std::string file, const std::string& before, const std::string& after)
{
    const std::size_t place = file.find(before);
    return place == std::string::npos ? std::string() : file.replace(place, before.size(), after);
}

const LineShape& FirstLine(const DxfReading& reading)
{
    return std::get<LineShape>(reading.content.entities.at(0).shape);
}

}

class DxfReaderTest final : public QObject
{
    Q_OBJECT

private slots:
    void theFilesUnitIsObeyed_data()
    {
        QTest::addColumn<QByteArray>("code");
        QTest::addColumn<double>("millimetres");

        QTest::newRow("inches") << QByteArray("1") << 25.4;
        QTest::newRow("feet") << QByteArray("2") << 304.8;
        QTest::newRow("millimetres") << QByteArray("     4") << 1.0;
        QTest::newRow("centimetres") << QByteArray("5") << 10.0;
        QTest::newRow("metres") << QByteArray("6") << 1000.0;
    }

    void theFilesUnitIsObeyed()
    {
        QFETCH(QByteArray, code);
        QFETCH(double, millimetres);
        const std::string file = Replaced(s_line, "\n4\n", "\n" + code.toStdString() + "\n");
        DxfReadOptions options;
        options.pUnit = FindDxfUnit("yd");

        const DxfReading reading = ReadDxf(file, options);

        QCOMPARE(FirstLine(reading).start, Vector3d(millimetres, 2 * millimetres, 0));
    }

    void fileWithoutAUnitNeedsOne_data()
    {
        QTest::addColumn<QByteArray>("file");

        const auto row = [](const char* pName, const std::string& file) {
            QTest::newRow(pName) << QByteArray::fromStdString(file);
        };
        row("unitless", Replaced(s_line, "\n4\n", "\n0\n"));
        row("unknown", Replaced(s_line, "\n4\n", "\n99\n"));
        row("no number", Replaced(s_line, "\n4\n", "\nmm\n"));
        row("no variable", Replaced(s_line, "$INSUNITS", "$OTHER"));
    }

    void fileWithoutAUnitNeedsOne()
    {
        QFETCH(QByteArray, file);
        DxfReadOptions options;
        options.pUnit = FindDxfUnit("cm");

        QCOMPARE(ReadDxf(file.toStdString(), {}).outcome, Outcome::NoUnit);
        QCOMPARE(FirstLine(ReadDxf(file.toStdString(), options)).end, Vector3d(30, 40, 0));
    }

    void otherFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("file");

        QTest::newRow("empty") << QByteArray();
        QTest::newRow("binary") << QByteArray("AutoCAD Binary DXF\r\n\x1a");
        QTest::newRow("drawing") << QByteArray("AC1015\n0\n");
        QTest::newRow("comment only") << QByteArray("999\nnothing\n");
        QTest::newRow("no section") << QByteArray("0\nEOF\n");
    }

    void otherFilesAreRefused()
    {
        QFETCH(QByteArray, file);

        QCOMPARE(ReadDxf(file.toStdString(), {}).outcome, Outcome::NotDxf);
    }

    void commentsAndCarriageReturnsDoNotMatter()
    {
        std::string file = "999\ncomment\n" + s_line;
        for (std::size_t i = 0; (i = file.find('\n', i)) != std::string::npos; i += 2)
            file.insert(i, "\r");

        QCOMPARE(FirstLine(ReadDxf(file, {})).end, Vector3d(3, 4, 0));
    }

    void arcsSeenFromBelowAreMirrored()
    {
        const DxfReading reading = ReadDxf(DxfFile({{0, "ARC"},
                                                    {8, "0"},
                                                    {10, "-3"},
                                                    {20, "1"},
                                                    {40, "2"},
                                                    {50, "0"},
                                                    {51, "90"},
                                                    {210, "0"},
                                                    {220, "0"},
                                                    {230, "-1"}}),
                                           {});

        // From (-1, 1) counter-clockwise to (-3, 3) in a plane whose x axis points to the left.
        const auto& arc = std::get<ArcShape>(reading.content.entities.at(0).shape);
        QCOMPARE(arc.centre, Vector3d(3, 1, 0));
        QCOMPARE(arc.start, Vector3d(3, 3, 0));
        QCOMPARE(arc.end, Vector3d(1, 1, 0));
    }

    void whatIsLeftOutIsListed()
    {
        const DxfReading reading =
            ReadDxf(DxfFile({{0, "LINE"},   {10, "1"},     {20, "2"},
                             {11, "3"},     {21, "4"},     {0, "LINE"},
                             {10, "1"},     {20, "2"},     {11, "1"},
                             {21, "2"},     {0, "CIRCLE"}, {67, "1"},
                             {10, "1"},     {20, "2"},     {40, "4"},
                             {0, "CIRCLE"}, {10, "1"},     {20, "2"},
                             {40, "4"},     {210, "1"},    {230, "0"},
                             {0, "TEXT"},   {10, "1"},     {20, "2"},
                             {40, "4"},     {1, "text"},   {0, "ACAD_PROXY_ENTITY"},
                             {0, "TEXT"}}),
                    {});

        QCOMPARE(reading.content.entities.size(), std::size_t(1));
        QCOMPARE(QByteArray::fromStdString(ReportOf(reading)),
                 QByteArray("{\"kind\":\"imported\",\"type\":\"LINE\",\"count\":1}\n"
                            "{\"kind\":\"skipped\",\"type\":\"ACAD_PROXY_ENTITY\",\"reason\":"
                            "\"unsupported\",\"count\":1}\n"
                            "{\"kind\":\"skipped\",\"type\":\"CIRCLE\",\"reason\":"
                            "\"not in the drawing plane\",\"count\":1}\n"
                            "{\"kind\":\"skipped\",\"type\":\"CIRCLE\",\"reason\":\"paper space\","
                            "\"count\":1}\n"
                            "{\"kind\":\"skipped\",\"type\":\"LINE\",\"reason\":"
                            "\"too small or too large\",\"count\":1}\n"
                            "{\"kind\":\"skipped\",\"type\":\"TEXT\",\"reason\":\"unsupported\","
                            "\"count\":2}\n"));
    }

    void entitiesOfBlocksAreNotOfTheDrawing()
    {
        const std::string blocks = ToDxf({{0, "SECTION"},
                                          {2, "BLOCKS"},
                                          {0, "BLOCK"},
                                          {2, "A"},
                                          {0, "LINE"},
                                          {10, "1"},
                                          {20, "2"},
                                          {11, "3"},
                                          {21, "4"},
                                          {0, "ENDBLK"},
                                          {0, "ENDSEC"}});

        const DxfReading reading = ReadDxf(
            Replaced(s_line, "0\nSECTION\n2\nENTITIES", blocks + "0\nSECTION\n2\nENTITIES"), {});

        QCOMPARE(reading.content.entities.size(), std::size_t(1));
    }

    void polylinesOfBothKindsAreRead()
    {
        const DxfReading reading =
            ReadDxf(DxfFile({{0, "POLYLINE"}, {8, "0"},          {66, "1"},     {70, "1"},
                             {0, "VERTEX"},   {10, "0"},         {20, "0"},     {0, "VERTEX"},
                             {10, "4"},       {20, "0"},         {0, "VERTEX"}, {10, "4"},
                             {20, "3"},       {0, "VERTEX"},     {10, "0"},     {20, "3"},
                             {0, "SEQEND"},   {0, "LWPOLYLINE"}, {8, "0"},      {90, "3"},
                             {70, "0"},       {10, "0"},         {20, "0"},     {10, "2"},
                             {20, "0"},       {42, "1"},         {10, "2"},     {20, "2"}}),
                    {});

        const std::vector<Entity>& entities = reading.content.entities;
        QCOMPARE(entities.size(), std::size_t(3));
        QVERIFY(std::holds_alternative<RectangleShape>(entities[0].shape));
        QVERIFY(std::holds_alternative<LineShape>(entities[1].shape));
        QCOMPARE(std::get<ArcShape>(entities[2].shape).centre, Vector3d(2, 1, 0));
        QCOMPARE(ReportOf(reading), std::string("{\"kind\":\"imported\",\"type\":\"POLYLINE\","
                                                "\"count\":2}\n"));
    }

    void styleWidthAndColourComeFromTheLayer()
    {
        const DxfReading reading = ReadDxf(
            DxfFile({{0, "LINE"},
                     {8, "axes"},
                     {10, "1"},
                     {20, "2"},
                     {11, "3"},
                     {21, "4"},
                     {0, "LINE"},
                     {8, "AXES"},
                     {6, "Dots"},
                     {62, "3"},
                     {370, "200"},
                     {10, "1"},
                     {20, "2"},
                     {11, "3"},
                     {21, "5"}},
                    {{0, "TABLE"},  {2, "LTYPE"}, {0, "LTYPE"},  {2, "DOTS"},  {70, "0"},
                     {72, "65"},    {73, "2"},    {40, "1"},     {49, "0"},    {49, "-1"},
                     {0, "ENDTAB"}, {0, "TABLE"}, {2, "LAYER"},  {0, "LAYER"}, {2, "axes"},
                     {70, "4"},     {62, "-1"},   {6, "CENTER"}, {370, "70"},  {0, "ENDTAB"}}),
            {});

        const SketchContent& content = reading.content;
        QCOMPARE(content.layers.size(), std::size_t(2));
        QVERIFY((content.layers[1] == Layer{1, L"axes", 1, false, true}));
        QVERIFY((content.entities.at(0).pen == Pen{3, 0, 5, 1}));
        QVERIFY((content.entities.at(1).pen == Pen{2, 3, 8, 1}));
    }

    void radiiAreInTheFilesUnit()
    {
        const std::string file = Replaced(DxfFile({{0, "CIRCLE"},
                                                   {10, "1"},
                                                   {20, "0"},
                                                   {40, "2"},
                                                   {0, "ARC"},
                                                   {10, "1"},
                                                   {20, "0"},
                                                   {40, "2"},
                                                   {50, "0"},
                                                   {51, "360"}}),
                                          "70\n4\n", "70\n1\n");

        const DxfReading reading = ReadDxf(file, {});

        QCOMPARE(std::get<CircleShape>(reading.content.entities.at(0).shape).radius, 50.8);
        const auto& arc = std::get<ArcShape>(reading.content.entities.at(1).shape);
        QCOMPARE(arc.radius, 50.8);
        QVERIFY(arc.start == arc.end);
    }

    void frozenLayersAreHidden()
    {
        const DxfReading reading = ReadDxf(DxfFile({}, {{0, "TABLE"},
                                                        {2, "LAYER"},
                                                        {0, "LAYER"},
                                                        {2, "axes"},
                                                        {70, "1"},
                                                        {62, "1"},
                                                        {6, "CONTINUOUS"},
                                                        {0, "ENDTAB"}}),
                                           {});

        QVERIFY(!reading.content.layers.at(1).isVisible);
        QVERIFY(!reading.content.layers.at(1).isLocked);
    }

    void whatIsReplacedByTheNearestIsTold_data()
    {
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<int>("colour");
        QTest::addColumn<QByteArray>("what");

        QTest::newRow("colour number") << QByteArray("62\n150\n") << 4 << QByteArray("colour");
        QTest::newRow("true colour")
            << QByteArray("62\n1\n420\n255\n") << 4 << QByteArray("colour");
        QTest::newRow("line weight") << QByteArray("370\n22\n") << 0 << QByteArray("line weight");
    }

    void whatIsReplacedByTheNearestIsTold()
    {
        QFETCH(QByteArray, field);
        QFETCH(int, colour);
        QFETCH(QByteArray, what);
        const std::string file =
            Replaced(s_line, "LINE\n8\n0\n", "LINE\n8\n0\n" + field.toStdString());

        const DxfReading reading = ReadDxf(file, {});

        QCOMPARE(reading.content.entities.at(0).pen.colour, colour);
        const std::string report = ReportOf(reading);
        const std::string told = "\"what\":\"" + what.toStdString() + '"';
        QVERIFY2(report.find(told) != std::string::npos, report.c_str());
    }

    void splinesAreLeftOut()
    {
        const DxfReading reading = ReadDxf(DxfFile({{0, "POLYLINE"},
                                                    {66, "1"},
                                                    {70, "4"},
                                                    {0, "VERTEX"},
                                                    {10, "0"},
                                                    {20, "0"},
                                                    {0, "VERTEX"},
                                                    {10, "4"},
                                                    {20, "0"},
                                                    {0, "SEQEND"}}),
                                           {});

        QVERIFY(reading.content.entities.empty());
    }

    void namesAreReadInTheFilesCodePage_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("page");

        QTest::newRow("utf-8") << QByteArray("轴线") << QByteArray("ANSI_936");
        QTest::newRow("chinese") << QByteArray("\xd6\xe1\xcf\xdf") << QByteArray("ANSI_936");
        QTest::newRow("escaped") << QByteArray("\\U+8F74\\u+7ebf").replace('u', 'U')
                                 << QByteArray("ANSI_1252");
    }

    void namesAreReadInTheFilesCodePage()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, page);
        std::string file = Replaced(s_line, "9\n$INSUNITS",
                                    "9\n$DWGCODEPAGE\n3\n" + page.toStdString() + "\n9\n$INSUNITS");
        file = Replaced(file, "LINE\n8\n0\n", "LINE\n8\n" + name.toStdString() + "\n");

        const DxfReading reading = ReadDxf(file, {});

        QVERIFY(reading.content.layers.at(1).name == L"轴线");
    }

    void everyNameOfALayerCanBeKept()
    {
        const DxfReading reading = ReadDxf(DxfFile({}, {{0, "TABLE"},
                                                        {2, "LAYER"},
                                                        {0, "LAYER"},
                                                        {2, "a\\U+000Ab\\U+0000"},
                                                        {0, "LAYER"},
                                                        {2, "\\U+D800"},
                                                        {0, "LAYER"},
                                                        {2, "\\U+DFFF"},
                                                        {0, "ENDTAB"}}),
                                           {});

        const DocumentReading kept = DocumentFile::FromText(DocumentFile::ToText(reading.content));
        QCOMPARE(kept.error, std::string());
        QCOMPARE(kept.content.layers.size(), std::size_t(3));
        QVERIFY(kept.content.layers[1].name == L"a_b_");
        QVERIFY(kept.content.layers[2].name == L"\uFFFD");
    }

    void heightsAreReported()
    {
        const DxfReading reading =
            ReadDxf(DxfFile({{0, "CIRCLE"}, {10, "1"}, {20, "2"}, {30, "7"}, {40, "4"}}), {});

        QCOMPARE(std::get<CircleShape>(reading.content.entities.at(0).shape).centre,
                 Vector3d(1, 2, 0));
        QVERIFY(ReportOf(reading).find("\"what\":\"height\"") != std::string::npos);
    }

    void fileThatEndsEarlyIsReadAsFarAsItGoes()
    {
        const std::string file = s_line.substr(0, s_line.find("0\nENDSEC\n0\nEOF")) + "0\nLI";

        const DxfReading reading = ReadDxf(file, {});

        QCOMPARE(reading.content.entities.size(), std::size_t(1));
        QVERIFY(ReportOf(reading).find("truncated") != std::string::npos);
    }

    void linesOfAnyLengthAreRead()
    {
        const std::string text = "0\nTEXT\n1\n" + std::string(5000, 'x') + "\n0\nLINE\n";

        const DxfReading reading = ReadDxf(Replaced(s_line, "0\nLINE\n", text), {});

        QCOMPARE(FirstLine(reading).end, Vector3d(3, 4, 0));
    }

    void tooManyEntitiesAreRefused()
    {
        std::string lines;
        for (int i = 0; i < 3; ++i)
            lines += ToDxf({{0, "LINE"}, {10, "1"}, {20, "2"}, {11, "3"}, {21, "4"}});
        const std::string file = Replaced(s_line, "0\nLINE\n", lines + "0\nLINE\n");
        DxfReadOptions options;

        options.greatestCount = 3;
        QCOMPARE(ReadDxf(file, options).outcome, Outcome::TooMany);
        options.greatestCount = 4;
        QCOMPARE(ReadDxf(file, options).outcome, Outcome::Done);
    }
};

VESK_TESTS_WITHOUT_APPLICATION(DxfReaderTest);
#include "DxfReaderTest.moc"

#include "Journal/JournalFormat.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace vesk
{

namespace
{

/// The record in a line; if there is none, the test fails and the number is 0.
JournalRecord Read(const std::string& line)
{
    JournalRecord record;
    std::string error;
    if (!JournalFormat::FromLine(line, record, error))
        QTest::qFail(qPrintable(QString::fromStdString(error)), __FILE__, __LINE__);
    return record;
}

JournalRecord MakeCommand(const CommandParameterValue& value)
{
    CommandRecord command{L"Sketcher.Line", {}};
    command.parameters.Add(L"Value", value);
    return {1, command};
}

CommandParameters ReadParameters(const std::string& parameters)
{
    const JournalRecord record =
        Read(R"({"n":1,"kind":"command","id":"A","parameters":)" + parameters + "}");
    const auto* pCommand = std::get_if<CommandRecord>(&record.what);
    return pCommand != nullptr ? pCommand->parameters : CommandParameters();
}

bool IsSameDouble(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

}

class JournalFormatTest : public QObject
{
    Q_OBJECT

private slots:
    void eachKindHasItsLine_data();
    void eachKindHasItsLine();
    void eachLineReadsBack_data() { eachKindHasItsLine_data(); }
    void eachLineReadsBack();
    void lineIsAppendedToWhatIsThere();
    void parametersWhoseNamesBecomeTheSameAreOne();
    void doublesReadBackToTheLastBit_data();
    void doublesReadBackToTheLastBit();
    void whatIsNoFiniteNumberReadsBackAsNaN_data();
    void whatIsNoFiniteNumberReadsBackAsNaN();
    void textsReadBack_data();
    void textsReadBack();
    void everyFieldReadsBack_data();
    void everyFieldReadsBack();
    void parametersKeepTheirTypes();
    void integersAreGoodForRealNumbers();
    void everyIntReadsBack_data();
    void everyIntReadsBack();
    void numbersMayBeWrittenInEveryWayOfJson_data();
    void numbersMayBeWrittenInEveryWayOfJson();
    void spacesAreAllowed();
    void keysOfDifferentObjectsMayBeTheSame();
};

void JournalFormatTest::eachKindHasItsLine_data()
{
    CommandParameters clicked;
    clicked.Add(L"Clicked", CommandParameterValue(true));
    const struct
    {
        const char* name;
        JournalRecord record;
        const char* line;
    } rows[] = {
        {"command",
         {1, CommandRecord{L"Sketcher.Line", clicked}},
         R"({"n":1,"kind":"command","id":"Sketcher.Line","parameters":{"Clicked":true}})"},
        {"command, id only",
         {1, CommandRecord{L"Sketcher.Undo", {}}},
         R"({"n":1,"kind":"command","id":"Sketcher.Undo"})"},
        {"point",
         {2, PointRecord{{1.5, -2.0, 0.0}, std::nullopt}},
         R"({"n":2,"kind":"point","point":[1.5,-2.0,0.0]})"},
        {"point on an entity",
         {2, PointRecord{{1.0, 2.0, 3.0}, 5}},
         R"({"n":2,"kind":"point","point":[1.0,2.0,3.0],"entity":5})"},
        {"value",
         {3, ValueRecord{InputState::IS_Length, L"125.5", 125.5}},
         R"({"n":3,"kind":"value","field":"length","text":"125.5","value":125.5})"},
        {"selection",
         {4, SelectionRecord{{3, 1}}},
         R"({"n":4,"kind":"selection","entities":[3,1]})"},
        {"nothing selected", {4, SelectionRecord{}}, R"({"n":4,"kind":"selection","entities":[]})"},
        {"property",
         {4, PropertyRecord{L"drawing", L"name", L"图一"}},
         R"({"n":4,"kind":"property","object":"drawing","property":"name","value":"图一"})"},
        {"undo", {5, UndoRecord{7}}, R"({"n":5,"kind":"undo","entity":7})"},
        {"redo", {5, RedoRecord{7}}, R"({"n":5,"kind":"redo","entity":7})"},
        {"mark", {6, MarkRecord{"0f", 250}}, R"({"n":6,"kind":"mark","digest":"0f","t":250})"},
        {"mark without time",
         {6, MarkRecord{"0f", std::nullopt}},
         R"({"n":6,"kind":"mark","digest":"0f"})"},
        {"close", {7, CloseRecord{}}, R"({"n":7,"kind":"close"})"},
        {"header",
         {0, HeaderRecord{2, L"画图 1.0", L"2026-11-21T08:15:30.123Z"}},
         R"({"n":0,"kind":"journal","version":2,"program":"画图 1.0","time":"2026-11-21T08:15:30.123Z"})"},
        {"end", {1, EndRecord{1, false}}, R"({"n":1,"kind":"end","result":"done"})"},
        {"end, refused", {1, EndRecord{1, true}}, R"({"n":1,"kind":"end","result":"refused"})"},
    };
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("line");
    for (const auto& row : rows)
        QTest::newRow(row.name) << QString::fromStdString(JournalFormat::ToLine(row.record))
                                << QString::fromUtf8(row.line);
}

void JournalFormatTest::eachKindHasItsLine()
{
    QFETCH(QString, written);
    QFETCH(QString, line);

    QCOMPARE(written, line);
}

void JournalFormatTest::eachLineReadsBack()
{
    QFETCH(QString, line);

    const JournalRecord record = Read(line.toStdString());

    QCOMPARE(QString::fromStdString(JournalFormat::ToLine(record)), line);
}

void JournalFormatTest::lineIsAppendedToWhatIsThere()
{
    std::string text = "kept\n";

    JournalFormat::AppendLine({5, UndoRecord{7}}, text);

    QCOMPARE(text, std::string("kept\n{\"n\":5,\"kind\":\"undo\",\"entity\":7}"));
}

void JournalFormatTest::parametersWhoseNamesBecomeTheSameAreOne()
{
    CommandRecord command{L"A", {}};
    command.parameters.Add(L"B", CommandParameterValue(0));
    command.parameters.Add({wchar_t(0xDC00)}, CommandParameterValue(1));
    command.parameters.Add({wchar_t(0xDC01)}, CommandParameterValue(2));

    const JournalRecord record = Read(JournalFormat::ToLine({1, command}));

    const CommandParameters& parameters = std::get<CommandRecord>(record.what).parameters;
    QCOMPARE(parameters.GetAll().size(), std::size_t{2});
    QVERIFY(*parameters.Find(L"\uFFFD") == CommandParameterValue(2));
}

void JournalFormatTest::doublesReadBackToTheLastBit_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("value");
    QTest::newRow("sum") << 0.1 + 0.2;
    QTest::newRow("third") << 1.0 / 3.0;
    QTest::newRow("minus zero") << -0.0;
    QTest::newRow("whole") << 5.0;
    QTest::newRow("great") << 1e308;
    QTest::newRow("greatest") << Limits::max();
    QTest::newRow("lowest") << Limits::lowest();
    QTest::newRow("least normal") << Limits::min();
    QTest::newRow("denormal") << 1.5e-310;
    QTest::newRow("least") << Limits::denorm_min();
    QTest::newRow("2^53 + 2") << 9007199254740994.0;
    QTest::newRow("1e23") << 1e23;
    QTest::newRow("next above one") << std::nextafter(1.0, 2.0);
}

void JournalFormatTest::doublesReadBackToTheLastBit()
{
    QFETCH(double, value);

    const JournalRecord point =
        Read(JournalFormat::ToLine({1, PointRecord{{value, 0.0, -value}, std::nullopt}}));
    const JournalRecord typed =
        Read(JournalFormat::ToLine({1, ValueRecord{InputState::IS_Angle, L"", value}}));
    const JournalRecord command =
        Read(JournalFormat::ToLine(MakeCommand(CommandParameterValue(value))));

    QVERIFY(IsSameDouble(std::get<PointRecord>(point.what).point.x(), value));
    QVERIFY(IsSameDouble(std::get<PointRecord>(point.what).point.z(), -value));
    QVERIFY(IsSameDouble(std::get<ValueRecord>(typed.what).value, value));
    const auto& parameters = std::get<CommandRecord>(command.what).parameters;
    QVERIFY(IsSameDouble(std::get<double>(parameters.Find(L"Value")->Get()), value));
}

void JournalFormatTest::whatIsNoFiniteNumberReadsBackAsNaN_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("NaN") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinity") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinity") << -std::numeric_limits<double>::infinity();
}

void JournalFormatTest::whatIsNoFiniteNumberReadsBackAsNaN()
{
    QFETCH(double, value);

    const JournalRecord point =
        Read(JournalFormat::ToLine({1, PointRecord{{value, 1.0, 2.0}, std::nullopt}}));
    const JournalRecord command =
        Read(JournalFormat::ToLine(MakeCommand(CommandParameterValue(value))));

    QVERIFY(std::isnan(std::get<PointRecord>(point.what).point.x()));
    QCOMPARE(std::get<PointRecord>(point.what).point.y(), 1.0);
    const auto& parameters = std::get<CommandRecord>(command.what).parameters;
    QVERIFY(std::isnan(std::get<double>(parameters.Find(L"Value")->Get())));
}

void JournalFormatTest::textsReadBack_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("quotes") << R"(a "b" \c\ "1.5")";
    QTest::newRow("number") << "1.5e3";
    QTest::newRow("lines") << "a\nb\r\tc";
    QTest::newRow("Chinese") << QString::fromUtf8("图层：直线");
    QTest::newRow("beyond the first plane") << QString::fromUtf8("\xF0\x9F\x93\x90");
    QTest::newRow("zero character") << QString(QChar(0)) + "b";
    QTest::newRow("braces") << "{[}],:";
}

void JournalFormatTest::textsReadBack()
{
    QFETCH(QString, text);
    const std::wstring wide = text.toStdWString();

    const std::string line = JournalFormat::ToLine({1, PropertyRecord{wide, wide, wide}});
    const JournalRecord record = Read(line);

    const auto& property = std::get<PropertyRecord>(record.what);
    QCOMPARE(line.find('\n'), std::string::npos);
    QCOMPARE(QString::fromStdWString(property.object), text);
    QCOMPARE(QString::fromStdWString(property.property), text);
    QCOMPARE(QString::fromStdWString(property.value), text);
}

void JournalFormatTest::everyFieldReadsBack_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("name");
    QTest::newRow("length") << 1 << "length";
    QTest::newRow("angle") << 2 << "angle";
    QTest::newRow("radius") << 3 << "radius";
    QTest::newRow("central angle") << 4 << "centralAngle";
    QTest::newRow("width") << 5 << "width";
    QTest::newRow("height") << 6 << "height";
}

void JournalFormatTest::everyFieldReadsBack()
{
    QFETCH(int, state);
    QFETCH(QString, name);

    const std::string line =
        JournalFormat::ToLine({1, ValueRecord{static_cast<InputState>(state), L"1", 1.0}});
    const JournalRecord record = Read(line);

    QVERIFY(QString::fromStdString(line).contains("\"field\":\"" + name + '"'));
    QCOMPARE(static_cast<int>(std::get<ValueRecord>(record.what).field), state);
}

void JournalFormatTest::parametersKeepTheirTypes()
{
    const CommandParameters parameters = ReadParameters(
        R"({"integer":5,"real":5.0,"exponent":5e0,"yes":true,"no":false,"text":"5"})");

    QCOMPARE(*parameters.Find(L"integer"), CommandParameterValue(5));
    QCOMPARE(*parameters.Find(L"real"), CommandParameterValue(5.0));
    QCOMPARE(*parameters.Find(L"exponent"), CommandParameterValue(5.0));
    QCOMPARE(*parameters.Find(L"yes"), CommandParameterValue(true));
    QCOMPARE(*parameters.Find(L"no"), CommandParameterValue(false));
    QCOMPARE(*parameters.Find(L"text"), CommandParameterValue(std::wstring(L"5")));
}

void JournalFormatTest::integersAreGoodForRealNumbers()
{
    const JournalRecord record =
        Read(R"({"n":1,"kind":"point","point":[1,-2,12345678901234567890]})");

    const Vector3d point = std::get<PointRecord>(record.what).point;
    QCOMPARE(point.x(), 1.0);
    QCOMPARE(point.y(), -2.0);
    QCOMPARE(point.z(), 12345678901234567890.0);
}

void JournalFormatTest::everyIntReadsBack_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("minus one") << -1;
    QTest::newRow("zero") << 0;
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
}

void JournalFormatTest::everyIntReadsBack()
{
    QFETCH(int, value);

    const JournalRecord record = Read(JournalFormat::ToLine({1, UndoRecord{value}}));

    QCOMPARE(std::get<UndoRecord>(record.what).entity, value);
}

void JournalFormatTest::numbersMayBeWrittenInEveryWayOfJson_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<double>("value");
    QTest::newRow("zero") << "0" << 0.0;
    QTest::newRow("below one") << "0.25" << 0.25;
    QTest::newRow("negative") << "-10.5" << -10.5;
    QTest::newRow("exponent") << "25e2" << 2500.0;
    QTest::newRow("great exponent letter") << "25E2" << 2500.0;
    QTest::newRow("plus") << "25e+2" << 2500.0;
    QTest::newRow("minus") << "25E-2" << 0.25;
    QTest::newRow("everything") << "-0.25e+02" << -25.0;
}

void JournalFormatTest::numbersMayBeWrittenInEveryWayOfJson()
{
    QFETCH(QString, written);
    QFETCH(double, value);

    const JournalRecord record =
        Read(R"({"n":1,"kind":"point","point":[)" + written.toStdString() + ",7,8]}");

    const Vector3d point = std::get<PointRecord>(record.what).point;
    QVERIFY(IsSameDouble(point.x(), value));
    QCOMPARE(point.y(), 7.0);
}

void JournalFormatTest::spacesAreAllowed()
{
    const JournalRecord record = Read("{ \"n\" : 1 , \"kind\":\t\"undo\",\"entity\": 7 } \r");

    QCOMPARE(std::get<UndoRecord>(record.what).entity, 7);
}

void JournalFormatTest::keysOfDifferentObjectsMayBeTheSame()
{
    const CommandParameters parameters = ReadParameters(R"({"n":5,"kind":6,"id":7})");

    QVERIFY(*parameters.Find(L"kind") == CommandParameterValue(6));
    QCOMPARE(Read(R"({"parameters":{"n":5,"kind":6},"n":1,"kind":"command","id":"A"})").number, 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalFormatTest);
#include "JournalFormatTest.moc"

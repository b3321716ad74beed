#include "Journal/JournalFormat.h"

#include "Support/TestValues.h"

namespace vesk
{

namespace
{

std::string ErrorOf(const std::string& line)
{
    JournalRecord record;
    std::string error;
    return JournalFormat::FromLine(line, record, error) ? "" : error;
}

}

/// What is told of a line that is no record.
class JournalFormatErrorTest : public QObject
{
    Q_OBJECT

private slots:
    void aBadLineIsTold_data();
    void aBadLineIsTold();
};

void JournalFormatErrorTest::aBadLineIsTold_data()
{
    const struct
    {
        const char* name;
        const char* line;
        const char* error;
    } rows[] = {
        {"blank", "", "not valid JSON"},
        {"text", "hello", "not valid JSON"},
        {"torn", R"({"n":1,"kind":"und)", "not valid JSON"},
        {"two values", R"({"n":1} {"n":2})", "not valid JSON"},
        {"comma", R"({"n":1,5,"kind":"undo","entity":1})", "not valid JSON"},
        {"number without digits", R"({"n":1,"kind":"undo","entity":-})", "not valid JSON"},
        {"number without fraction", R"({"n":1,"kind":"point","point":[1.,2,3]})", "not valid JSON"},
        {"number without whole", R"({"n":1,"kind":"point","point":[.5,2,3]})", "not valid JSON"},
        {"leading zero", R"({"n":1,"kind":"point","point":[01.5,2,3]})", "not valid JSON"},
        {"two points", R"({"n":1,"kind":"point","point":[1.5.2,2,3]})", "not valid JSON"},
        {"exponent without digits", R"({"n":1,"kind":"point","point":[1e+,2,3]})",
         "not valid JSON"},
        {"beyond the doubles", R"({"n":1,"kind":"point","point":[1e309,2,3]})", "not valid JSON"},
        {"number as key", R"({"n":1,1.5:2})", "not valid JSON"},
        {"bad UTF-8", "{\"n\":1,\"kind\":\"command\",\"id\":\"\xC3(\"}", "not valid JSON"},
        {"half a character", R"({"n":1,"kind":"command","id":"\ud83d"})", "not valid JSON"},
        {"list", "[1]", "not a JSON object"},
        {"no number", R"({"kind":"undo","entity":1})", R"("n" is missing)"},
        {"number as text", R"({"n":"1","kind":"undo","entity":1})", R"("n" is not an integer)"},
        {"real as number", R"({"n":1.0,"kind":"undo","entity":1})", R"("n" is not an integer)"},
        {"zero", R"({"n":0,"kind":"undo","entity":1})", R"("n" is below 1)"},
        {"too great", R"({"n":2147483648,"kind":"undo","entity":1})", R"("n" is not an integer)"},
        {"far too great", R"({"n":18446744073709551615,"kind":"undo","entity":1})",
         R"("n" is not an integer)"},
        {"no kind", R"({"n":1})", R"("kind" is missing)"},
        {"selection as number", R"({"n":1,"kind":"selection","entities":3})",
         R"("entities" is not a list of integers)"},
        {"selection of names", R"({"n":1,"kind":"selection","entities":["a"]})",
         R"("entities" is not a list of integers)"},
        {"selection without list", R"({"n":1,"kind":"selection"})", R"("entities" is missing)"},
        {"kind as number", R"({"n":1,"kind":1})", R"("kind" is not a string)"},
        {"unknown kind", R"({"n":1,"kind":"circle"})", R"(unknown kind "circle")"},
        {"command without id", R"({"n":1,"kind":"command"})", R"("id" is missing)"},
        {"parameters as list", R"({"n":1,"kind":"command","id":"A","parameters":[1]})",
         R"("parameters" is not a JSON object)"},
        {"nested parameter", R"({"n":1,"kind":"command","id":"A","parameters":{"B":{}}})",
         R"(the parameter "B" has an invalid value)"},
        {"great parameter", R"({"n":1,"kind":"command","id":"A","parameters":{"B":5000000000}})",
         R"(the parameter "B" has an invalid value)"},
        {"parameter of a list", R"({"n":1,"kind":"command","id":"A","parameters":{"B":[]}})",
         R"(the parameter "B" has an invalid value)"},
        {"too small", R"({"n":1,"kind":"undo","entity":-2147483649})",
         R"("entity" is not an integer)"},
        {"sign without digits", R"({"n":1,"kind":"point","point":[1,2,-.5]})", "not valid JSON"},
        {"letter behind a number", R"({"n":1,"kind":"point","point":[1,2,3.5f]})",
         "not valid JSON"},
        {"two exponents", R"({"n":1,"kind":"point","point":[1,2,3e5e5]})", "not valid JSON"},
        {"point without place", R"({"n":1,"kind":"point"})", R"("point" is missing)"},
        {"point of four", R"({"n":1,"kind":"point","point":[1,2,3,4]})",
         R"("point" is not a list of three numbers)"},
        {"point with a text at its end", R"({"n":1,"kind":"point","point":[1,2,"3"]})",
         R"("point" is not a list of three numbers)"},
        {"point with a text within", R"({"n":1,"kind":"point","point":[1,"2",3]})",
         R"("point" is not a list of three numbers)"},
        {"value without field", R"({"n":1,"kind":"value","text":"1","value":1})",
         R"("field" is missing)"},
        {"value without text", R"({"n":1,"kind":"value","field":"angle","value":1})",
         R"("text" is missing)"},
        {"value without number", R"({"n":1,"kind":"value","field":"angle","text":"1"})",
         R"("value" is missing)"},
        {"text as number", R"({"n":1,"kind":"value","field":"angle","text":1,"value":1})",
         R"("text" is not a string)"},
        {"undo without entity", R"({"n":1,"kind":"undo"})", R"("entity" is missing)"},
        {"property without object", R"({"n":1,"kind":"property","property":"b","value":"c"})",
         R"("object" is missing)"},
        {"property without name", R"({"n":1,"kind":"property","object":"a","value":"c"})",
         R"("property" is missing)"},
        {"property without value", R"({"n":1,"kind":"property","object":"a","property":"b"})",
         R"("value" is missing)"},
        {"end without result", R"({"n":1,"kind":"end"})", R"("result" is missing)"},
        {"point of two", R"({"n":1,"kind":"point","point":[1,2]})",
         R"("point" is not a list of three numbers)"},
        {"point of texts", R"({"n":1,"kind":"point","point":["1.5","2","3"]})",
         R"("point" is not a list of three numbers)"},
        {"entity as real", R"({"n":1,"kind":"point","point":[1,2,3],"entity":1.5})",
         R"("entity" is not an integer)"},
        {"unknown field", R"({"n":1,"kind":"value","field":"depth","text":"1","value":1})",
         R"(unknown field "depth")"},
        {"value as text", R"({"n":1,"kind":"value","field":"angle","text":"1","value":"1.5"})",
         R"("value" is not a number)"},
        {"property as number",
         R"({"n":1,"kind":"property","object":"a","property":"b","value":1.5})",
         R"("value" is not a string)"},
        {"unknown result", R"({"n":1,"kind":"end","result":"ok"})", R"(unknown result "ok")"},
        {"key twice", R"({"n":1,"n":1,"kind":"undo","entity":1})", R"(duplicate key "n")"},
        {"key twice, one escaped", R"({"n":1,"kind":"undo","entity":1,"\u0065ntity":2})",
         R"(duplicate key "entity")"},
        {"parameter twice", R"({"n":1,"kind":"command","id":"A","parameters":{"B":1,"C":2,"B":3}})",
         R"(duplicate key "B")"},
        {"redo without entity", R"({"n":1,"kind":"redo"})", R"("entity" is missing)"},
        {"mark without digest", R"({"n":1,"kind":"mark","t":1})", R"("digest" is missing)"},
        {"mark at a text", R"({"n":1,"kind":"mark","digest":"0f","t":"1"})",
         R"("t" is not an integer)"},
        {"close with more", R"({"n":1,"kind":"close","entity":1})", R"(unexpected key "entity")"},
        {"header with a number", R"({"n":1,"kind":"journal","version":2,"program":"a","time":"b"})",
         R"("n" of a header is not 0)"},
        {"header without version", R"({"n":0,"kind":"journal","program":"a","time":"b"})",
         R"("version" is missing)"},
        {"header without program", R"({"n":0,"kind":"journal","version":2,"time":"b"})",
         R"("program" is missing)"},
        {"header without time", R"({"n":0,"kind":"journal","version":2,"program":"a"})",
         R"("time" is missing)"},
        {"newer header, unknown in every other way",
         R"({"n":0,"kind":"journal","version":3,"layout":{}})",
         "the journal has version 3, this program reads up to version 2"},
        {"header of the first version", R"({"n":0,"kind":"journal","version":1})",
         "no header has version 1"},
        {"more than the kind has", R"({"n":1,"kind":"undo","entity":1,"point":[1,2,3]})",
         R"(unexpected key "point")"},
    };
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("error");
    for (const auto& row : rows)
        QTest::newRow(row.name) << QByteArray(row.line) << QString(row.error);
}

void JournalFormatErrorTest::aBadLineIsTold()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, error);

    QCOMPARE(QString::fromStdString(ErrorOf(line.toStdString())), error);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalFormatErrorTest);
#include "JournalFormatErrorTest.moc"

#include "Model/DocumentFile.h"

#include "Host/DecimalPointScope.h"
#include "Model/Digest.h"
#include "Model/SampleContent.h"
#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>

using Outcome = DocumentReading::Outcome;

/// Those lines of a file with a whole object that the JSON library would write in another way.
static QStringList OtherLines(const std::string& file)
{
    QStringList others;
    for (QString line : QString::fromStdString(file).split('\n'))
    {
        if (line.endsWith(','))
            line.chop(1);
        const std::string text = line.toStdString();
        const auto json = nlohmann::ordered_json::parse(text, nullptr, false);
        if (json.is_object() && json.dump() != text)
            others << line;
    }
    return others;
}

class DocumentFileTest final : public QObject
{
    Q_OBJECT

private slots:
    void aFileHasOneEntityPerLine()
    {
        SketchContent content = MakeSampleContent();
        content.entities.resize(2);

        const std::string text = DocumentFile::ToText(content);

        QCOMPARE(text,
                 "{\"format\":\"vesk-drawing\",\"version\":1,\"digest\":\"" +
                     DigestOf(content).ToText() +
                     "\",\"name\":\"零件 1\",\"lastId\":12,\"lastLayerId\":3,\n"
                     "\"layers\":[\n"
                     "{\"id\":0,\"name\":\"0\",\"colour\":\"default\",\"visible\":true,"
                     "\"locked\":false},\n"
                     "{\"id\":2,\"name\":\"墙\",\"colour\":\"blue\",\"visible\":false,"
                     "\"locked\":true}\n"
                     "],\n"
                     "\"pen\":{\"style\":\"dashed\",\"colour\":\"orange\",\"width\":\"0.35\","
                     "\"layer\":2},\n"
                     "\"entities\":[\n"
                     "{\"id\":1,\"type\":\"line\",\"start\":[0.1,0.0,0.0],\"end\":[3.0,4.0,0.0],"
                     "\"style\":\"solid\",\"colour\":\"default\",\"width\":\"0.25\",\"layer\":0},\n"
                     "{\"id\":4,\"type\":\"circle\",\"centre\":[1.0,2.0,0.0],"
                     "\"radius\":0.3333333333333333,\"normal\":[0.0,0.0,1.0],\"style\":\"dashed\","
                     "\"colour\":\"red\",\"width\":\"0.5\",\"layer\":2}\n"
                     "]}\n");
    }

    void everythingIsReadBack()
    {
        const SketchContent content = MakeSampleContent();

        const DocumentReading reading = DocumentFile::FromText(DocumentFile::ToText(content));

        QCOMPARE(reading.error, std::string());
        QCOMPARE(reading.outcome, Outcome::Whole);
        QCOMPARE(reading.digest, DigestOf(content).ToText());
        QVERIFY(reading.sum == DigestOf(content));
        QCOMPARE(reading.content.name, content.name);
        QVERIFY(reading.content.layers == content.layers);
        QVERIFY(reading.content.entities == content.entities);
        QVERIFY(reading.content.currentPen == content.currentPen);
        QCOMPARE(reading.content.lastId, 12);
        QCOMPARE(reading.content.lastLayerId, 3);
    }

    void numbersAreTheSameInEveryLocale()
    {
        const std::string text = DocumentFile::ToText(MakeSampleContent());
        const vesk::DecimalPointScope locale(
            vesk::DecimalPointScope::IsAnySymbolPossible() ? "<U066B>" : ",");

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.error, std::string());
        QCOMPARE(DocumentFile::ToText(reading.content), text);
    }

    void anEmptyDrawingIsReadBack()
    {
        const DocumentReading reading = DocumentFile::FromText(DocumentFile::ToText({}));

        QCOMPARE(reading.outcome, Outcome::Whole);
        QVERIFY(reading.content.entities.empty());
    }

    void aRandomDrawingIsReadBackBitForBit_data()
    {
        QTest::addColumn<unsigned>("seed");

        for (unsigned seed = 1; seed <= 1000; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void aRandomDrawingIsReadBackBitForBit()
    {
        QFETCH(unsigned, seed);
        const SketchContent content = MakeRandomContent(seed, 12);
        const std::string text = DocumentFile::ToText(content);

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.error, std::string());
        QCOMPARE(DigestOf(reading.content).ToText(), DigestOf(content).ToText());
        QVERIFY(reading.content.entities == content.entities);
        QCOMPARE(DocumentFile::ToText(reading.content), text);
    }

    void everyLineIsWrittenAsTheJsonLibraryWritesIt()
    {
        SketchContent content = MakeRandomContent(1, 300);
        content.layers[1].name = L"a\"\\\t\x01\x7f层\U0001F4D0";

        QCOMPARE(OtherLines(DocumentFile::ToText(content)), QStringList());
        QCOMPARE(OtherLines(DocumentFile::ToText(MakeSampleContent())), QStringList());
    }

    void givenDigestIsWritten()
    {
        const SketchContent content = MakeSampleContent();

        const std::string text = DocumentFile::ToText(content, DigestOf(content).ToText(), {});

        QCOMPARE(text, DocumentFile::ToText(content));
    }

    void aFileMayBeLaidOutInAnotherWay()
    {
        std::string text = DocumentFile::ToText(MakeSampleContent());
        for (const char c : {',', ':', '{', '[', '}', ']'})
            text = Replaced(text, std::string(1, c), std::string(" \n\t") + c + "\r ");

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.error, std::string());
        QVERIFY(reading.content.entities == MakeSampleContent().entities);
    }

    void unknownFieldsSurvive_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("field");

        QTest::newRow("of the drawing") << "\n]}\n"
                                        << ",\"plan\":{\"b\":[1,2e3],\"a\":\"x } \\\" y\"}";
        QTest::newRow("of the pen") << "},\n\"entities\""
                                    << R"(,"taper":1.50)";
        QTest::newRow("of a layer") << "}\n],\n\"pen\""
                                    << R"(,"tags":[[],{}])";
        QTest::newRow("of any name") << "\n]}\n"
                                     << ",\"\\\\p \\\"q\\\" \\n\":1,\"汉\":2";
        QTest::newRow("of an entity") << "},\n{\"id\":4"
                                      << R"(,"group":null,"note":"\u6c49")";
    }

    void unknownFieldsSurvive()
    {
        QFETCH(QString, before);
        QFETCH(QString, field);
        const QString known = QString::fromStdString(DocumentFile::ToText(MakeSampleContent()));
        const int place = known.indexOf(before) + (before.startsWith('\n') ? 2 : 0);
        const QString text = known.left(place) + field + known.mid(place);
        QCOMPARE(known.count(before), 1);

        const DocumentReading reading = DocumentFile::FromText(text.toStdString());

        QCOMPARE(reading.error, std::string());
        QCOMPARE(QString::fromStdString(DocumentFile::ToText(reading.content)), text);
    }

    void theUnknownFieldsOfAnErasedEntityAreNotWritten()
    {
        SketchContent content = MakeSampleContent();
        content.unknown.entities[2] = R"({"note":1})";

        QVERIFY(DocumentFile::ToText(content).find("note") == std::string::npos);
    }

    void blanksInUnknownFieldsAreDropped()
    {
        const std::string text =
            Replaced(DocumentFile::ToText({}), "\n]}", "\n],\"a\" : [ 1 ,\n\"b  \\\" c\" ] }");

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.content.unknown.document, std::string("{\"a\":[1,\"b  \\\" c\"]}"));
    }

    void whatFollowsABackslashInAnUnknownFieldIsKept()
    {
        const std::string text =
            Replaced(DocumentFile::ToText({}), "\n]}", "\n],\"a\": [ \"c:\\\\\" , \"b  d\" ]}");

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.content.unknown.document, std::string("{\"a\":[\"c:\\\\\",\"b  d\"]}"));
    }

    void anyNameIsReadBack()
    {
        SketchContent content;
        content.name = L"\"A\" \\ \n\t{[,";

        const DocumentReading reading = DocumentFile::FromText(DocumentFile::ToText(content));

        QCOMPARE(reading.error, std::string());
        QCOMPARE(reading.content.name, content.name);
    }

    void aDrawingWithoutLayersIsRefused()
    {
        std::string text = DocumentFile::ToText({});
        const std::size_t begin = text.find("\"layers\":[") + 10;
        text.erase(begin, text.find(']', begin) - begin);

        QCOMPARE(DocumentFile::FromText(text).error, std::string("there is no layer"));
    }

    void aFileOfANewerVersionIsTold()
    {
        const DocumentReading reading =
            DocumentFile::FromText(R"({"format":"vesk-drawing","version":2,"shapes":{}})");

        QCOMPARE(reading.outcome, Outcome::Newer);
        QCOMPARE(reading.error, std::string("written by a newer version of the program"));
    }

    void readingAndWritingCanBeCancelled()
    {
        const SketchContent content = MakeSampleContent();
        const std::string text = DocumentFile::ToText(content);
        std::size_t greatest = 0;
        const auto cancelAtThird = [&greatest](std::size_t done, std::size_t total) {
            greatest = std::max(greatest, done);
            return total != 4 || done < 2;
        };

        const DocumentReading reading = DocumentFile::FromText(text, cancelAtThird);
        const std::string written = DocumentFile::ToText(content, cancelAtThird);

        QCOMPARE(reading.outcome, Outcome::Cancelled);
        QVERIFY(reading.content.entities.empty());
        QVERIFY(written.empty());
        QCOMPARE(greatest, std::size_t(2));
    }

private:
    static std::string Replaced(const std::string& text, const std::string& what,
                                const std::string& by)
    {
        return QByteArray::fromStdString(text)
            .replace(QByteArray::fromStdString(what), QByteArray::fromStdString(by))
            .toStdString();
    }
};

VESK_TESTS_WITHOUT_WINDOWS(DocumentFileTest);
#include "DocumentFileTest.moc"

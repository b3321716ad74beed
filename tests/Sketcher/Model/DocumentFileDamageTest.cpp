#include "Model/DocumentFile.h"

#include "Model/Digest.h"
#include "Model/SampleContent.h"
#include "Support/TestValues.h"

#include <string>

using Outcome = DocumentReading::Outcome;

/// Files that are damaged or were never drawings: each is refused, and the message says where and
/// why.
class DocumentFileDamageTest final : public QObject
{
    Q_OBJECT

private slots:
    void aBrokenFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("what");
        QTest::addColumn<QByteArray>("by");
        QTest::addColumn<QByteArray>("error");
        QTest::addColumn<int>("line");

        QTest::newRow("no object") << QByteArray("{\"format\"") << QByteArray("\"format\"")
                                   << QByteArray("expected '{'") << 1;
        QTest::newRow("other format") << QByteArray("vesk-drawing") << QByteArray("vesk-journal")
                                      << QByteArray("not a drawing") << 1;
        QTest::newRow("no version") << QByteArray("\"version\":1,") << QByteArray()
                                    << QByteArray("\"version\" is missing") << 1;
        QTest::newRow("version 0")
            << QByteArray("\"version\":1,") << QByteArray("\"version\":0,")
            << QByteArray("\"version\" is not between 1 and 2147483647") << 1;
        QTest::newRow("other digest") << QByteArray("\"digest\":\"") << QByteArray("\"digest\":\"0")
                                      << QByteArray("the digest is not that of the drawing") << 1;
        QTest::newRow("other number") << QByteArray("[0.1,0.0,0.0]") << QByteArray("[0.2,0.0,0.0]")
                                      << QByteArray("the digest is not that of the drawing") << 1;
        QTest::newRow("other name") << QByteArray("零件") << QByteArray("零钱")
                                    << QByteArray("the digest is not that of the drawing") << 1;
        QTest::newRow("name no text") << QByteArray("\"零件 1\"") << QByteArray("1")
                                      << QByteArray("\"name\" is not a text") << 1;
        QTest::newRow("ids all used")
            << QByteArray("\"lastId\":12") << QByteArray("\"lastId\":2000000001")
            << QByteArray("\"lastId\" is not between 0 and 2000000000") << 1;
        QTest::newRow("layer ids all used")
            << QByteArray("\"lastLayerId\":3") << QByteArray("\"lastLayerId\":2000000001")
            << QByteArray("\"lastLayerId\" is not between 0 and 2000000000") << 1;
        QTest::newRow("negative layer id")
            << QByteArray("\"lastLayerId\":3") << QByteArray("\"lastLayerId\":-1")
            << QByteArray("\"lastLayerId\" is not between 0 and 2000000000") << 1;
        QTest::newRow("fraction") << QByteArray("\"lastId\":12") << QByteArray("\"lastId\":12.0")
                                  << QByteArray("\"lastId\" is not an integer") << 1;
        QTest::newRow("id not used yet")
            << QByteArray("\"lastId\":12") << QByteArray("\"lastId\":8")
            << QByteArray("\"id\" is not between 6 and 8") << 11;
        QTest::newRow("id twice") << QByteArray("\"id\":5") << QByteArray("\"id\":4")
                                  << QByteArray("\"id\" is not between 5 and 12") << 10;
        QTest::newRow("id 0") << QByteArray("{\"id\":1,") << QByteArray("{\"id\":0,")
                              << QByteArray("\"id\" is not between 1 and 12") << 8;
        QTest::newRow("huge id") << QByteArray("{\"id\":1,")
                                 << QByteArray("{\"id\":18446744073709551615,")
                                 << QByteArray("\"id\" is not between 1 and 12") << 8;
        QTest::newRow("id beyond the integers")
            << QByteArray("{\"id\":1,") << QByteArray("{\"id\":4294967297,")
            << QByteArray("\"id\" is not between 1 and 12") << 8;
        QTest::newRow("layer id not used yet")
            << QByteArray("\"lastLayerId\":3") << QByteArray("\"lastLayerId\":1")
            << QByteArray("\"id\" is not between 1 and 1") << 4;
        QTest::newRow("layer id twice") << QByteArray("{\"id\":2,") << QByteArray("{\"id\":0,")
                                        << QByteArray("\"id\" is not between 1 and 3") << 4;
        QTest::newRow("no base layer") << QByteArray("{\"id\":0,") << QByteArray("{\"id\":1,")
                                       << QByteArray("\"id\" is not between 0 and 0") << 3;
        QTest::newRow("layer of the same name")
            << QByteArray("\"name\":\"墙\"") << QByteArray("\"name\":\"0\"")
            << QByteArray("a layer without a name of its own") << 4;
        QTest::newRow("layer without a name")
            << QByteArray("\"name\":\"墙\"") << QByteArray("\"name\":\"\"")
            << QByteArray("a layer without a name of its own") << 4;
        QTest::newRow("layer's colour")
            << QByteArray("\"blue\"") << QByteArray("\"pink\"")
            << QByteArray("\"colour\" is not a value that this program knows") << 4;
        QTest::newRow("truth") << QByteArray("\"visible\":false") << QByteArray("\"visible\":0")
                               << QByteArray("\"visible\" is neither true nor false") << 4;
        QTest::newRow("style") << QByteArray("\"dashdot\"") << QByteArray("\"wavy\"")
                               << QByteArray("\"style\" is not a value that this program knows")
                               << 11;
        QTest::newRow("width") << QByteArray("\"2\"") << QByteArray("2")
                               << QByteArray("\"width\" is not a value that this program knows")
                               << 11;
        QTest::newRow("kind") << QByteArray("\"circle\"") << QByteArray("\"ellipse\"")
                              << QByteArray("\"type\" is not a value that this program knows") << 9;
        QTest::newRow("no such layer")
            << QByteArray("\"0.5\",\"layer\":2") << QByteArray("\"0.5\",\"layer\":1")
            << QByteArray("there is no layer 1") << 9;
        QTest::newRow("pen on no such layer")
            << QByteArray("\"0.35\",\"layer\":2") << QByteArray("\"0.35\",\"layer\":3")
            << QByteArray("there is no layer 3") << 6;
        QTest::newRow("missing number") << QByteArray("\"radius\":5.0,") << QByteArray()
                                        << QByteArray("\"radius\" is missing") << 10;
        QTest::newRow("flat point") << QByteArray("[0.1,0.0,0.0]") << QByteArray("[0.1,0.0]")
                                    << QByteArray("\"start\" is not a point") << 8;
        QTest::newRow("point in four dimensions")
            << QByteArray("[0.1,0.0,0.0]") << QByteArray("[0.1,0.0,0.0,0.0]")
            << QByteArray("\"start\" is not a point") << 8;
        QTest::newRow("point of text") << QByteArray("[0.1,0.0,0.0]") << QByteArray("[0.1,0,\"0\"]")
                                       << QByteArray("\"start\" is not a point") << 8;
        QTest::newRow("infinite") << QByteArray("[0.1,0.0,0.0]") << QByteArray("[1e999,0.0,0.0]")
                                  << QByteArray("\"start\" is not a point") << 8;
        QTest::newRow("not a number")
            << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":NaN")
            << QByteArray("\"radius\" is not a number") << 10;
        QTest::newRow("three corners")
            << QByteArray(",[0.0,6.0,0.0]]") << QByteArray("]")
            << QByteArray("\"corners\" is not a list of four points") << 11;
        QTest::newRow("five corners")
            << QByteArray(",[0.0,6.0,0.0]]") << QByteArray(",[0.0,6.0,0.0],[0.0,0.0,0.0]]")
            << QByteArray("\"corners\" is not a list of four points") << 11;
        QTest::newRow("flat corner")
            << QByteArray(",[0.0,6.0,0.0]]") << QByteArray(",[0.0,6.0]]")
            << QByteArray("\"corners\" is not a list of four points") << 11;
        QTest::newRow("not drawable")
            << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":6.0")
            << QByteArray("the shape cannot be drawn") << 10;
        QTest::newRow("duplicate key")
            << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":5.0,\"radius\":5.0")
            << QByteArray("duplicate key") << 10;
        QTest::newRow("duplicate key in another line")
            << QByteArray("\"lastLayerId\":3,") << QByteArray("\"lastLayerId\":3,\n\"name\":\"\",")
            << QByteArray("duplicate key") << 2;
        QTest::newRow("bad unknown field")
            << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":5.0,\"x\":[1,]")
            << QByteArray("\"x\" is not valid JSON") << 10;
        QTest::newRow("empty value") << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":")
                                     << QByteArray("\"radius\" is not a number") << 10;
        QTest::newRow("more text") << QByteArray("\n]}\n") << QByteArray("\n]}\n{}")
                                   << QByteArray("more text after the end") << 13;
        QTest::newRow("more text after a list") << QByteArray("\n]}\n") << QByteArray("\n] 1}\n")
                                                << QByteArray("more text after the end") << 12;
        QTest::newRow("no colon") << QByteArray("\"lastId\":12") << QByteArray("\"lastId\" 12")
                                  << QByteArray("expected ':'") << 1;
        QTest::newRow("key that is no text")
            << QByteArray("\"lastId\"") << QByteArray("\"\\lastId\"")
            << QByteArray("not valid JSON") << 1;
        QTest::newRow("zero byte")
            << QByteArray("\"radius\":5.0") << QByteArray("\"radius\":5\0 0", 12)
            << QByteArray("not valid JSON") << 10;
        QTest::newRow("bad UTF-8") << QByteArray("零件") << QByteArray("\xff")
                                   << QByteArray("\"name\" is not a text") << 1;
        QTest::newRow("no entities") << QByteArray("\"entities\":[") << QByteArray("\"things\":[")
                                     << QByteArray("\"entities\" is missing") << 1;
        QTest::newRow("layers no list")
            << QByteArray("\"layers\":[") << QByteArray("\"layers\":1,[")
            << QByteArray("expected a key") << 2;
    }

    void aBrokenFileIsRefused()
    {
        QFETCH(QByteArray, what);
        QFETCH(QByteArray, by);
        const std::string whole = DocumentFile::ToText(MakeSampleContent());
        const std::string text = Replaced(whole, what.toStdString(), by.toStdString());
        QVERIFY(text != whole);

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.outcome, Outcome::Damaged);
        QTEST(QByteArray::fromStdString(reading.error), "error");
        QTEST(reading.line, "line");
        QVERIFY(reading.content.entities.empty());
    }

    void whatIsNestedTooDeeplyIsRefused_data()
    {
        QTest::addColumn<QByteArray>("beginning");

        QTest::newRow("field") << QByteArray("{\"format\":");
        QTest::newRow("entity") << QByteArray("{\"entities\":[{\"start\":");
        QTest::newRow("objects") << QByteArray("{\"format\":{\"a\":");
    }

    void whatIsNestedTooDeeplyIsRefused()
    {
        QFETCH(QByteArray, beginning);
        const std::string text = beginning.toStdString() + std::string(20000000, '[');

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.error, std::string("nested too deeply"));
    }

    void bracketsMayBe32Deep_data()
    {
        QTest::addColumn<int>("depth");
        QTest::addColumn<bool>("isWhole");

        QTest::newRow("32") << 32 << true;
        QTest::newRow("33") << 33 << false;
    }

    void bracketsMayBe32Deep()
    {
        QFETCH(int, depth);
        // One of them is that of the drawing.
        const auto inside = static_cast<std::size_t>(depth - 1);
        const std::string field = std::string(inside, '[') + std::string(inside, ']');
        const std::string text =
            Replaced(DocumentFile::ToText({}), "\n]}", "\n],\"a\":" + field + '}');

        QTEST(IsWhole(text), "isWhole");
    }

    void noDamagedByteChangesTheDrawingUnnoticed()
    {
        const SketchContent content = WithUnknownFields();
        const std::string whole = DocumentFile::ToText(content);
        const std::string digest = DigestOf(content).ToText();
        int unnoticed = 0;

        for (std::size_t place = 0; place < whole.size(); ++place)
        {
            for (int bit = 0; bit < 8; ++bit)
            {
                std::string damaged = whole;
                damaged[place] = static_cast<char>(damaged[place] ^ (1 << bit));
                unnoticed += IsWhole(damaged) && DigestAsRead(damaged) != digest ? 1 : 0;
            }
        }

        QCOMPARE(unnoticed, 0);
    }

    void noPartOfAFileIsTakenForTheWhole()
    {
        const std::string whole = DocumentFile::ToText(WithUnknownFields());
        std::size_t shortest = whole.size();

        for (std::size_t size = whole.size(); size-- > 0;)
            shortest = IsWhole(whole.substr(0, size)) ? size : shortest;

        // Only the line break at the end may be missing.
        QCOMPARE(shortest, whole.size() - 1);
    }

private:
    static std::string Replaced(const std::string& text, const std::string& what,
                                const std::string& by)
    {
        return QByteArray::fromStdString(text)
            .replace(QByteArray::fromStdString(what), QByteArray::fromStdString(by))
            .toStdString();
    }

    static SketchContent WithUnknownFields()
    {
        SketchContent content = MakeSampleContent();
        content.unknown.document = R"({"plan":[1,{"a":"b"}]})";
        content.unknown.entities[4] = R"({"note":"x"})";
        return content;
    }

    static bool IsWhole(const std::string& text)
    {
        return DocumentFile::FromText(text).outcome == Outcome::Whole;
    }

    static std::string DigestAsRead(const std::string& text)
    {
        return DigestOf(DocumentFile::FromText(text).content).ToText();
    }
};

VESK_TESTS_WITHOUT_WINDOWS(DocumentFileDamageTest);
#include "DocumentFileDamageTest.moc"

#include "Model/Digest.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

#include <random>
#include <string>
#include <vector>

class DigestTest final : public QObject
{
    Q_OBJECT

private:
    static std::string Hex(const std::string& bytes)
    {
        return QByteArray::fromStdString(bytes).toHex().toStdString();
    }

    static Entity SomeLine() { return {1, LineShape{{0, 0, 0}, {1, 0, 0}}, {}}; }

private slots:
    void oneThingHasItsOwnHash()
    {
        Digest digest;
        QCOMPARE(digest.ToText(), std::string(64, '0'));

        digest.Add("abc");

        QCOMPARE(digest.ToText(),
                 std::string("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));
    }

    void carriesRunThroughAllWords()
    {
        Digest digest;
        for (int i = 0; i < 3; ++i)
            digest.Add("abc");

        QCOMPARE(digest.ToText(),
                 std::string("2f68443ead056fbec3c3c29b190a666b100a24eac2466fd61c32fe25d6004107"));
    }

    void whatIsTakenBackLeavesNoTrace()
    {
        Digest digest;
        digest.Add("abc");
        Digest other = digest;
        for (int i = 0; i < 100; ++i)
            other.Add(std::to_string(i));
        QVERIFY(digest != other);

        for (int i = 0; i < 100; ++i)
            other.Remove(std::to_string(i));

        QVERIFY(digest == other);
    }

    void setsAreAddedAndTakenBackAsAWhole()
    {
        Digest first;
        Digest second;
        Digest both;
        for (int i = 0; i < 100; ++i)
        {
            (i % 2 == 0 ? first : second).Add(std::to_string(i));
            both.Add(std::to_string(i));
        }
        const Digest alone = first;

        first += second;
        QCOMPARE(first.ToText(), both.ToText());

        first -= second;
        QCOMPARE(first.ToText(), alone.ToText());
    }

    void orderDoesNotMatter()
    {
        Digest one;
        Digest other;

        one.Add("a");
        one.Add("b");
        other.Add("b");
        other.Add("a");

        QVERIFY(one == other);
    }

    void theBytesOfALineAreTheseOnAnyMachine()
    {
        Pen pen;
        pen.colour = 1;
        pen.layer = 258;

        const std::string bytes =
            CanonicalBytes(Entity{7, LineShape{{1, -0.0, 0}, {-2, 0.5, 0}}, pen});

        const std::string zero = "0000000000000000";
        QCOMPARE(Hex(bytes), std::string("45" // E
                                         "07000000"
                                         "01000000") +
                                 "000000000000f03f" + zero + zero + "00000000000000c0" +
                                 "000000000000e03f" + zero + "05000000" + Hex("solid") +
                                 "03000000" + Hex("red") + "04000000" + Hex("0.25") + "02010000");
    }

    void theBytesOfALayerAndANameAreTheseOnAnyMachine()
    {
        QCOMPARE(Hex(CanonicalBytes(Layer{2, L"墙", 4, false, true})),
                 "4c0200000003000000e5a29904000000" + Hex("blue") + "0001");
        QCOMPARE(Hex(CanonicalBytesOfName(L"a")), std::string("4e0100000061"));
    }

    void everyPartCounts()
    {
        const Entity line = SomeLine();
        Entity other = line;
        std::vector<std::string> all = {CanonicalBytes(line)};

        for (int Pen::*part : {&Pen::style, &Pen::colour, &Pen::width, &Pen::layer})
        {
            other = line;
            other.pen.*part = 1;
            all.push_back(CanonicalBytes(other));
        }
        other = line;
        other.id = 2;
        all.push_back(CanonicalBytes(other));
        const vesk::Vector3d up(0, 0, 1);
        for (const Shape& shape : std::vector<Shape>{
                 LineShape{{0, 0, 1}, {1, 0, 0}}, LineShape{{0, 0, 0}, {1, 0, 1}},
                 CircleShape{{0, 0, 0}, 1, up}, CircleShape{{0, 0, 0}, 2, up},
                 CircleShape{{1, 0, 0}, 1, up}, CircleShape{{0, 0, 0}, 1, -up},
                 ArcShape{{0, 0, 0}, 1, {1, 0, 0}, {0, 1, 0}, up},
                 ArcShape{{0, 0, 0}, 1, {0, 1, 0}, {1, 0, 0}, up},
                 ArcShape{{0, 0, 0}, 1, {1, 0, 0}, {0, 1, 0}, -up}, RectangleShape()})
        {
            other = line;
            other.shape = shape;
            all.push_back(CanonicalBytes(other));
        }

        for (std::size_t i = 0; i < all.size(); ++i)
        {
            for (std::size_t k = 0; k < i; ++k)
                QVERIFY2(all[i] != all[k], qPrintable(QString("%1 and %2").arg(k).arg(i)));
        }
    }

    void aDrawingKeepsItsDigestInStepWithWhatItHolds()
    {
        Sketch sketch;
        std::mt19937 random(7);
        for (int i = 0; i < 500; ++i)
        {
            const int id = 1 + static_cast<int>(random() % 60);
            switch (random() % 8)
            {
            case 0:
                sketch.Erase(id);
                break;
            case 1:
                sketch.SetPen({id}, &Pen::colour, static_cast<int>(random() % 5));
                break;
            case 2:
                sketch.Replace({{id, CircleShape{{1, 1, 0}, 1.0 + i, {0, 0, 1}}}});
                break;
            case 3:
                sketch.AddLayer(L"layer " + std::to_wstring(i % 20));
                break;
            case 4:
                sketch.SetName(std::to_wstring(i));
                break;
            case 5:
                sketch.Undo();
                break;
            case 6:
                sketch.Redo();
                break;
            default:
                sketch.AddLine({0, 0, 0}, {1.0 + i, 0, 0});
            }
            QCOMPARE(sketch.GetDigest(), DigestOf(sketch.GetContent()).ToText());
        }
        while (sketch.CanRedo())
            sketch.Redo();
        const std::string end = sketch.GetDigest();

        while (sketch.CanUndo())
            sketch.Undo();
        QCOMPARE(sketch.GetDigest(), Sketch().GetDigest());
        while (sketch.CanRedo())
            sketch.Redo();

        QCOMPARE(sketch.GetDigest(), end);
        QVERIFY(!sketch.GetEntities().empty());
    }

    void historyDoesNotMatter()
    {
        Sketch one;
        one.AddLine({0, 0, 0}, {1, 0, 0});
        Sketch other;
        const int id = other.AddLine({0, 0, 0}, {5, 0, 0});
        other.Replace({{id, LineShape{{0, 0, 0}, {1, 0, 0}}}});
        other.AddLine({0, 0, 0}, {2, 0, 0});
        QVERIFY(one.GetDigest() != other.GetDigest());

        other.Undo();

        QCOMPARE(one.GetDigest(), other.GetDigest());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(DigestTest);
#include "DigestTest.moc"

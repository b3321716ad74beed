// SPDX-License-Identifier: GPL-3.0-or-later

#include "DxfWriter.h"

#include "DxfReader.h"

#include "Model/ShapeMeasure.h"
#include "Support/TestValues.h"

#include <cmath>
#include <random>
#include <sstream>

using vesk::Vector3d;

namespace
{

std::string ToText(const SketchContent& content)
{
    std::ostringstream stream;
    WriteDxf(content, stream);
    return stream.str();
}

DxfReading WrittenAndRead(const SketchContent& content)
{
    return ReadDxf(ToText(content), {});
}

SketchContent ContentWith(const std::vector<Shape>& shapes)
{
    SketchContent content;
    for (const Shape& shape : shapes)
        content.entities.push_back({++content.lastId, shape, Pen()});
    return content;
}

/// The greatest distance between two shapes of one kind, at their defining points.
double DistanceBetween(const Shape& a, const Shape& b)
{
    if (a.index() != b.index())
        return HUGE_VAL;
    if (const auto* pLine = std::get_if<LineShape>(&a))
    {
        const auto& other = std::get<LineShape>(b);
        return (pLine->start - other.start).norm() + (pLine->end - other.end).norm();
    }
    if (const auto* pCircle = std::get_if<CircleShape>(&a))
    {
        const auto& other = std::get<CircleShape>(b);
        return (pCircle->centre - other.centre).norm() + std::abs(pCircle->radius - other.radius);
    }
    if (const auto* pArc = std::get_if<ArcShape>(&a))
    {
        const auto& other = std::get<ArcShape>(b);
        return (pArc->centre - other.centre).norm() + std::abs(pArc->radius - other.radius) +
               (pArc->start - other.start).norm() + (pArc->end - other.end).norm();
    }
    double distance = 0.0;
    for (std::size_t i = 0; i < 4; ++i)
        distance +=
            (std::get<RectangleShape>(a).corners[i] - std::get<RectangleShape>(b).corners[i])
                .norm();
    return distance;
}

/// Shapes within 1000 mm of the origin.
std::vector<Shape> RandomShapes(unsigned seed, int count)
{
    std::mt19937_64 random(seed);
    std::uniform_real_distribution<double> place(-1000.0, 1000.0);
    std::uniform_real_distribution<double> size(0.01, 500.0);
    std::uniform_real_distribution<double> angle(0.0, 6.28);
    const auto point = [&] { return Vector3d(place(random), place(random), 0.0); };
    const auto direction = [&] {
        const double turn = angle(random);
        return Vector3d(std::cos(turn), std::sin(turn), 0.0);
    };
    std::vector<Shape> shapes;
    for (int i = 0; i < count; ++i)
    {
        const Vector3d centre = point();
        const double radius = size(random);
        shapes.push_back(LineShape{centre, point()});
        shapes.push_back(CircleShape{centre, radius});
        shapes.push_back(
            ArcShape{centre, radius, centre + radius * direction(), centre + radius * direction()});
        const Vector3d along = direction();
        const Vector3d across = Vector3d(-along.y(), along.x(), 0.0) * size(random);
        shapes.push_back(RectangleShape{
            {centre, centre + radius * along, centre + radius * along + across, centre + across}});
    }
    return shapes;
}

}

class DxfWriterTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenIsReadBackExactly()
    {
        const SketchContent content = ContentWith(RandomShapes(11, 500));

        const DxfReading reading = WrittenAndRead(content);

        QCOMPARE(reading.outcome, DxfReading::Outcome::Done);
        QCOMPARE(reading.content.entities.size(), content.entities.size());
        double greatest = 0.0;
        for (std::size_t i = 0; i < content.entities.size(); ++i)
            greatest = std::max(greatest, DistanceBetween(content.entities[i].shape,
                                                          reading.content.entities[i].shape));
        QVERIFY2(greatest < 1e-9, qPrintable(QString::number(greatest)));
    }

    void numbersKeepAllTheirDigits()
    {
        const LineShape line{{0.1, 1.0 / 3.0, 0}, {1e8 + 0.015625, -1e-5, 0}};

        const DxfReading reading = WrittenAndRead(ContentWith({line}));

        const auto& found = std::get<LineShape>(reading.content.entities.at(0).shape);
        QCOMPARE_EXACTLY(found.start.x(), 0.1);
        QCOMPARE_EXACTLY(found.start.y(), 1.0 / 3.0);
        QCOMPARE_EXACTLY(found.end.x(), 1e8 + 0.015625);
        QCOMPARE_EXACTLY(found.end.y(), -1e-5);
    }

    void wholeNumbersHaveAPointAndTheFileAnEnd()
    {
        const std::string text = ToText(ContentWith({LineShape{{1, 2, 0}, {3, 4, 0}}}));

        QVERIFY(text.find("\n 10\n1.0\n") != std::string::npos);
        QVERIFY(QByteArray::fromStdString(text).endsWith("\nEOF\n"));
    }

    void clockwiseArcsAreTurnedRound()
    {
        const ArcShape clockwise{{1, 2, 0}, 5, {6, 2, 0}, {1, 7, 0}, -Vector3d::UnitZ()};

        const DxfReading reading = WrittenAndRead(ContentWith({clockwise}));

        const auto& arc = std::get<ArcShape>(reading.content.entities.at(0).shape);
        QCOMPARE(arc.start, Vector3d(1, 7, 0));
        QCOMPARE(arc.end, Vector3d(6, 2, 0));
        QCOMPARE(arc.normal, Vector3d(0, 0, 1));
        QCOMPARE(BoundsOf(Shape(arc)).low, BoundsOf(Shape(clockwise)).low);
    }

    void fullArcIsACircle()
    {
        const ArcShape full{{1, 2, 0}, 5, {6, 2, 0}, {6, 2, 0}};

        const DxfReading reading = WrittenAndRead(ContentWith({full}));

        const auto& circle = std::get<CircleShape>(reading.content.entities.at(0).shape);
        QCOMPARE(circle.centre, full.centre);
        QCOMPARE(circle.radius, 5.0);
    }

    void everyPenIsReadBack_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<int>("colour");
        QTest::addColumn<int>("width");
        for (int i = 0; i < static_cast<int>(LineWidths().size()); ++i)
            QTest::addRow("%d", i) << i % static_cast<int>(LineStyles().size())
                                   << i % static_cast<int>(LineColours().size()) << i;
    }

    void everyPenIsReadBack()
    {
        QFETCH(int, style);
        QFETCH(int, colour);
        QFETCH(int, width);
        SketchContent content = ContentWith({LineShape{{0, 0, 0}, {1, 0, 0}}});
        content.entities[0].pen = {style, colour, width, 0};

        const DxfReading reading = WrittenAndRead(content);

        QVERIFY(reading.content.entities.at(0).pen == content.entities[0].pen);
    }

    void layersAreReadBack()
    {
        SketchContent content = ContentWith({LineShape{{0, 0, 0}, {1, 0, 0}}});
        content.layers = {{0, L"0", 3, true, false},
                          {1, L"轴线 & \U0001F600", 1, false, false},
                          {2, L"locked", 0, true, true}};
        content.entities[0].pen.layer = 1;

        const DxfReading reading = WrittenAndRead(content);

        QVERIFY(reading.content.layers == content.layers);
        QCOMPARE(reading.content.entities.at(0).pen.layer, 1);
        QCOMPARE(reading.content.lastLayerId, 2);
    }

    void namesThatTheFormatForbidsAreReplacedAndStayDifferent()
    {
        SketchContent content;
        content.layers = {
            {0, L"base", 0, true, false}, {4, L"a/b", 1, true, false}, {7, L"A:b", 2, true, false}};

        const DxfReading reading = WrittenAndRead(content);

        const std::vector<Layer>& layers = reading.content.layers;
        QCOMPARE(layers.size(), std::size_t(4));
        QVERIFY(layers[0].name == L"0");
        QVERIFY(layers[1].name == L"base");
        QVERIFY(layers[2].name == L"a_b");
        QVERIFY(layers[3].name == L"A_b_2");
    }

    void theUnitIsWritten()
    {
        QVERIFY(ToText({}).find("$INSUNITS\n 70\n4\n") != std::string::npos);
    }

    void onlyPlainCharactersAreWritten()
    {
        SketchContent content;
        content.layers.push_back({1, L"轴线", 0, true, false});
        content.layers.push_back({2, L"\u00e9", 0, true, false});

        const std::string text = ToText(content);

        QVERIFY(text.find("\\U+8F74\\U+7EBF") != std::string::npos);
        QVERIFY(std::all_of(text.begin(), text.end(), [](char byte) { return byte > 0; }));
    }
};

VESK_TESTS_WITHOUT_APPLICATION(DxfWriterTest);
#include "DxfWriterTest.moc"

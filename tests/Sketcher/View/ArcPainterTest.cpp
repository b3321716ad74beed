#include "View/ArcPainter.h"

#include "Support/TestValues.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace
{

const double s_turn = 2.0 * std::acos(-1.0);

QImage Paint(const ScreenArc& arc, Qt::PenStyle style = Qt::SolidLine)
{
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QPen pen(Qt::black, 1.0, style, Qt::FlatCap);
    if (style == Qt::CustomDashLine)
        pen.setDashPattern({4.0, 2.0});
    PaintArc(painter, pen, arc, QRectF(0, 0, 100, 100));
    return image;
}

/// The arc of the row.
ScreenArc FetchArc()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(double, radius);
    QFETCH(double, start);
    QFETCH(double, sweep);
    return {{x, y}, radius, start, sweep};
}

bool IsInked(const QImage& image, int x, int y)
{
    return image.pixelColor(x, y) != QColor(Qt::white);
}

int CountInked(const QImage& image)
{
    int count = 0;
    for (int i = 0; i < image.width() * image.height(); ++i)
        count += IsInked(image, i % image.width(), i / image.width()) ? 1 : 0;
    return count;
}

}

class ArcPainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void theWholeOfAnArcInsideIsLeft()
    {
        const std::vector<ArcPart> parts =
            ClipArc({{50, 50}, 20, 1.0, -2.0}, QRectF(0, 0, 100, 100));

        QCOMPARE(parts.size(), std::size_t{1});
        QCOMPARE(parts[0].from, 0.0);
        QCOMPARE(parts[0].to, 2.0);
    }

    void anArcThatBeginsOnASideIsOnePart()
    {
        const double half = s_turn / 2.0;

        const std::vector<ArcPart> parts =
            ClipArc({{50, 100}, 30, 0, half}, QRectF(0, 0, 100, 100));

        QCOMPARE(parts.size(), std::size_t{1});
        QCOMPARE(parts[0].from, 0.0);
        QCOMPARE(parts[0].to, half);
    }

    void anglesAreCountedFromTheStartInTheDirectionOfTheSweep()
    {
        const auto isNear = [](const QPointF& a, const QPointF& b) {
            return QLineF(a, b).length() <= 1e-9;
        };
        const double quarter = s_turn / 4.0;
        const ScreenArc up{{30, 40}, 10, 0, 0.5};
        const ScreenArc down{{30, 40}, 10, quarter, -1.0};

        QVERIFY(isNear(up.PointAt(0.0), {40, 40}));
        QVERIFY(isNear(up.PointAt(quarter), {30, 30}));
        QVERIFY(isNear(down.PointAt(0.0), {30, 30}));
        QVERIFY(isNear(down.PointAt(quarter), {40, 40}));
    }

    void whatIsInsideIsExactlyTheParts_data()
    {
        QTest::addColumn<double>("x");
        QTest::addColumn<double>("y");
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("start");
        QTest::addColumn<double>("sweep");

        QTest::newRow("circle over all sides") << 50.0 << 50.0 << 60.0 << 0.0 << s_turn;
        QTest::newRow("clockwise") << 50.0 << 50.0 << 60.0 << 0.3 << -s_turn;
        QTest::newRow("over the left side") << 10.0 << 50.0 << 30.0 << -0.5 << 4.0;
        QTest::newRow("in a corner") << 100.0 << 100.0 << 30.0 << 2.0 << 6.0;
        QTest::newRow("around it") << 50.0 << 50.0 << 90.0 << 0.0 << s_turn;
        QTest::newRow("beside it") << 200.0 << 50.0 << 90.0 << 0.0 << s_turn;
        QTest::newRow("short") << 80.0 << 50.0 << 30.0 << 0.6 << 0.5;
        QTest::newRow("short, clockwise") << 80.0 << 50.0 << 30.0 << 1.1 << -0.5;
        QTest::newRow("far centre") << 50.0 << -9900.0 << 9950.0 << -2.0 << 1.5;
    }

    void whatIsInsideIsExactlyTheParts()
    {
        const ScreenArc arc = FetchArc();
        const QRectF rect(0, 0, 100, 100);
        constexpr int Steps = 20000;

        const std::vector<ArcPart> parts = ClipArc(arc, rect);

        for (int i = 0; i <= Steps; ++i)
        {
            const double angle = std::abs(arc.sweep) * i / Steps;
            const QPointF point = arc.PointAt(angle);
            const bool isOnSide = rect.adjusted(-0.01, -0.01, 0.01, 0.01).contains(point) !=
                                  rect.adjusted(0.01, 0.01, -0.01, -0.01).contains(point);
            const bool isInPart =
                std::any_of(parts.begin(), parts.end(), [angle](const ArcPart& part) {
                    return angle >= part.from && angle <= part.to;
                });
            QVERIFY(isOnSide || isInPart == rect.contains(point));
        }
    }

    void whatIsInsideIsPaintedAndNothingElse_data() { whatIsInsideIsExactlyTheParts_data(); }

    void whatIsInsideIsPaintedAndNothingElse()
    {
        const ScreenArc arc = FetchArc();
        constexpr int Steps = 20000;

        QImage image = Paint(arc);

        QImage missing = image;
        for (int i = 0; i <= Steps; ++i)
        {
            const QPointF point = arc.PointAt(std::abs(arc.sweep) * i / Steps);
            const QRect around(qFloor(point.x()) - 1, qFloor(point.y()) - 1, 3, 3);
            if (!image.rect().contains(around))
                continue;
            QVERIFY2(CountInked(image.copy(around)) > 0, qPrintable(QString::number(i)));
            QPainter(&missing).fillRect(around, Qt::white);
        }
        QCOMPARE(CountInked(missing.copy(2, 2, 96, 96)), 0);
    }

    void aCircleHasNoEnds_data()
    {
        QTest::addColumn<double>("start");

        QTest::newRow("to the right") << 0.0;
        QTest::newRow("upwards") << s_turn / 4.0;
        for (const double start : {0.3, 1.0, 2.5, -2.0, 4.4})
            QTest::addRow("at %g", start) << start;
    }

    /// Square caps would project beyond the outer edge.
    void aCircleHasNoEnds()
    {
        QFETCH(double, start);
        const QPointF centre(50, 50);
        QImage image(100, 100, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);

        PaintArc(painter, QPen(Qt::black, 11.0, Qt::SolidLine, Qt::SquareCap),
                 {centre, 6, start, s_turn}, image.rect());

        QVERIFY(CountInked(image) > 300);
        for (int i = 0; i < 100 * 100; ++i)
        {
            const QPointF pixel(i % 100 + 0.5, i / 100 + 0.5);
            QVERIFY(!IsInked(image, i % 100, i / 100) || QLineF(centre, pixel).length() < 12.0);
        }
    }

    void chordsStayWithinATwentiethOfAPixel()
    {
        constexpr double Magnified = 40.0;
        constexpr double Radius = 300.0;
        QImage image(800, 800, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(Magnified, Magnified);
        QPen pen(Qt::black, 1.0);
        pen.setCosmetic(true);

        PaintArc(painter, pen, {{10.0 - Radius, 10.0}, Radius, s_turn / 2, s_turn},
                 QRectF(0, 0, 20, 20));

        double farthest = 0.0;
        for (int i = 0; i < 800 * 800; ++i)
        {
            if (!IsInked(image, i % 800, i / 800))
                continue;
            const QPointF pixel((i % 800 + 0.5) / Magnified, (i / 800 + 0.5) / Magnified);
            const double distance = QLineF({10.0 - Radius, 10.0}, pixel).length();
            farthest = std::max(farthest, std::abs(distance - Radius));
        }
        QVERIFY(farthest > 0.0);
        QVERIFY(farthest <= 0.05 + 1.0 / Magnified);
    }

    void aCircleIsRound()
    {
        const QImage image = Paint({{50.5, 50.5}, 40, 0, s_turn});

        for (int degrees = 0; degrees < 360; ++degrees)
        {
            const double angle = degrees * s_turn / 360.0;
            const QPointF point = ScreenArc{{50.5, 50.5}, 40, 0, s_turn}.PointAt(angle);
            const QRect around(qFloor(point.x()) - 1, qFloor(point.y()) - 1, 3, 3);
            QVERIFY2(CountInked(image.copy(around)) > 0, qPrintable(QString::number(degrees)));
        }
        QVERIFY(!IsInked(image, 50, 50));
    }

    void anArcRunsTheWayOfItsSweep()
    {
        const double quarter = s_turn / 4.0;
        const QImage up = Paint({{50.5, 50.5}, 40, 0, quarter});
        const QImage down = Paint({{50.5, 50.5}, 40, 0, -quarter});

        QVERIFY(CountInked(up.copy(50, 0, 50, 50)) > 40);
        QCOMPARE(CountInked(up.copy(0, 52, 100, 48)), 0);
        QVERIFY(CountInked(down.copy(50, 51, 50, 49)) > 40);
        QCOMPARE(CountInked(down.copy(0, 0, 100, 49)), 0);
    }

    void anArcBeginsAtItsStart()
    {
        const QImage down = Paint({{50.5 - 190, 50.5}, 190, 0, -s_turn / 4.0});
        const QImage up = Paint({{50.5 - 190, 50.5}, 190, 0, s_turn / 4.0});

        QCOMPARE(CountInked(down.copy(0, 0, 100, 50)), 0);
        QVERIFY(CountInked(down.copy(0, 51, 100, 49)) >= 49);
        QCOMPARE(CountInked(up.copy(0, 51, 100, 49)), 0);
        QVERIFY(CountInked(up.copy(0, 0, 100, 50)) >= 49);
    }

    void aSmallCircleIsThePaintersOwn_data()
    {
        QTest::addColumn<double>("radius");

        QTest::newRow("small") << 40.0;
        QTest::newRow("greatest") << 200.0;
    }

    void aSmallCircleIsThePaintersOwn()
    {
        QFETCH(double, radius);
        const QPen pen(Qt::black, 1.0, Qt::SolidLine, Qt::FlatCap);
        QImage expected(420, 420, QImage::Format_RGB32);
        expected.fill(Qt::white);
        QImage image = expected;
        QPainter ownPainter(&expected);
        ownPainter.setPen(pen);
        ownPainter.drawEllipse(QPointF(210.5, 210.5), radius, radius);

        QPainter painter(&image);
        PaintArc(painter, pen, {{210.5, 210.5}, radius, 0, s_turn}, image.rect());

        QCOMPARE(image, expected);
    }

    void ofAHugeCircleTheNearPartIsStraight()
    {
        const QImage image = Paint({{50.5 - 1e9, 50.5}, 1e9, 0, s_turn});

        QCOMPARE(CountInked(image), 100);
        QVERIFY(IsInked(image, 50, 0));
        QVERIFY(IsInked(image, 50, 99));
    }

    void aHugeArcIsDashedWhereASmallerOneIs()
    {
        // A circle that begins 24 dashes and gaps of 4 + 2 pixels before the picture.
        constexpr double Radius = 1e6;
        const auto arcFrom = [](double length) {
            return ScreenArc{{50.5 - Radius, 100.0}, Radius, -length / Radius, s_turn / 4.0};
        };

        const QImage image = Paint(arcFrom(0), Qt::CustomDashLine);

        QVERIFY(CountInked(image) > 50);
        QVERIFY(CountInked(image) < 80);
        // The first dash of four pixels begins at the lower edge, the second after a gap of two.
        QCOMPARE(CountInked(image.copy(0, 96, 100, 4)), 4);
        QCOMPARE(CountInked(image.copy(0, 94, 100, 2)), 0);
        QCOMPARE(CountInked(image.copy(0, 90, 100, 4)), 4);
        QCOMPARE(Paint(arcFrom(144), Qt::CustomDashLine), image);
        QVERIFY(Paint(arcFrom(147), Qt::CustomDashLine) != image);
    }
};

VESK_TESTS(ArcPainterTest);
#include "ArcPainterTest.moc"

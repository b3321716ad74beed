#include "HostUi/ProvisionalPainter.h"

#include "HostUi/Contrast.h"

#include "Support/HostValues.h"
#include "Support/TestValues.h"
#include "View/ModelView.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <cmath>
#include <initializer_list>

using namespace vesk;

namespace
{

const double s_turn = 2.0 * std::acos(-1.0);

/// The topmost painted pixel of a column; -1 if there is none.
int TopOf(const QImage& image, int x)
{
    for (int y = 0; y < image.height(); ++y)
    {
        if (image.pixelColor(x, y).lightness() < 200)
            return y;
    }
    return -1;
}

}

Q_DECLARE_METATYPE(vesk::GraphicsRole)

/// Provisional graphics, painted over the model.
class ProvisionalPainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void anArcIsRoundHoweverLargeItIs_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("sweep");
        QTest::addColumn<double>("pixel");

        QTest::newRow("small") << 60.0 << s_turn << 1.0;
        QTest::newRow("large") << 1000.0 << s_turn << 1.0;
        QTest::newRow("very large") << 30000.0 << s_turn << 1.0;
        QTest::newRow("part of a huge one") << 1e6 << -0.001 << 1.0;
        QTest::newRow("in a near view") << 30000.0 << s_turn << 0.01;
    }

    /// The arc touches, from below, the line 50 pixels below the top, in the middle of the view.
    /// Its radius is in pixels.
    void anArcIsRoundHoweverLargeItIs()
    {
        QFETCH(double, radius);
        QFETCH(double, sweep);
        QFETCH(double, pixel);
        const double before = sweep < 0.0 ? sweep / 2.0 : 0.025;
        const double start = s_turn / 4.0 - before;
        const Vector3d xAxis(std::cos(start), std::sin(start), 0.0);
        const Vector3d yAxis(-xAxis.y(), xAxis.x(), 0.0);
        const auto opArc = IGraphicsArc::Create({0.0, (50.0 - radius) * pixel, 0.0}, xAxis, yAxis,
                                                radius * pixel, sweep, GraphicsRole::Dimension);

        const QImage image = Paint(*opArc, Qt::white, Qt::white, pixel).image;

        for (int x = 60; x <= 140; x += 5)
        {
            const double across = x + 0.5 - 100.0;
            const double expected = 50.0 + radius - std::sqrt(radius * radius - across * across);
            QVERIFY2(std::abs(TopOf(image, x) + 0.5 - expected) <= 1.3,
                     qPrintable(QString::number(x)));
        }
    }

    void eachRoleHasItsPen_data()
    {
        QTest::addColumn<GraphicsRole>("role");
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("colour");
        QTest::addColumn<double>("width");
        const QColor light(128, 128, 128);
        const QColor dark(127, 127, 127);

        const auto add = [&](const char* name, GraphicsRole role, const char* onLight,
                             const char* onDark, double width) {
            QTest::addRow("%s, light", name) << role << light << QColor(onLight) << width;
            QTest::addRow("%s, dark", name) << role << dark << QColor(onDark) << width;
        };
        add("rubber band", GraphicsRole::RubberBand, "#1f6fc5", "#6cb6ff", 1.6);
        add("dimension", GraphicsRole::Dimension, "#6b7580", "#9aa5b1", 1.0);
        add("active", GraphicsRole::ActiveDimension, "#1f6fc5", "#6cb6ff", 1.0);
        add("locked", GraphicsRole::LockedDimension, "#b86e00", "#ffc14d", 1.4);
    }

    void eachRoleHasItsPen()
    {
        QFETCH(GraphicsRole, role);
        QFETCH(QColor, base);
        QFETCH(QColor, colour);
        QFETCH(double, width);
        QPalette palette(Qt::white);
        palette.setColor(QPalette::Base, base);
        colour = Legible(colour, palette);
        const auto opLine = IGraphicsLine::Create({-50, 0, 0}, {50, 0, 0}, role);
        const auto opArc = IGraphicsArc::Create({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 50.0, 1.0, role);
        const auto opText = IGraphicsText::Create({0, 0, 0}, L"8", role);

        for (const IGraphicsNode* pNode :
             std::initializer_list<const IGraphicsNode*>{opLine.Get(), opArc.Get()})
        {
            const Painted painted = Paint(*pNode, base);
            QCOMPARE(painted.pen.color(), colour);
            QCOMPARE(painted.pen.widthF(), width);
            QVERIFY(HasColour(painted.image, colour));
        }
        QCOMPARE(Paint(*opText, base).pen.color(), colour);
    }

    void aLineGoesFromEndToEnd()
    {
        const auto opLine =
            IGraphicsLine::Create({-50, -20, 0}, {50, -20, 0}, GraphicsRole::Dimension);

        const QImage image = Paint(*opLine).image;

        QCOMPARE(TopOf(image, 48), -1);
        QCOMPARE(TopOf(image, 52), 120);
        QCOMPARE(TopOf(image, 148), 120);
        QCOMPARE(TopOf(image, 152), -1);
    }

    void anArcTurnsFromItsXAxisToItsYAxis()
    {
        const auto opArc = IGraphicsArc::Create({0, 0, 0}, {0, 1, 0}, {-1, 0, 0}, 60.0,
                                                s_turn / 4.0, GraphicsRole::Dimension);

        const QImage image = Paint(*opArc).image;

        QVERIFY(std::abs(TopOf(image, 99) - 40) <= 1);
        QVERIFY(std::abs(TopOf(image, 58) - 58) <= 1);
        QVERIFY(TopOf(image, 41) >= 80 && TopOf(image, 41) <= 100);
        QCOMPARE(TopOf(image, 103), -1);
    }

    void aTextStandsOnTheBackgroundOfTheView()
    {
        const auto opText = IGraphicsText::Create({20, 10, 0}, L"8888", GraphicsRole::Dimension);

        const QImage image = Paint(*opText, Qt::white, Qt::red).image;

        QRect covered;
        for (int y = 0; y < image.height(); ++y)
        {
            for (int x = 0; x < image.width(); ++x)
            {
                if (image.pixelColor(x, y) != QColor(Qt::red))
                    covered |= QRect(x, y, 1, 1);
            }
        }
        const QSize text = QFontMetrics(QFont()).boundingRect("8888").size();
        QVERIFY(std::abs(covered.width() - text.width() - 6) <= 1);
        QVERIFY(std::abs(covered.height() - text.height() - 2) <= 1);
        QVERIFY((covered.center() - QPoint(120, 90)).manhattanLength() <= 2);
        QCOMPARE(image.pixelColor(covered.topLeft() + QPoint(1, 1)), QColor(Qt::white));
    }

private:
    struct Painted
    {
        QImage image;
        QPen pen;
    };

    /// Paints on a view of 200 x 200 pixels.
    static Painted Paint(const IGraphicsNode& node, const QColor& base = Qt::white,
                         const QColor& below = Qt::white, double pixel = 1.0)
    {
        ModelView modelView;
        modelView.SetSize(200, 200);
        modelView.SetWorldPerPixel(pixel);
        QImage image(200, 200, QImage::Format_RGB32);
        image.fill(below);
        QPainter painter(&image);
        painter.setFont(QFont());
        QPalette palette(Qt::white);
        palette.setColor(QPalette::Base, base);
        ProvisionalPainter provisional(painter, modelView, palette);
        node.Accept(provisional);
        return {image, painter.pen()};
    }

    static bool HasColour(const QImage& image, const QColor& colour)
    {
        for (int y = 0; y < image.height(); ++y)
        {
            for (int x = 0; x < image.width(); ++x)
            {
                if (image.pixelColor(x, y) == colour)
                    return true;
            }
        }
        return false;
    }
};

VESK_TESTS(ProvisionalPainterTest);
#include "ProvisionalPainterTest.moc"

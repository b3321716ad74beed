#include "ProvisionalPainter.h"

#include "Support/TestValues.h"
#include "View/ModelView.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <cmath>

using namespace vesk;

namespace
{

const double s_turn = 2.0 * std::acos(-1.0);

/// The topmost pixel of a column that is painted; -1 when there is none.
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

class ProvisionalPainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void anArcIsRoundHoweverLargeItIs_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<double>("sweep");

        QTest::newRow("small") << 60.0 << s_turn;
        QTest::newRow("large") << 1000.0 << s_turn;
        QTest::newRow("very large") << 30000.0 << s_turn;
        QTest::newRow("part of a huge one") << 1e6 << -0.001;
    }

    /// The arc touches the line 50 pixels below the top from below, in the middle of the view.
    void anArcIsRoundHoweverLargeItIs()
    {
        QFETCH(double, radius);
        QFETCH(double, sweep);
        const double before = sweep < 0.0 ? sweep / 2.0 : 0.025;
        const double start = s_turn / 4.0 - before;
        const Vector3d xAxis(std::cos(start), std::sin(start), 0.0);
        const Vector3d yAxis(-xAxis.y(), xAxis.x(), 0.0);
        const auto opArc = IGraphicsArc::Create({0.0, 50.0 - radius, 0.0}, xAxis, yAxis, radius,
                                                sweep, GraphicsRole::Dimension);

        const QImage image = Paint(*opArc);

        for (int x = 60; x <= 140; x += 5)
        {
            const double across = x + 0.5 - 100.0;
            const double expected = 50.0 + radius - std::sqrt(radius * radius - across * across);
            QVERIFY2(std::abs(TopOf(image, x) + 0.5 - expected) <= 1.3,
                     qPrintable(QString::number(x)));
        }
    }

private:
    /// A view of 200 x 200 pixels, one unit each.
    static QImage Paint(const IGraphicsNode& node)
    {
        ModelView modelView;
        modelView.SetSize(200, 200);
        QImage image(200, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        const QPalette palette(Qt::white);
        ProvisionalPainter provisional(painter, modelView, palette);
        node.Accept(provisional);
        return image;
    }
};

QTEST_MAIN(ProvisionalPainterTest)
#include "ProvisionalPainterTest.moc"

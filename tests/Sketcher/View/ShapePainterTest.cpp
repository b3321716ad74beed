#include "View/ShapePainter.h"

#include "Model/ShapeMeasure.h"

#include "Support/TestValues.h"
#include "View/ModelView.h"

#include <QImage>
#include <QPainter>
#include <QPen>

using namespace vesk;

Q_DECLARE_METATYPE(Shape)

namespace
{

constexpr int Size = 200;

/// A view of 200 x 200 pixels, one unit each, about (0, 0).
ModelView MakeView()
{
    ModelView view;
    view.SetSize(Size, Size);
    return view;
}

QImage Paint(const Shape& shape, const ModelView& view)
{
    QImage image(Size, Size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    PaintShape(painter, QPen(Qt::black, 2.0), shape, view, QRectF(0, 0, Size, Size));
    return image;
}

}

class ShapePainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyPixelOfTheOutlineAndNoOtherIsPainted_data()
    {
        QTest::addColumn<Shape>("shape");

        const Vector3d up(0, 0, 1);
        QTest::newRow("line") << Shape(LineShape{{-70, 20, 0}, {50, -40, 0}});
        QTest::newRow("circle") << Shape(CircleShape{{10, 20, 0}, 60, up});
        QTest::newRow("arc") << Shape(ArcShape{{0, 0, 0}, 50, {50, 0, 0}, {0, 50, 0}, up});
        QTest::newRow("clockwise arc")
            << Shape(ArcShape{{0, 0, 0}, 50, {50, 0, 0}, {0, 50, 0}, -up});
        QTest::newRow("circle over the edge") << Shape(CircleShape{{70, 20, 0}, 60, up});
        QTest::newRow("large circle") << Shape(CircleShape{{300, 0, 0}, 330, up});
        QTest::newRow("huge circle") << Shape(CircleShape{{1e9 - 20, 0, 0}, 1e9, up});
        QTest::newRow("rectangle")
            << Shape(RectangleShape{{Vector3d(-60, -20, 0), Vector3d(40, -20, 0),
                                     Vector3d(40, 70, 0), Vector3d(-60, 70, 0)}});
    }

    void everyPixelOfTheOutlineAndNoOtherIsPainted()
    {
        QFETCH(Shape, shape);
        const ModelView view = MakeView();

        const QImage image = Paint(shape, view);

        int onOutline = 0;
        for (int i = 0; i < Size * Size; ++i)
        {
            const QPoint pixel(i % Size, i / Size);
            const double distance =
                DistanceTo(shape, view.ScreenToWorld(pixel.x() + 0.5, pixel.y() + 0.5));
            const bool isInked = image.pixelColor(pixel) != QColor(Qt::white);
            onOutline += distance < 0.6 ? 1 : 0;
            QVERIFY(distance >= 0.6 || isInked);
            QVERIFY(distance <= 2.2 || !isInked);
        }
        QVERIFY(onOutline > 40);
    }
};

VESK_TESTS(ShapePainterTest);
#include "ShapePainterTest.moc"

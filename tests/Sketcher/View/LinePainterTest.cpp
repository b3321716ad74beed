#include "View/LinePainter.h"

#include "Support/TestValues.h"

#include <QImage>
#include <QPainter>
#include <QPen>

class LinePainterTest final : public QObject
{
    Q_OBJECT

private slots:
    void onlyWhatIsInsideIsLeft_data()
    {
        QTest::addColumn<QLineF>("line");
        QTest::addColumn<QLineF>("inside");

        QTest::newRow("inside") << QLineF(1, 1, 9, 5) << QLineF(1, 1, 9, 5);
        QTest::newRow("across") << QLineF(-10, 5, 20, 5) << QLineF(0, 5, 10, 5);
        QTest::newRow("in from below") << QLineF(4, 30, 4, 2) << QLineF(4, 10, 4, 2);
        QTest::newRow("diagonal") << QLineF(-5, -5, 5, 5) << QLineF(0, 0, 5, 5);
    }

    void onlyWhatIsInsideIsLeft()
    {
        QFETCH(QLineF, line);
        QFETCH(QLineF, inside);

        const std::optional<QLineF> clipped = ClipLine(line, QRectF(0, 0, 10, 10));

        QVERIFY(clipped.has_value());
        QCOMPARE(*clipped, inside);
    }

    void whatPassesByIsGone_data()
    {
        QTest::addColumn<QLineF>("line");

        QTest::newRow("above") << QLineF(0, -1, 10, -1);
        QTest::newRow("right") << QLineF(11, 0, 11, 10);
        QTest::newRow("past the corner") << QLineF(-6, 4, 4, -6);
        QTest::newRow("short of it") << QLineF(-9, 5, -1, 5);
    }

    void whatPassesByIsGone()
    {
        QFETCH(QLineF, line);

        QVERIFY(!ClipLine(line, QRectF(0, 0, 10, 10)).has_value());
    }

    void aLongLineIsDashedWhereAShortOneIs()
    {
        // 24 dashes and gaps of 4 + 2 pixels end where the picture begins.
        QCOMPARE(Paint(QLineF(-144, 5, 200, 5)), Paint(QLineF(0, 5, 200, 5)));
        QVERIFY(Paint(QLineF(-147, 5, 200, 5)) != Paint(QLineF(0, 5, 200, 5)));
    }

    void anEndlessLineIsStillDashed()
    {
        const QImage image = Paint(QLineF(-4e8, 5, 4e8, 5));

        QVERIFY(CountInked(image) > 20);
        QVERIFY(CountInked(image) < 80);
    }

private:
    static QImage Paint(const QLineF& line)
    {
        QImage image(100, 10, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        QPen pen(Qt::black, 1.0, Qt::CustomDashLine, Qt::FlatCap);
        pen.setDashPattern({4.0, 2.0});
        PaintLine(painter, pen, line, QRectF(0, 0, 100, 10));
        return image;
    }

    static int CountInked(const QImage& image)
    {
        int count = 0;
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, 5) != QColor(Qt::white) ? 1 : 0;
        return count;
    }
};

VESK_TESTS(LinePainterTest);
#include "LinePainterTest.moc"

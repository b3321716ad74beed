#include "View/SketchViewFixture.h"

#include "Support/TestValues.h"

#include <cmath>

using namespace vesk;
using vesk::test::SketchViewFixture;

namespace
{

/// Paper and ink; all their colour components differ.
const QColor s_paper(250, 240, 220);
const QColor s_ink(10, 30, 60);

/// A mix of paper and ink.
QColor Shade(double share)
{
    const auto mix = [share](int from, int to) { return qRound(from + (to - from) * share); };
    return {mix(s_paper.red(), s_ink.red()), mix(s_paper.green(), s_ink.green()),
            mix(s_paper.blue(), s_ink.blue())};
}

/// Apart from rounding.
bool IsLike(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) <= 1 && std::abs(qGreen(a) - qGreen(b)) <= 1 &&
           std::abs(qBlue(a) - qBlue(b)) <= 1;
}

QByteArray Name(const QPoint& pixel, QRgb colour)
{
    return QStringLiteral("%1,%2: %3")
        .arg(pixel.x())
        .arg(pixel.y())
        .arg(QColor(colour).name())
        .toUtf8();
}

/// Whether a line of the grid runs through a pixel.
bool IsOn(const QPoint& fromOrigin, int step)
{
    return fromOrigin.x() % step == 0 || fromOrigin.y() % step == 0;
}

}

/// The grid, pixel by pixel, on screens of any scale factor.
class SketchViewGridTest final : public QObject
{
    Q_OBJECT

private slots:
    void farAwayWhereLinesCannotBeToldApartThereIsNoGrid()
    {
        SketchViewFixture f;
        f.SetColours(s_paper, s_ink);
        f.view.Fit({1e12, -1e12, 0}, {1e12, -1e12, 0});
        f.view.SetPixelsPerUnit(1e9);

        const QImage picture = f.view.grab().toImage();

        QImage paper(picture.size(), picture.format());
        paper.setDevicePixelRatio(picture.devicePixelRatio());
        paper.fill(s_paper);
        QCOMPARE(picture, paper);
    }

    void theGridStandsOnWholePixels_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("pixelsPerUnit");
        QTest::addColumn<QPoint>("centre");
        QTest::addColumn<int>("spacing");

        QTest::newRow("one to one") << QSize(407, 307) << 1.0 << QPoint(0, 0) << 10;
        QTest::newRow("moved") << QSize(407, 307) << 1.0 << QPoint(7, -3) << 10;
        QTest::newRow("far away") << QSize(407, 307) << 1.0 << QPoint(30000, 20000) << 10;
        QTest::newRow("lines at both edges") << QSize(400, 300) << 1.0 << QPoint(0, 0) << 10;
        QTest::newRow("near") << QSize(400, 300) << 3.0 << QPoint(0, 0) << 15;
        QTest::newRow("a little nearer") << QSize(400, 300) << 1.1 << QPoint(0, 0) << 11;
        QTest::newRow("a little farther") << QSize(400, 300) << 0.7 << QPoint(0, 0) << 14;
        QTest::newRow("far") << QSize(400, 300) << 0.3 << QPoint(0, 0) << 15;
    }

    void theGridStandsOnWholePixels()
    {
        QFETCH(QSize, size);
        QFETCH(double, pixelsPerUnit);
        QFETCH(QPoint, centre);
        QFETCH(int, spacing);
        SketchViewFixture f;
        f.SetColours(s_paper, s_ink);
        f.view.resize(size);
        const Vector3d middle(centre.x(), centre.y(), 0);
        f.view.Fit(middle, middle);
        const double scale = f.view.devicePixelRatioF();
        f.view.SetPixelsPerUnit(pixelsPerUnit * scale);

        const QImage picture = f.Picture();

        // The pixel of the origin; if that is between two pixels, the later one.
        const auto origin = [&](int length, double shift) {
            return static_cast<int>(std::floor((length / 2.0 + shift) * scale + 1e-6));
        };
        const QPoint zero(origin(size.width(), -centre.x() * pixelsPerUnit),
                          origin(size.height(), centre.y() * pixelsPerUnit));
        const int step = qRound(spacing * scale);
        const QRgb paper = Shade(0.0).rgb();
        const QRgb fine = Shade(0.06).rgb();
        const QRgb strong = Shade(0.14).rgb();
        for (int y = 0; y < picture.height(); ++y)
        {
            const auto* pRow = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
            for (int x = 0; x < picture.width(); ++x)
            {
                const QPoint place = QPoint(x, y) - zero;
                // The axes are not checked here.
                if (std::abs(place.x()) <= 1 || std::abs(place.y()) <= 1)
                    continue;
                const QRgb expected = IsOn(place, 10 * step) ? strong
                                      : IsOn(place, step)    ? fine
                                                             : paper;
                QVERIFY2(IsLike(pRow[x], expected), Name({x, y}, pRow[x]));
            }
        }
    }
};

VESK_TESTS(SketchViewGridTest);
#include "SketchViewGridTest.moc"

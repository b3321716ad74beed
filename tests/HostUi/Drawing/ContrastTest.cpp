#include "HostUi/Contrast.h"

#include "Support/TestValues.h"

#include <QPalette>

#include <cmath>

namespace vesk::test
{
namespace
{

QPalette PaletteOf(const QColor& base, const QColor& window, const QColor& text)
{
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, text);
    return palette;
}

}

/// Colours that can be told from what is behind them.
class ContrastTest final : public QObject
{
    Q_OBJECT

private slots:
    /// The values are those of the definition's own examples and of other calculators.
    void contrastIsAsDefined_data()
    {
        QTest::addColumn<QColor>("a");
        QTest::addColumn<QColor>("b");
        QTest::addColumn<double>("contrast");

        QTest::newRow("greatest") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
        QTest::newRow("other way round") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
        QTest::newRow("none") << QColor(40, 80, 120) << QColor(40, 80, 120) << 1.0;
        QTest::newRow("grey") << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.54;
        QTest::newRow("red") << QColor(0xff, 0, 0) << QColor(Qt::white) << 4.0;
        QTest::newRow("green") << QColor(0, 0xff, 0) << QColor(Qt::black) << 15.3;
        QTest::newRow("blue") << QColor(0, 0, 0xff) << QColor(Qt::white) << 8.59;
    }

    void contrastIsAsDefined()
    {
        QFETCH(QColor, a);
        QFETCH(QColor, b);
        QFETCH(double, contrast);

        QVERIFY(std::abs(ContrastOf(a, b) - contrast) < 0.01);
    }

    void highContrastIsOneBackgroundAndItsOpposite_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::addColumn<bool>("isHigh");

        const QColor white(Qt::white);
        const QColor black(Qt::black);
        QTest::newRow("white on black") << PaletteOf(black, black, white) << true;
        QTest::newRow("black on white") << PaletteOf(white, white, black) << true;
        QTest::newRow("grey windows") << PaletteOf(white, QColor(0xef, 0xef, 0xef), black) << false;
        QPalette greyGround = PaletteOf(white, white, black);
        greyGround.setColor(QPalette::Window, QColor(0xef, 0xef, 0xef));
        QTest::newRow("grey ground") << greyGround << false;
        QPalette greyButtons = PaletteOf(white, white, black);
        greyButtons.setColor(QPalette::Button, QColor(0xef, 0xef, 0xef));
        QTest::newRow("grey buttons") << greyButtons << false;
        QTest::newRow("nearly white on nearly black")
            << PaletteOf(QColor(8, 8, 8), QColor(8, 8, 8), QColor(0xf0, 0xf0, 0xf0)) << true;
        QTest::newRow("grey text") << PaletteOf(white, white, QColor(0x2a, 0x2a, 0x2a)) << false;
    }

    void highContrastIsOneBackgroundAndItsOpposite()
    {
        QFETCH(QPalette, palette);
        QFETCH(bool, isHigh);

        QCOMPARE(IsHighContrast(palette), isHigh);
    }

    void colourThatCanBeToldStays()
    {
        const QPalette palette = PaletteOf(Qt::white, QColor(0xef, 0xef, 0xef), Qt::black);
        const QColor blue(0x1f, 0x6f, 0xc5);

        QCOMPARE(Legible(blue, palette), blue);
    }

    void otherColourIsLightenedOrDarkened_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QPalette>("palette");
        QTest::addColumn<double>("least");

        const QPalette palettes[] = {
            PaletteOf(Qt::white, QColor(0xef, 0xef, 0xef), Qt::black),
            PaletteOf(QColor(0x1b, 0x1c, 0x1f), QColor(0x35, 0x37, 0x3b), QColor(Qt::white)),
            PaletteOf(QColor(0x80, 0x80, 0x80), QColor(0x90, 0x90, 0x90), QColor(Qt::white)),
            PaletteOf(Qt::white, Qt::white, Qt::black), PaletteOf(Qt::black, Qt::black, Qt::white)};
        for (const QPalette& palette : palettes)
        {
            for (const char* name : {"orange", "grey", "green", "black", "white", "blue"})
                QTest::addRow("%s on %s, %d", name,
                              qPrintable(palette.color(QPalette::Base).name()),
                              IsHighContrast(palette))
                    << QColor(name) << palette << (IsHighContrast(palette) ? 7.0 : 4.5);
        }
    }

    void otherColourIsLightenedOrDarkened()
    {
        QFETCH(QColor, ink);
        QFETCH(QPalette, palette);
        QFETCH(double, least);
        ink.setAlpha(120);

        const QColor colour = Legible(ink, palette);

        QVERIFY(ContrastOf(colour, palette.color(QPalette::Base)) >= least);
        QCOMPARE(colour.alpha(), 120);
    }

    void itIsChangedNoMoreThanItMustBe_data()
    {
        QTest::addColumn<QColor>("paper");

        QTest::newRow("light") << QColor(Qt::white);
        QTest::newRow("dark") << QColor(0x1b, 0x1c, 0x1f);
    }

    void itIsChangedNoMoreThanItMustBe()
    {
        QFETCH(QColor, paper);
        const QPalette palette = PaletteOf(paper, QColor(0x60, 0x60, 0x60), Qt::red);
        const QColor ink = paper == Qt::white ? QColor(0xff, 0x90, 0x30) : QColor(0x20, 0x40, 0x90);

        const QColor colour = Legible(ink, palette);

        QVERIFY(ContrastOf(colour, paper) < 5.0);
        QVERIFY(std::abs(colour.hue() - ink.hue()) <= 5);
    }
};

}

VESK_TESTS(vesk::test::ContrastTest);
#include "ContrastTest.moc"

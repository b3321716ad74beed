#include "View/ScreenPens.h"

#include "HostUi/Contrast.h"
#include "Model/Sketch.h"
#include "Support/TestValues.h"

namespace
{

const QColor s_ink(1, 2, 3);

QPalette OnWhite()
{
    QPalette palette(QColor(0xf0, 0xf0, 0xf0));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, s_ink);
    return palette;
}

int IndexOfColour(const std::wstring& name)
{
    int index = 0;
    while (LineColours()[static_cast<std::size_t>(index)].name != name)
        ++index;
    return index;
}

int IndexOfWidth(double millimetres)
{
    int index = 0;
    while (LineWidths()[static_cast<std::size_t>(index)].millimetres != millimetres)
        ++index;
    return index;
}

/// A drawing with a second layer, whose colour is red.
struct Fixture
{
    Fixture()
    {
        layer = *sketch.FindLayer(sketch.AddLayer(L"walls"));
        layer.colour = IndexOfColour(L"red");
        sketch.SetLayer(layer);
    }

    Sketch sketch;
    Layer layer;
};

}

/// With which pens entities are painted.
class ScreenPensTest final : public QObject
{
    Q_OBJECT

private slots:
    void widthsAreWholePixelsAndAtLeastOne_data()
    {
        QTest::addColumn<double>("millimetres");
        QTest::addColumn<double>("pixels");

        QTest::newRow("0.13") << 0.13 << 1.0;
        QTest::newRow("0.25") << 0.25 << 1.0;
        QTest::newRow("0.35") << 0.35 << 1.0;
        QTest::newRow("0.5") << 0.5 << 2.0;
        QTest::newRow("0.7") << 0.7 << 3.0;
        QTest::newRow("1") << 1.0 << 4.0;
        QTest::newRow("2") << 2.0 << 8.0;
    }

    void widthsAreWholePixelsAndAtLeastOne()
    {
        QFETCH(double, millimetres);
        QFETCH(double, pixels);
        const Sketch sketch;
        ScreenPens pens(sketch, OnWhite());
        Pen pen;
        pen.width = IndexOfWidth(millimetres);

        QCOMPARE(pens.Find(pen)->widthF(), pixels);
    }

    void theStyleIsThePens()
    {
        const Sketch sketch;
        ScreenPens pens(sketch, OnWhite());
        Pen pen;
        pen.style = 1;

        QCOMPARE(pens.Find(pen)->style(), Qt::DashLine);
    }

    void theColourIsThePensElseTheLayersElseTheTexts()
    {
        const Fixture f;
        ScreenPens pens(f.sketch, OnWhite());
        Pen pen;
        const auto colour = [&pens, &pen] { return pens.Find(pen)->color(); };

        QCOMPARE(colour(), s_ink);
        pen.layer = f.layer.id;
        QCOMPARE(colour(), LineColours()[std::size_t(f.layer.colour)].colour);
        pen.colour = IndexOfColour(L"blue");
        QCOMPARE(colour(), vesk::Legible(LineColours()[std::size_t(pen.colour)].colour, OnWhite()));
    }

    void eachColourCanBeToldFromTheBackground_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("window");
        QTest::addColumn<double>("least");

        const QColor grey(0x80, 0x80, 0x80);
        QTest::newRow("light") << QColor(Qt::white) << grey << 4.5;
        QTest::newRow("dark") << QColor(0x1b, 0x1c, 0x1f) << grey << 4.5;
        QTest::newRow("white on black") << QColor(Qt::black) << QColor(Qt::black) << 7.0;
        QTest::newRow("black on white") << QColor(Qt::white) << QColor(Qt::white) << 7.0;
    }

    void eachColourCanBeToldFromTheBackground()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, window);
        QFETCH(double, least);
        const Sketch sketch;
        QPalette palette(window, window);
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, base == Qt::white ? Qt::black : Qt::white);
        ScreenPens pens(sketch, palette);

        for (int i = 0; i < static_cast<int>(LineColours().size()); ++i)
        {
            Pen pen;
            pen.colour = i;
            QVERIFY(vesk::ContrastOf(pens.Find(pen)->color(), base) >= least);
        }
    }

    void aHiddenLayerHasNoPen()
    {
        Fixture f;
        f.layer.isVisible = false;
        f.sketch.SetLayer(f.layer);
        ScreenPens pens(f.sketch, OnWhite());
        Pen hidden;
        hidden.layer = f.layer.id;

        QVERIFY(pens.Find(hidden) == nullptr);
        QVERIFY(pens.Find(Pen()) != nullptr);
        QVERIFY(pens.Find(hidden) == nullptr);
    }

    void aLockedLayerIsPainted()
    {
        Fixture f;
        f.layer.isLocked = true;
        f.sketch.SetLayer(f.layer);
        ScreenPens pens(f.sketch, OnWhite());
        Pen locked;
        locked.layer = f.layer.id;

        QVERIFY(pens.Find(locked) != nullptr);
    }
};

VESK_TESTS(ScreenPensTest);
#include "ScreenPensTest.moc"

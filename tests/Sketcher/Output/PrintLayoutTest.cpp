#include "Output/PrintLayout.h"

#include "Support/TestValues.h"

class PrintLayoutTest final : public QObject
{
    Q_OBJECT

private slots:
    void scalesAreReadAsDrawingsStateThem_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("scale");

        QTest::newRow("reduced") << "1:50" << 0.02;
        QTest::newRow("enlarged") << "2:1" << 2.0;
        QTest::newRow("with blanks") << " 1 : 2.5 " << 0.4;
        QTest::newRow("slash") << "1/4" << 0.25;
        QTest::newRow("wide colon") << QStringLiteral("1：10") << 0.1;
        QTest::newRow("number") << "0.5" << 0.5;
        QTest::newRow("smallest") << "1:1000000" << 1e-6;
    }

    void scalesAreReadAsDrawingsStateThem()
    {
        QFETCH(QString, text);
        QFETCH(double, scale);

        QCOMPARE(ReadScale(text).value_or(0.0), scale);
    }

    void otherTextsAreNoScale_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* pText : {"", "1:", ":2", "a", "1:0", "0:1", "-1:2", "1:2:3", "1e3",
                                  "1:1000001", "1000001:1", "1,5:2"})
            QTest::newRow(pText) << QString::fromLatin1(pText);
    }

    void otherTextsAreNoScale()
    {
        QFETCH(QString, text);

        QVERIFY(!ReadScale(text).has_value());
    }

    void fittedDrawingKeepsAMargin_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::addColumn<double>("scale");

        QTest::newRow("wide") << 1900.0 << 10.0 << 0.1;
        QTest::newRow("high") << 10.0 << 2770.0 << 0.1;
        QTest::newRow("small") << 19.0 << 1.0 << 10.0;
        QTest::newRow("point") << 0.0 << 0.0 << 1e6;
    }

    void fittedDrawingKeepsAMargin()
    {
        QFETCH(double, width);
        QFETCH(double, height);
        QFETCH(double, scale);
        const ShapeBounds bounds{{0, 0, 0}, {width, height, 0}};

        QCOMPARE(FitScale(bounds, {210.0, 297.0}), scale);
    }

    void drawingLargerThanThePaperDoesNotFit()
    {
        const ShapeBounds bounds{{0, 0, 0}, {100, 50, 0}};

        QVERIFY(FitsPaper(bounds, 1.0, {100, 50}));
        QVERIFY(!FitsPaper(bounds, 1.01, {100, 60}));
        QVERIFY(!FitsPaper(bounds, 1.01, {110, 50}));
    }

    void scaleIsShownAsDrawingsStateIt_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<QString>("text");

        QTest::newRow("reduced") << 0.02 << "1:50";
        QTest::newRow("enlarged") << 2.5 << "2.5:1";
        QTest::newRow("true") << 1.0 << "1:1";
        QTest::newRow("four digits") << 1.0 / 3.14159 << "1:3.142";
        QTest::newRow("more digits") << 1.0 / 12345.6 << "1:12346";
        QTest::newRow("least") << 1e-6 << "1:1000000";
        QTest::newRow("greatest") << 1e6 << "1000000:1";
    }

    void scaleIsShownAsDrawingsStateIt()
    {
        QFETCH(double, scale);
        QFETCH(QString, text);

        QCOMPARE(ScaleText(scale), text);
        QVERIFY(ReadScale(text).has_value());
    }
};

VESK_TESTS_WITHOUT_APPLICATION(PrintLayoutTest);
#include "PrintLayoutTest.moc"

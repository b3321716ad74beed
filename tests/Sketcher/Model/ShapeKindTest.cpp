#include "Model/ShapeKind.h"

#include "Support/TestValues.h"

class ShapeKindTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyKindHasItsNames_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("caption");

        QTest::newRow("line") << 0 << "line"
                              << "直线";
        QTest::newRow("circle") << 1 << "circle"
                                << "圆";
        QTest::newRow("arc") << 2 << "arc"
                             << "圆弧";
        QTest::newRow("rectangle") << 3 << "rectangle"
                                   << "矩形";
    }

    void everyKindHasItsNames()
    {
        QFETCH(int, kind);
        const Shape shapes[] = {LineShape{}, CircleShape{}, ArcShape{}, RectangleShape{}};

        const ShapeKind& found = KindOf(shapes[kind]);

        QTEST(QString::fromStdWString(found.name), "name");
        QTEST(QString::fromStdWString(found.caption), "caption");
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ShapeKindTest);
#include "ShapeKindTest.moc"

#include "View/EntityText.h"

#include "Model/SketchContent.h"
#include "Support/TestValues.h"

#include "Dimension/LengthUnit.h"

#include <QLocale>

using vesk::LengthUnit;

Q_DECLARE_METATYPE(Shape)

/// What the status bar says of an entity.
class EntityTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { LengthUnit::SetCurrent(LengthUnit::Millimetre()); }

    void kindNumberAndMainDimensionsAreNamed_data()
    {
        QTest::addColumn<Shape>("shape");
        QTest::addColumn<QString>("text");

        const Shape line = LineShape{{10, 0, 0}, {40, 40, 0}};
        const Shape circle = CircleShape{{10, 0, 0}, 12.5};
        const Shape arc = ArcShape{{0, 0, 0}, 5, {5, 0, 0}, {0, 5, 0}};
        const Shape rectangle = RectangleShape{{{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {0, 3, 0}}}};
        QTest::newRow("line") << line << QStringLiteral("直线 #7：长度 50.000 mm，角度 53.13°");
        QTest::newRow("circle") << circle << QStringLiteral("圆 #7：半径 12.500 mm");
        QTest::newRow("arc") << arc << QStringLiteral("圆弧 #7：半径 5.000 mm");
        QTest::newRow("rectangle")
            << rectangle << QStringLiteral("矩形 #7：宽度 4.000 mm，高度 3.000 mm");
    }

    void kindNumberAndMainDimensionsAreNamed()
    {
        QFETCH(Shape, shape);
        QFETCH(QString, text);

        QCOMPARE(DescribeEntity({7, shape, {}}), text);
    }

    void numbersAreWrittenAsInTheLocale()
    {
        const QLocale former;
        QLocale::setDefault(QLocale(QLocale::German));

        const QString text = DescribeEntity({7, LineShape{{10, 0, 0}, {40, 40, 0}}, {}});

        QLocale::setDefault(former);
        QCOMPARE(text, QStringLiteral("直线 #7：长度 50,000 mm，角度 53,13°"));
    }

    void lengthsAreInTheUnitThatIsShown()
    {
        LengthUnit::SetCurrent(LengthUnit::Centimetre());

        const QString text = DescribeEntity({7, CircleShape{{10, 0, 0}, 12.5}, {}});

        QCOMPARE(text, QStringLiteral("圆 #7：半径 1.250 cm"));
    }
};

VESK_TESTS(EntityTextTest);
#include "EntityTextTest.moc"

#include "Model/EntityEdit.h"

#include "Model/ShapeProperty.h"
#include "Model/Sketch.h"
#include "ShapeValues.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <QRandomGenerator>
#include <QSignalSpy>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

using vesk::CommandParameters;
using vesk::CommandParameterValue;
using Ids = std::vector<int>;

Q_DECLARE_METATYPE(CommandParameters)

namespace
{

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();

/// Two circles and a line.
struct Fixture
{
    Fixture()
    {
        sketch.Add(CircleShape{{0, 0, 0}, 10});
        sketch.Add(CircleShape{{50, 0, 0}, 20});
        sketch.AddLine({0, 0, 0}, {30, 40, 0});
    }

    double Get(int id, const wchar_t* name) const
    {
        const Shape& shape = sketch.Find(id)->shape;
        return FindProperty(shape, name)->get(shape);
    }

    std::vector<Shape> Shapes() const
    {
        std::vector<Shape> shapes;
        for (const Entity& entity : sketch.GetEntities())
            shapes.push_back(entity.shape);
        return shapes;
    }

    Sketch sketch;
    QSignalSpy changes{&sketch, &Sketch::changed};
};

CommandParameters Parameters(const std::wstring& entities, const std::wstring& property,
                             double value)
{
    CommandParameters parameters;
    parameters.Add(L"entities", CommandParameterValue(entities));
    parameters.Add(L"property", CommandParameterValue(property));
    parameters.Add(L"value", CommandParameterValue(value));
    return parameters;
}

}

/// Entities that get another value, as by the command.
class EntityEditTest final : public QObject
{
    Q_OBJECT

private slots:
    void parametersSayWhatIsChanged()
    {
        const EntityEdit edit{{7, 12, 3}, L"start.x", -0.1};

        QCOMPARE(edit.ToParameters(), Parameters(L"7 12 3", L"start.x", -0.1));
    }

    void parametersReadBackAreTheSameEdit_data()
    {
        QTest::addColumn<QVector<int>>("entities");
        QTest::addColumn<double>("value");

        QTest::newRow("one") << QVector<int>{1} << 12.5;
        QTest::newRow("several, as picked") << QVector<int>{30, 2, 11} << -1.0 / 3.0;
        QTest::newRow("greatest id") << QVector<int>{std::numeric_limits<int>::max()} << 1e-300;
    }

    void parametersReadBackAreTheSameEdit()
    {
        QFETCH(QVector<int>, entities);
        QFETCH(double, value);
        const Ids ids(entities.begin(), entities.end());

        const auto edit = EntityEdit::From(EntityEdit{ids, L"radius", value}.ToParameters());

        QVERIFY(edit.has_value());
        QCOMPARE(edit->entities, ids);
        QCOMPARE(edit->property, std::wstring(L"radius"));
        QCOMPARE_EXACTLY(edit->value, value);
    }

    void otherParametersAreNoEdit_data()
    {
        QTest::addColumn<CommandParameters>("parameters");

        const auto without = [](const wchar_t* name) {
            const CommandParameters all = Parameters(L"1", L"radius", 5);
            CommandParameters parameters;
            for (const auto& [known, value] : all.GetAll())
            {
                if (known != name)
                    parameters.Add(known, value);
            }
            return parameters;
        };
        const auto with = [](const wchar_t* name, auto value) {
            CommandParameters parameters = Parameters(L"1", L"radius", 5);
            parameters.Add(name, CommandParameterValue(value));
            return parameters;
        };
        QTest::newRow("none") << CommandParameters();
        QTest::newRow("no entities") << without(L"entities");
        QTest::newRow("no property") << without(L"property");
        QTest::newRow("no value") << without(L"value");
        QTest::newRow("entities are a number") << with(L"entities", 1);
        QTest::newRow("property is a flag") << with(L"property", true);
        QTest::newRow("value is a text") << with(L"value", std::wstring(L"5"));
        QTest::newRow("a word among the ids") << Parameters(L"1 x 2", L"radius", 5);
        QTest::newRow("an id with a tail") << Parameters(L"1 2b", L"radius", 5);
        QTest::newRow("ids with commas") << Parameters(L"1,2", L"radius", 5);
        QTest::newRow("an id beyond all ids") << Parameters(L"1 99999999999", L"radius", 5);
        QTest::newRow("a fraction") << Parameters(L"1.5", L"radius", 5);
    }

    void otherParametersAreNoEdit()
    {
        QFETCH(CommandParameters, parameters);

        QVERIFY(!EntityEdit::From(parameters).has_value());
    }

    void severalEntitiesAreOneUndoStep()
    {
        Fixture f;
        const std::vector<Shape> before = f.Shapes();

        QVERIFY((EntityEdit{{2, 1}, L"radius", 7}.Apply(f.sketch)));
        QCOMPARE(f.Get(1, L"radius"), 7.0);
        QCOMPARE(f.Get(2, L"radius"), 7.0);
        QCOMPARE(f.changes.count(), 4);

        QCOMPARE(f.sketch.Undo(), 2);
        QCOMPARE(f.Shapes(), before);
    }

    void anEntityNamedTwiceIsOneToo()
    {
        Fixture f;
        const std::vector<Shape> before = f.Shapes();

        QVERIFY((EntityEdit{{1, 2, 1}, L"radius", 7}.Apply(f.sketch)));
        QCOMPARE(f.Get(1, L"radius"), 7.0);

        f.sketch.Undo();
        QCOMPARE(f.Shapes(), before);
    }

    void whatIsNotPossibleChangesNothing_data()
    {
        QTest::addColumn<QVector<int>>("entities");
        QTest::addColumn<QString>("property");
        QTest::addColumn<double>("value");

        QTest::newRow("no entity") << QVector<int>{} << "radius" << 5.0;
        QTest::newRow("a missing entity") << QVector<int>{1, 99} << "radius" << 5.0;
        QTest::newRow("no such id") << QVector<int>{0} << "radius" << 5.0;
        QTest::newRow("not a value of one") << QVector<int>{1, 3} << "radius" << 5.0;
        QTest::newRow("no such value") << QVector<int>{1} << "weight" << 5.0;
        QTest::newRow("zero") << QVector<int>{1} << "radius" << 0.0;
        QTest::newRow("negative radius") << QVector<int>{1} << "radius" << -5.0;
        QTest::newRow("negative length") << QVector<int>{3} << "length" << -5.0;
        QTest::newRow("too small") << QVector<int>{1, 2} << "radius" << 1e-7;
        QTest::newRow("too great") << QVector<int>{1, 2} << "radius" << 1.1e9;
        QTest::newRow("ends at its start") << QVector<int>{3} << "length" << 0.0;
        QTest::newRow("no number") << QVector<int>{1} << "centre.x" << NotANumber;
        QTest::newRow("infinite") << QVector<int>{1} << "centre.x" << Infinity;
        QTest::newRow("no angle") << QVector<int>{3} << "angle" << NotANumber;
        QTest::newRow("infinite angle") << QVector<int>{3} << "angle" << Infinity;
        QTest::newRow("infinite angle, negative") << QVector<int>{3} << "angle" << -Infinity;
    }

    void whatIsNotPossibleChangesNothing()
    {
        QFETCH(QVector<int>, entities);
        QFETCH(QString, property);
        QFETCH(double, value);
        Fixture f;
        const std::vector<Shape> before = f.Shapes();
        const EntityEdit edit{Ids(entities.begin(), entities.end()), property.toStdWString(),
                              value};
        f.changes.clear();

        QVERIFY(!edit.IsPossible(f.sketch));
        QVERIFY(!edit.Apply(f.sketch));

        QCOMPARE(f.Shapes(), before);
        QCOMPARE(f.changes.count(), 0);
    }

    void possibleMeansThatItCanBeDone()
    {
        const Fixture f;

        QVERIFY((EntityEdit{{1, 2}, L"radius", 5}.IsPossible(f.sketch)));
        QVERIFY((EntityEdit{{3}, L"angle", -720}.IsPossible(f.sketch)));
        QVERIFY((EntityEdit{{3, 3}, L"end.y", 1e-3}.IsPossible(f.sketch)));
    }

    void theValueThatIsThereIsNoStep()
    {
        Fixture f;
        QVERIFY((EntityEdit{{1, 2}, L"radius", 5}.Apply(f.sketch)));
        f.changes.clear();

        QVERIFY(!(EntityEdit{{1, 2}, L"radius", 5}.Apply(f.sketch)));
        QVERIFY((EntityEdit{{1, 2}, L"radius", 5}.IsPossible(f.sketch)));

        QCOMPARE(f.changes.count(), 0);
    }

    void oneThatDiffersIsAStep()
    {
        Fixture f;

        QVERIFY((EntityEdit{{1, 2}, L"radius", 20}.Apply(f.sketch)));

        QCOMPARE(f.Get(1, L"radius"), 20.0);
    }

    /// Setting the value that a shape already has changes nothing, bit for bit, however uneven its
    /// numbers.
    void noValueOfAnyShapeMovesItWhereItIs()
    {
        constexpr int Rounds = 2000;
        const quint32 seed = QRandomGenerator::global()->generate();
        QRandomGenerator random(seed);
        const auto number = [&random] { return 2000.0 * random.generateDouble() - 1000.0; };

        for (int round = 0; round < Rounds; ++round)
        {
            Sketch sketch;
            const int id = sketch.Add(RandomShape(round % 4, number));
            if (id == 0)
                continue;
            const Shape shape = sketch.Find(id)->shape;
            for (const ShapeProperty& property : PropertiesOf(shape))
            {
                const bool isStep =
                    EntityEdit{{id}, property.name, property.get(shape)}.Apply(sketch);
                QVERIFY2(!isStep && sketch.Find(id)->shape == shape,
                         qPrintable(QStringLiteral("seed %1, round %2, %3")
                                        .arg(seed)
                                        .arg(round)
                                        .arg(QString::fromStdWString(property.name))));
            }
        }
    }

    void whatIsNoNumberIsNoValueOfAnyShape_data()
    {
        QTest::addColumn<double>("value");

        QTest::newRow("no number") << NotANumber;
        QTest::newRow("infinite") << Infinity;
        QTest::newRow("infinite, negative") << -Infinity;
    }

    void whatIsNoNumberIsNoValueOfAnyShape()
    {
        QFETCH(double, value);
        Sketch sketch;
        for (int kind = 0; kind < 4; ++kind)
        {
            double number = 1.0;
            const int id = sketch.Add(RandomShape(kind, [&number] { return number += 7.0; }));
            for (const ShapeProperty& property : PropertiesOf(sketch.Find(id)->shape))
            {
                const EntityEdit edit{{id}, property.name, value};
                QVERIFY2(!edit.IsPossible(sketch),
                         qPrintable(QString::fromStdWString(property.name)));
            }
        }
    }

private:
    template <class Number>
    static Shape RandomShape(int kind, Number number)
    {
        const vesk::Vector3d place(number(), number(), 0);
        const vesk::Vector3d side(number(), number(), 0);
        const double radius = side.norm();
        const vesk::Vector3d across = vesk::Vector3d(-side.y(), side.x(), 0) * (number() / 100.0);
        switch (kind)
        {
        case 0:
            return LineShape{place, place + side};
        case 1:
            return CircleShape{place, radius};
        case 2:
            return ArcShape{place, radius, place + side, place - side};
        default:
            return RectangleShape{{place, place + side, place + side + across, place + across}};
        }
    }
};

VESK_TESTS_WITHOUT_WINDOWS(EntityEditTest);
#include "EntityEditTest.moc"

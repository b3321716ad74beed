#include "Model/LayerEdit.h"

#include "Model/Sketch.h"
#include "Support/TestValues.h"

using vesk::CommandParameters;
using vesk::CommandParameterValue;

using Value = std::variant<bool, std::wstring>;
Q_DECLARE_METATYPE(Value)

namespace
{

constexpr int NoLayer = 77;

/// A drawing with the layers 0 and "walls", on which there is a line.
struct Fixture
{
    Fixture()
    {
        walls = sketch.AddLayer(L"walls");
        sketch.SetCurrentPen(&Pen::layer, walls);
        sketch.AddLine({0, 0, 0}, {10, 0, 0});
        sketch.SetCurrentPen(&Pen::layer, Layer::BaseId);
        empty = sketch.AddLayer(L"empty");
    }

    Sketch sketch;
    int walls = 0;
    int empty = 0;
};

}

/// Changes of layers as commands make them.
class LayerEditTest final : public QObject
{
    Q_OBJECT

private slots:
    void anAdditionSurvivesItsParameters()
    {
        const auto read = LayerAddition::From(LayerAddition{L"doors"}.ToParameters());

        QVERIFY(read.has_value());
        QCOMPARE(read->name, std::wstring(L"doors"));
    }

    void aRemovalSurvivesItsParameters()
    {
        const auto read = LayerRemoval::From(LayerRemoval{5}.ToParameters());

        QVERIFY(read.has_value());
        QCOMPARE(read->layer, 5);
    }

    void anEditSurvivesItsParameters_data()
    {
        QTest::addColumn<Value>("value");

        QTest::newRow("text") << Value(std::wstring(L"doors"));
        QTest::newRow("yes") << Value(true);
        QTest::newRow("no") << Value(false);
    }

    void anEditSurvivesItsParameters()
    {
        QFETCH(Value, value);

        const auto read = LayerEdit::From(LayerEdit{5, L"any", value}.ToParameters());

        QVERIFY(read.has_value());
        QCOMPARE(read->layer, 5);
        QCOMPARE(read->property, std::wstring(L"any"));
        QVERIFY(read->value == value);
    }

    void parametersOfOtherTypesAreNoEdits()
    {
        CommandParameters texts;
        texts.Add(L"layer", CommandParameterValue(std::wstring(L"1")));
        texts.Add(L"name", CommandParameterValue(1));
        CommandParameters number = LayerEdit{1, L"name", true}.ToParameters();
        number.Add(L"value", CommandParameterValue(1.0));

        QVERIFY(!LayerAddition::From({}).has_value());
        QVERIFY(!LayerAddition::From(texts).has_value());
        QVERIFY(!LayerRemoval::From({}).has_value());
        QVERIFY(!LayerRemoval::From(texts).has_value());
        QVERIFY(!LayerEdit::From({}).has_value());
        QVERIFY(!LayerEdit::From(number).has_value());
    }

    void aNewNameMakesALayer()
    {
        Fixture f;
        const LayerAddition addition{L"doors"};

        QVERIFY(addition.IsPossible(f.sketch));
        QVERIFY(addition.Apply(f.sketch));

        QCOMPARE(f.sketch.GetLayers().back().name, std::wstring(L"doors"));
    }

    void aTakenOrEmptyNameMakesNone_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("taken") << "walls";
        QTest::newRow("empty") << "";
    }

    void aTakenOrEmptyNameMakesNone()
    {
        QFETCH(QString, name);
        Fixture f;
        const LayerAddition addition{name.toStdWString()};
        const std::string before = f.sketch.GetDigest();

        QVERIFY(!addition.IsPossible(f.sketch));
        QVERIFY(!addition.Apply(f.sketch));

        QCOMPARE(f.sketch.GetDigest(), before);
    }

    void onlyAnEmptyLayerIsRemoved()
    {
        Fixture f;

        QVERIFY(!LayerRemoval{f.walls}.IsPossible(f.sketch));
        QVERIFY(!LayerRemoval{f.walls}.Apply(f.sketch));
        QVERIFY(!LayerRemoval{Layer::BaseId}.IsPossible(f.sketch));
        QVERIFY(!LayerRemoval{NoLayer}.IsPossible(f.sketch));
        QVERIFY(LayerRemoval{f.empty}.IsPossible(f.sketch));
        QVERIFY(LayerRemoval{f.empty}.Apply(f.sketch));

        QCOMPARE(f.sketch.GetLayers().size(), std::size_t{2});
    }

    void eachPropertyIsSet()
    {
        Fixture f;

        QVERIFY((LayerEdit{f.walls, L"name", std::wstring(L"outside")}.Apply(f.sketch)));
        QVERIFY((LayerEdit{f.walls, L"colour", std::wstring(L"blue")}.Apply(f.sketch)));
        QVERIFY((LayerEdit{f.walls, L"visible", false}.Apply(f.sketch)));
        QVERIFY((LayerEdit{f.walls, L"locked", true}.Apply(f.sketch)));

        const Layer& layer = *f.sketch.FindLayer(f.walls);
        QCOMPARE(layer.name, std::wstring(L"outside"));
        QCOMPARE(LineColours()[std::size_t(layer.colour)].name, std::wstring(L"blue"));
        QVERIFY(!layer.isVisible);
        QVERIFY(layer.isLocked);
    }

    void eachEditIsOneStep()
    {
        Fixture f;
        const std::string before = f.sketch.GetDigest();

        LayerEdit{f.walls, L"visible", false}.Apply(f.sketch);
        f.sketch.Undo();

        QCOMPARE(f.sketch.GetDigest(), before);
    }

    void whatALayerCannotHaveIsImpossible_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<Value>("value");

        QTest::newRow("the name of another") << "name" << Value(std::wstring(L"empty"));
        QTest::newRow("no name") << "name" << Value(std::wstring());
        QTest::newRow("an unknown colour") << "colour" << Value(std::wstring(L"pink"));
        QTest::newRow("a truth for a name") << "name" << Value(true);
        QTest::newRow("a text for a truth") << "visible" << Value(std::wstring(L"false"));
        QTest::newRow("an unknown property") << "weight" << Value(true);
    }

    void whatALayerCannotHaveIsImpossible()
    {
        QFETCH(QString, property);
        QFETCH(Value, value);
        Fixture f;
        const LayerEdit edit{f.walls, property.toStdWString(), value};
        const std::string before = f.sketch.GetDigest();

        QVERIFY(!edit.IsPossible(f.sketch));
        QVERIFY(!edit.Apply(f.sketch));

        QCOMPARE(f.sketch.GetDigest(), before);
    }

    void aLayerMayKeepItsName()
    {
        Fixture f;
        const LayerEdit edit{f.walls, L"name", std::wstring(L"walls")};

        QVERIFY(edit.IsPossible(f.sketch));
        QVERIFY(!edit.Apply(f.sketch));
    }

    void aLayerThatDoesNotExistIsNotChanged()
    {
        Fixture f;

        QVERIFY((!LayerEdit{NoLayer, L"locked", true}.IsPossible(f.sketch)));
        QVERIFY((!LayerEdit{NoLayer, L"locked", true}.Apply(f.sketch)));
    }
};

VESK_TESTS(LayerEditTest);
#include "LayerEditTest.moc"

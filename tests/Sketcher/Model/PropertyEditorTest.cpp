#include "Model/PropertyEditor.h"

#include "Model/Workspace.h"
#include "RecordedLines.h"
#include "Support/TestValues.h"

using vesk::PropertyRecord;

class PropertyEditorTest final : public QObject
{
    Q_OBJECT

private slots:
    void theNameIsTheDrawings()
    {
        Workspace workspace;

        QVERIFY(workspace.properties.Set({L"drawing", L"name", L"图一"}));

        QCOMPARE(workspace.sketch.GetName(), std::wstring(L"图一"));
        QVERIFY(workspace.sketch.CanUndo());
    }

    void thePenIsForTheNextEntities()
    {
        Workspace workspace;
        const int before = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        workspace.selection.Select({before});

        QVERIFY(workspace.properties.Set({L"pen", L"style", L"dashed"}));
        QVERIFY(workspace.properties.Set({L"pen", L"colour", L"blue"}));
        const int after = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QCOMPARE(NameOf(workspace, before), QStringLiteral("solid default"));
        QCOMPARE(NameOf(workspace, after), QStringLiteral("dashed blue"));
    }

    void aWidthIsForTheNextEntities()
    {
        Workspace workspace;

        QVERIFY(workspace.properties.Set({L"pen", L"width", L"0.7"}));

        const int width = workspace.sketch.GetCurrentPen().width;
        QCOMPARE(LineWidths()[std::size_t(width)].millimetres, 0.7);
    }

    void aLayerIsGivenByItsId()
    {
        Workspace workspace;
        const int layer = workspace.sketch.AddLayer(L"walls");
        const int line = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        workspace.selection.Select({line});

        QVERIFY(workspace.properties.Set({L"selection", L"layer", std::to_wstring(layer)}));
        QCOMPARE(workspace.sketch.Find(line)->pen.layer, layer);
        QCOMPARE(workspace.sketch.GetCurrentPen().layer, Layer::BaseId);

        QVERIFY(workspace.properties.Set({L"pen", L"layer", std::to_wstring(layer)}));
        QCOMPARE(workspace.sketch.GetCurrentPen().layer, layer);
    }

    void aLayerThatDoesNotExistIsNotSet_data()
    {
        QTest::addColumn<QString>("text");

        QTest::newRow("another id") << "7";
        QTest::newRow("a name") << "walls";
        QTest::newRow("nothing") << "";
        QTest::newRow("more than a number") << "1x";
    }

    void aLayerThatDoesNotExistIsNotSet()
    {
        QFETCH(QString, text);
        Workspace workspace;
        workspace.sketch.AddLayer(L"walls");

        QVERIFY(!workspace.properties.Set({L"pen", L"layer", text.toStdWString()}));

        QCOMPARE(workspace.sketch.GetCurrentPen().layer, Layer::BaseId);
    }

    void aChangeOfTheSelectionIsOneStep()
    {
        Workspace workspace;
        const int first = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int second = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int other = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        workspace.selection.Select({second, first});

        QVERIFY(workspace.properties.Set({L"selection", L"colour", L"red"}));
        QCOMPARE(NameOf(workspace, first), QStringLiteral("solid red"));
        QCOMPARE(NameOf(workspace, second), QStringLiteral("solid red"));
        QCOMPARE(NameOf(workspace, other), QStringLiteral("solid default"));

        QCOMPARE(workspace.sketch.Undo(), second);
        QCOMPARE(NameOf(workspace, first), QStringLiteral("solid default"));
        QCOMPARE(NameOf(workspace, second), QStringLiteral("solid default"));
        QCOMPARE(workspace.sketch.GetEntities().size(), std::size_t{3});
    }

    void aChangeOfTheSelectionLeavesTheNextEntitiesAlone()
    {
        Workspace workspace;
        workspace.properties.Set({L"pen", L"colour", L"blue"});
        const int selected = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        workspace.selection.Select({selected});

        QVERIFY(workspace.properties.Set({L"selection", L"style", L"dotted"}));
        QVERIFY(workspace.properties.Set({L"selection", L"colour", L"red"}));

        const int next = workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        QCOMPARE(NameOf(workspace, selected), QStringLiteral("dotted red"));
        QCOMPARE(NameOf(workspace, next), QStringLiteral("solid blue"));
    }

    void whatIsSetIsRecorded()
    {
        Workspace workspace;
        const RecordedLines lines;

        workspace.properties.Set({L"pen", L"style", L"dashdot"});

        QCOMPARE(lines.Get(),
                 QStringList(
                     R"({"kind":"property","object":"pen","property":"style","value":"dashdot"})"));
    }

    void whatDoesNotExistIsNotSet_data()
    {
        QTest::addColumn<QString>("object");
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");

        QTest::newRow("object") << "layer"
                                << "name"
                                << "a";
        QTest::newRow("property of the drawing") << "drawing"
                                                 << "style"
                                                 << "dashed";
        QTest::newRow("property of the pen") << "pen"
                                             << "thickness"
                                             << "1";
        QTest::newRow("property of the selection") << "selection"
                                                   << "name"
                                                   << "a";
        QTest::newRow("style") << "pen"
                               << "style"
                               << "wavy";
        QTest::newRow("colour as style") << "selection"
                                         << "style"
                                         << "red";
    }

    void whatDoesNotExistIsNotSet()
    {
        QFETCH(QString, object);
        QFETCH(QString, property);
        QFETCH(QString, value);
        Workspace workspace;
        const std::wstring name = workspace.sketch.GetName();
        const RecordedLines lines;

        QVERIFY(!workspace.properties.Set(
            {object.toStdWString(), property.toStdWString(), value.toStdWString()}));

        QVERIFY(lines.Get().isEmpty());
        QCOMPARE(workspace.sketch.GetName(), name);
        QCOMPARE(workspace.sketch.GetCurrentPen().style, 0);
        QCOMPARE(workspace.sketch.GetCurrentPen().colour, 0);
    }

private:
    static QString NameOf(const Workspace& workspace, int id)
    {
        const Pen& pen = workspace.sketch.Find(id)->pen;
        return QString::fromStdWString(LineStyles()[static_cast<std::size_t>(pen.style)].name +
                                       L" " +
                                       LineColours()[static_cast<std::size_t>(pen.colour)].name);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(PropertyEditorTest);
#include "PropertyEditorTest.moc"

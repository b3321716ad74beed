#include "Ribbon/PenPanel.h"

#include "Model/Workspace.h"
#include "RecordedLines.h"

#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QComboBox>
#include <QLocale>

#include <memory>
#include <optional>

using namespace vesk;

namespace
{

/// The panel in a ribbon, for a drawing with a second layer.
struct Fixture
{
    Fixture()
    {
        walls = workspace.sketch.AddLayer(L"walls");
        QCoreApplication::processEvents();
    }

    ~Fixture()
    {
        pPanel.reset();
        controls.reset();
    }

    QComboBox& Box(const char* id) const
    {
        return *ribbon.findChild<QComboBox*>(QLatin1String(id));
    }

    vesk::test::HostFixture host;
    ControlLibrary library;
    Workspace workspace;
    Qtitan::RibbonBar ribbon;
    std::optional<ControlHost> controls{std::in_place};
    Qtitan::RibbonPage& page = *ribbon.addPage(QStringLiteral("page"));
    std::unique_ptr<PenPanel> pPanel =
        std::make_unique<PenPanel>(workspace, *page.addGroup(QStringLiteral("pen")),
                                   *page.addGroup(QStringLiteral("layer")), *controls);
    int walls = 0;
};

}

/// Pen and layer in the ribbon.
class PenPanelTest final : public QObject
{
    Q_OBJECT

private slots:
    void theBoxesShowTheCurrentPen()
    {
        Fixture f;
        QCOMPARE(f.Box("Sketcher.LineStyle").currentText(), QStringLiteral("实线"));
        QCOMPARE(f.Box("Sketcher.LineColour").currentText(), QStringLiteral("默认"));
        QCOMPARE(f.Box("Sketcher.LineWidth").currentText(), QString("0.25 mm"));
        QCOMPARE(f.Box("Sketcher.Layer").currentText(), QString("0"));

        f.workspace.sketch.SetCurrentPen(&Pen::width, 5);
        f.workspace.sketch.SetCurrentPen(&Pen::layer, f.walls);

        QCOMPARE(f.Box("Sketcher.LineWidth").currentText(), QString("0.7 mm"));
        QCOMPARE(f.Box("Sketcher.Layer").currentText(), QString("walls"));
    }

    void theLayersAreListedUnderTheirPresentNames()
    {
        Fixture f;
        Layer layer = *f.workspace.sketch.FindLayer(f.walls);
        layer.name = L"doors";
        f.workspace.sketch.SetLayer(layer);
        f.workspace.sketch.AddLayer(L"third");

        const QComboBox& box = f.Box("Sketcher.Layer");

        QCOMPARE(box.count(), 3);
        QCOMPARE(box.itemText(1), QString("doors"));
        QCOMPARE(box.itemText(2), QString("third"));
        QCOMPARE(box.currentText(), QString("0"));
    }

    void aChosenLayerIsForTheNextEntities()
    {
        Fixture f;

        f.Box("Sketcher.Layer").setCurrentIndex(1);

        QCOMPARE(f.workspace.sketch.GetCurrentPen().layer, f.walls);
    }

    void aChosenLayerIsTheSelections()
    {
        Fixture f;
        const int line = f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.workspace.selection.Select({line});

        f.Box("Sketcher.Layer").setCurrentIndex(1);

        QCOMPARE(f.workspace.sketch.Find(line)->pen.layer, f.walls);
        QCOMPARE(f.workspace.sketch.GetCurrentPen().layer, Layer::BaseId);
    }

    void aChosenWidthIsTheSelections()
    {
        Fixture f;
        const int line = f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.workspace.selection.Select({line});

        f.Box("Sketcher.LineWidth").setCurrentIndex(4);

        QCOMPARE(f.workspace.sketch.Find(line)->pen.width, 4);
    }

    void whatDiffersIsNotShown()
    {
        Fixture f;
        const int first = f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        f.workspace.sketch.SetCurrentPen(&Pen::layer, f.walls);
        const int second = f.workspace.sketch.AddLine({0, 0, 0}, {2, 0, 0});

        f.workspace.selection.Select({first, second});
        QCOMPARE(f.Box("Sketcher.Layer").currentIndex(), -1);
        QCOMPARE(f.Box("Sketcher.LineWidth").currentText(), QString("0.25 mm"));

        f.workspace.selection.Select({});
        QCOMPARE(f.Box("Sketcher.Layer").currentText(), QString("walls"));
    }

    void listingLayersRecordsNothing()
    {
        Fixture f;
        const RecordedLines lines;

        f.workspace.sketch.AddLayer(L"third");
        f.workspace.sketch.RemoveLayer(f.walls);

        QVERIFY(lines.Get().isEmpty());
        QCOMPARE(f.Box("Sketcher.Layer").currentText(), QString("0"));
    }

    void widthsAreWrittenAsTheLocaleWritesNumbers()
    {
        const QLocale former;
        QLocale::setDefault(QLocale::German);
        const Fixture f;

        const QString shown = f.Box("Sketcher.LineWidth").currentText();

        QLocale::setDefault(former);
        QCOMPARE(shown, QString("0,25 mm"));
    }
};

VESK_TESTS(PenPanelTest);
#include "PenPanelTest.moc"

#include "Drawing.h"
#include "PaneDriver.h"
#include "Panes/LayerModel.h"
#include "ScenarioTest.h"
#include "ScriptedUser.h"
#include "SketcherProcess.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QLineEdit>
#include <QToolButton>
#include <QTreeView>

namespace
{

QTreeView& List()
{
    return *PaneDriver::Widget("Layers").findChild<QTreeView*>("Layers");
}

void ClickButton(const char* name)
{
    PaneDriver::Widget("Layers").findChild<QToolButton*>(QLatin1String(name))->click();
}

/// Toggles a box of a row.
void Toggle(int row, int column)
{
    QAbstractItemModel& model = *List().model();
    const QModelIndex cell = model.index(row, column);
    const bool isOn = cell.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    model.setData(cell, isOn ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
}

}

/// Drawing on layers, and its replay.
class LayerTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void layersAreReplayed()
    {
        ScriptedUser user;
        user.DrawLine(0, 0, 50, 0);
        user.Do([] {
            PaneDriver::Dock("Layers").Raise();
            ClickButton("NewLayer");
        });
        user.Do([] {
            List().model()->setData(List().model()->index(1, LayerModel::NameColumn),
                                    QStringLiteral("墙"), Qt::EditRole);
            ClickButton("MakeLayerCurrent");
        });
        user.DrawLine(0, 20, 50, 20);
        user.Do([] { Toggle(0, LayerModel::VisibleColumn); });
        user.Do([] { Toggle(1, LayerModel::LockedColumn); });
        user.Click("Sketcher.Undo");

        QCOMPARE(user.Run(m_pFixture->Draw()), 0);

        QCOMPARE(Model().size(), 2);
        const QByteArray journal = ReadBytes(Journal());
        for (const char* command :
             {"Sketcher.AddLayer", "Sketcher.SetLayer", "\"墙\"", "\"layer\""})
            QVERIFY2(journal.contains(command), command);
        VerifyReplay();
    }

    void aChangeThatIsImpossibleStopsTheReplay()
    {
        ScriptedUser user;
        user.Do([] { ClickButton("NewLayer"); });
        user.Do([] { ClickButton("RemoveLayer"); });
        QCOMPARE(user.Run(m_pFixture->Draw()), 0);
        QByteArray journal = ReadBytes(Journal());
        QVERIFY(journal.contains("Sketcher.RemoveLayer"));
        journal.replace("\"Sketcher.RemoveLayer\",\"parameters\":{\"layer\":1}",
                        "\"Sketcher.RemoveLayer\",\"parameters\":{\"layer\":7}");
        const QString changed = m_pFixture->File("changed");
        QVERIFY(vesk::WriteBytes(changed, journal));
        QVERIFY(journal != ReadBytes(Journal()));

        QCOMPARE(RunSketcher({"--replay", changed}).code, 3);
    }
};

VESK_TESTS(LayerTest);
#include "LayerTest.moc"

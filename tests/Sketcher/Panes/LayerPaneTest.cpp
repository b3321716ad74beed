#include "Panes/LayerPane.h"

#include "Model/LayerEdit.h"
#include "Model/Workspace.h"
#include "Panes/LayerModel.h"
#include "Ribbon/LayerCommands.h"

#include "Support/HostFixture.h"
#include "Support/HostValues.h"
#include "Support/TestValues.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QStringList>
#include <QToolButton>
#include <QTreeView>

#include <memory>

using namespace vesk;

namespace
{

/// The pane on screen for a drawing with the layers "0" and "walls"; there is a line on the second.
struct Fixture
{
    Fixture()
    {
        walls = workspace.sketch.AddLayer(L"walls");
        workspace.sketch.SetCurrentPen(&Pen::layer, walls);
        workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
        workspace.sketch.SetCurrentPen(&Pen::layer, Layer::BaseId);
        for (const CommandEntry& entry : MakeLayerCommands(workspace.sketch))
            host.AddCommand(entry.id, [execute = entry.execute](const CommandParameters& given) {
                execute(nullptr, given);
            });
        pPane = std::make_unique<LayerPane>(workspace);
        pPane->resize(230, 300);
        pPane->show();
        pPane->activateWindow();
        if (!QTest::qWaitForWindowActive(pPane.get(), vesk::test::PatienceMs))
            qFatal("the pane does not become active");
    }

    QTreeView& View() const { return *pPane->findChild<QTreeView*>("Layers"); }
    QLabel& Message() const { return *pPane->findChild<QLabel*>("LayerMessage"); }
    QToolButton& Button(const QString& name) const { return *pPane->findChild<QToolButton*>(name); }

    QModelIndex Cell(int row, int column) const { return View().model()->index(row, column); }

    void Click(int row, int column) const
    {
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          View().visualRect(Cell(row, column)).center());
    }

    /// Clicks the box of a cell, which stands at its left.
    void ClickBox(int row, int column) const
    {
        const QRect cell = View().visualRect(Cell(row, column));
        QTest::mouseClick(View().viewport(), Qt::LeftButton, {},
                          QPoint(cell.left() + 10, cell.center().y()));
    }

    /// What is shown of a row: "0 ● visible".
    QString Row(int row) const
    {
        const auto isOn = [this, row](int column) {
            return Cell(row, column).data(Qt::CheckStateRole).toInt() == Qt::Checked;
        };
        QString text = Cell(row, LayerModel::NameColumn).data().toString();
        text += Cell(row, LayerModel::CurrentColumn).data().toString().isEmpty() ? "" : " current";
        text += isOn(LayerModel::VisibleColumn) ? " visible" : "";
        text += isOn(LayerModel::LockedColumn) ? " locked" : "";
        return text;
    }

    const Layer& Walls() const { return *workspace.sketch.FindLayer(walls); }

    /// Types a name for the layer "walls", without finishing it.
    QLineEdit* TypeName(const QString& name) const
    {
        View().setCurrentIndex(Cell(1, LayerModel::NameColumn));
        View().edit(Cell(1, LayerModel::NameColumn));
        auto* pField = View().viewport()->findChild<QLineEdit*>();
        QTest::keyClicks(pField, name);
        return pField;
    }

    /// Gives the layer "walls" another name by typing.
    void Rename(const QString& name) const
    {
        View().edit(Cell(1, LayerModel::NameColumn));
        // A former editor may still be there.
        QLineEdit* pField = View().viewport()->findChildren<QLineEdit*>().last();
        pField->selectAll();
        QTest::keyClicks(pField, name);
        QTest::keyClick(pField, Qt::Key_Return);
        // The toolkit takes the text from the event loop.
        QCoreApplication::processEvents();
    }

    vesk::test::HostFixture host;
    Workspace workspace;
    int walls = 0;
    std::unique_ptr<LayerPane> pPane;
};

}

/// The layers in their pane, and what can be done with them there.
class LayerPaneTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyColumnHasANameForScreenReaders()
    {
        Fixture f;
        const QAbstractItemModel& model = *f.View().model();

        const QVariant mark =
            model.headerData(LayerModel::CurrentColumn, Qt::Horizontal, Qt::AccessibleTextRole);

        QVERIFY(mark.toString().contains("当前图层"));
        QCOMPARE(model.headerData(LayerModel::NameColumn, Qt::Horizontal, Qt::AccessibleTextRole),
                 QVariant());
    }

    void thePaneMayGoWhileALayerChanges_data()
    {
        QTest::addColumn<QString>("button");

        QTest::newRow("added") << "NewLayer";
        QTest::newRow("removed") << "RemoveLayer";
        QTest::newRow("changed") << "";
    }

    void thePaneMayGoWhileALayerChanges()
    {
        QFETCH(QString, button);
        Fixture f;
        f.workspace.sketch.Undo(); // The line.
        f.pPane->UpdateStatus();
        f.View().setCurrentIndex(f.Cell(1, LayerModel::NameColumn));
        connect(&f.workspace.sketch, &Sketch::changed, this, [&f] { f.pPane.reset(); });

        if (button.isEmpty())
            f.pPane->findChild<LayerModel*>()->Change(1, L"visible", false);
        else
            f.Button(button).click();

        QVERIFY(f.pPane == nullptr);
    }

    void whenIdsOfLayersHaveRunOutNoneIsAdded()
    {
        Fixture f;
        SketchContent content = f.workspace.sketch.GetContent();
        content.lastLayerId = SketchContent::GreatestId;
        QVERIFY(f.workspace.sketch.Restore(content));
        f.pPane->UpdateStatus();

        f.Button("NewLayer").click();

        QCOMPARE(f.View().model()->rowCount(), 2);
        QVERIFY(!f.workspace.sketch.CanUndo());
    }

    void theLayersAreListed()
    {
        Fixture f;

        QCOMPARE(f.View().model()->rowCount(), 2);
        QCOMPARE(f.Row(0), QString("0 current visible"));
        QCOMPARE(f.Row(1), QString("walls visible"));
    }

    void aChangeOfTheDrawingIsShown()
    {
        Fixture f;
        Layer layer = f.Walls();
        layer.name = L"doors";
        layer.isLocked = true;
        f.workspace.sketch.SetLayer(layer);
        f.workspace.sketch.SetCurrentPen(&Pen::layer, f.walls);
        f.workspace.sketch.AddLayer(L"third");

        f.pPane->UpdateStatus();

        QCOMPARE(f.View().model()->rowCount(), 3);
        QCOMPARE(f.Row(0), QString("0 visible"));
        QCOMPARE(f.Row(1), QString("doors current visible locked"));
    }

    void everythingFitsIntoAPaneOfTheDefaultWidth()
    {
        Fixture f;

        QVERIFY(f.View().header()->length() <= f.View().viewport()->width());
        QVERIFY(f.View().columnWidth(LayerModel::NameColumn) >= 40);
    }

    void aNewLayerHasAFreeNameAndIsRenamedAtOnce()
    {
        Fixture f;
        f.workspace.sketch.AddLayer(L"图层 1");
        f.pPane->UpdateStatus();

        f.Button("NewLayer").click();

        const auto commands = f.host.journal.GetCommands();
        QCOMPARE(commands.size(), std::size_t{1});
        QCOMPARE(commands[0].commandId, std::wstring(LayerAddition::CommandId));
        QCOMPARE(LayerAddition::From(commands[0].parameters)->name, std::wstring(L"图层 2"));
        auto* pField = f.View().viewport()->findChild<QLineEdit*>();
        QVERIFY(pField != nullptr);
        QCOMPARE(pField->selectedText(), QStringLiteral("图层 2"));
        f.pPane->UpdateStatus();
        QCOMPARE(pField->selectedText(), QStringLiteral("图层 2"));
    }

    void aTypedNameIsACommand()
    {
        Fixture f;

        f.Rename(" doors ");

        const auto commands = f.host.journal.GetCommands();
        QCOMPARE(commands.size(), std::size_t{1});
        QCOMPARE(commands[0].commandId, std::wstring(LayerEdit::CommandId));
        QCOMPARE(f.Walls().name, std::wstring(L"doors"));
        QCOMPARE(f.Row(1), QString("doors visible"));
    }

    void aNameBeingTypedSurvivesARefresh()
    {
        Fixture f;
        f.View().edit(f.Cell(1, LayerModel::NameColumn));
        QLineEdit* pField = f.View().viewport()->findChild<QLineEdit*>();
        QCOMPARE(pField->selectedText(), QString("walls"));
        QTest::keyClicks(pField, "doo");

        f.workspace.sketch.AddLine({0, 0, 0}, {5, 5, 0});
        f.pPane->UpdateStatus();

        QCOMPARE(pField->text(), QString("doo"));
    }

    void aNameBeingTypedSurvivesThatAnotherLayerIsAddedOrRemoved_data()
    {
        QTest::addColumn<bool>("isRemoved");

        QTest::newRow("added") << false;
        QTest::newRow("removed") << true;
    }

    void aNameBeingTypedSurvivesThatAnotherLayerIsAddedOrRemoved()
    {
        QFETCH(bool, isRemoved);
        Fixture f;
        const int third = f.workspace.sketch.AddLayer(L"third");
        f.pPane->UpdateStatus();
        const QPointer<QLineEdit> pField = f.TypeName("doors");

        if (isRemoved)
            f.workspace.sketch.RemoveLayer(third);
        else
            f.workspace.sketch.AddLayer(L"fourth");
        f.pPane->UpdateStatus();

        QVERIFY(pField != nullptr && pField->isVisible());
        QTest::keyClick(pField, Qt::Key_Return);
        QTRY_COMPARE(f.Walls().name, std::wstring(L"doors"));
    }

    void aNameBeingTypedIsTakenWhenAnotherLayerIsMade()
    {
        Fixture f;
        f.TypeName("doors");

        f.Button("NewLayer").click();

        QTRY_COMPARE(f.Walls().name, std::wstring(L"doors"));
        QCOMPARE(f.Row(2), QStringLiteral("图层 1 visible"));
    }

    void aLayerMayGoWhileItsNameIsBeingTyped()
    {
        Fixture f;
        f.workspace.sketch.Undo(); // The line.
        f.pPane->UpdateStatus();
        const QPointer<QLineEdit> pField = f.TypeName("doors");
        s_messages.clear();
        const QtMessageHandler former = qInstallMessageHandler(&LayerPaneTest::Note);

        f.workspace.sketch.RemoveLayer(f.walls);
        f.pPane->UpdateStatus();
        QTest::qWait(0);

        qInstallMessageHandler(former);
        QCOMPARE(s_messages, QStringList());
        QTRY_VERIFY(pField == nullptr);
        QCOMPARE(f.View().model()->rowCount(), 1);
        QVERIFY(f.host.journal.GetCommands().empty());
        QVERIFY(!f.Message().isVisible());
    }

    void theSameNameIsNoCommand()
    {
        Fixture f;

        f.Rename("walls");

        QCOMPARE(f.host.journal.GetCommands().size(), std::size_t{0});
        QVERIFY(!f.Message().isVisible());
    }

    void aNameThatIsRefusedIsExplained_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("message");

        QTest::newRow("taken") << "0" << QStringLiteral("已有名为“0”的图层");
        QTest::newRow("empty") << " " << QStringLiteral("图层名不能为空");
    }

    void aNameThatIsRefusedIsExplained()
    {
        QFETCH(QString, name);
        QFETCH(QString, message);
        Fixture f;

        f.Rename(name);

        QCOMPARE(f.host.journal.GetCommands().size(), std::size_t{0});
        QCOMPARE(f.Row(1), QString("walls visible"));
        QVERIFY(f.Message().isVisible());
        QCOMPARE(f.Message().text(), message);
    }

    void theMessageGoesWithTheNextChange()
    {
        Fixture f;
        f.Rename("0");
        QVERIFY(f.Message().isVisible());

        f.Rename("doors");

        QVERIFY(!f.Message().isVisible());
    }

    void aClickedBoxIsACommand_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("row");

        QTest::newRow("visible") << int(LayerModel::VisibleColumn) << "walls";
        QTest::newRow("locked") << int(LayerModel::LockedColumn) << "walls visible locked";
    }

    void aClickedBoxIsACommand()
    {
        QFETCH(int, column);
        QFETCH(QString, row);
        Fixture f;

        f.ClickBox(1, column);

        QCOMPARE(f.host.journal.GetCommands().size(), std::size_t{1});
        QCOMPARE(f.Row(1), row);
        QVERIFY(f.workspace.sketch.CanUndo());
    }

    void aClickInTheFirstColumnMakesALayerCurrent()
    {
        Fixture f;

        f.Click(1, LayerModel::CurrentColumn);

        QCOMPARE(f.workspace.sketch.GetCurrentPen().layer, f.walls);
        QCOMPARE(f.Row(1), QString("walls current visible"));
        QCOMPARE(f.Row(0), QString("0 visible"));
    }

    void theButtonMakesTheSelectedLayerCurrent()
    {
        Fixture f;
        f.Click(0, LayerModel::NameColumn);
        QVERIFY(!f.Button("MakeLayerCurrent").isEnabled());
        f.Click(1, LayerModel::NameColumn);
        QVERIFY(f.Button("MakeLayerCurrent").isEnabled());

        f.Button("MakeLayerCurrent").click();

        QCOMPARE(f.workspace.sketch.GetCurrentPen().layer, f.walls);
        QVERIFY(!f.Button("MakeLayerCurrent").isEnabled());
    }

    void onlyAnEmptyLayerCanBeRemoved()
    {
        Fixture f;
        f.workspace.sketch.AddLayer(L"empty");
        f.pPane->UpdateStatus();
        QVERIFY(!f.Button("RemoveLayer").isEnabled());
        f.Click(0, LayerModel::NameColumn);
        QVERIFY(!f.Button("RemoveLayer").isEnabled());
        f.Click(1, LayerModel::NameColumn);
        QVERIFY(!f.Button("RemoveLayer").isEnabled());
        f.Click(2, LayerModel::NameColumn);
        QVERIFY(f.Button("RemoveLayer").isEnabled());

        f.Button("RemoveLayer").click();

        QCOMPARE(f.host.journal.GetCommands().size(), std::size_t{1});
        QCOMPARE(f.View().model()->rowCount(), 2);
        QCOMPARE(f.workspace.sketch.GetLayers().size(), std::size_t{2});
    }

    void theColourIsChosenFromAMenu()
    {
        Fixture f;

        f.Click(1, LayerModel::ColourColumn);
        auto* pMenu = f.pPane->findChild<QMenu*>("LayerColours");
        QVERIFY(pMenu != nullptr && pMenu->isVisible());
        QCOMPARE(pMenu->actions().size(), int(LineColours().size()));
        pMenu->actions()[1]->trigger();
        pMenu->close();

        QCOMPARE(f.host.journal.GetCommands().size(), std::size_t{1});
        QCOMPARE(f.Walls().colour, 1);
    }

    void afterTheSelectedLayerHasGoneNoneIsSelected()
    {
        Fixture f;
        f.workspace.sketch.AddLayer(L"third");
        const int fourth = f.workspace.sketch.AddLayer(L"fourth");
        f.pPane->UpdateStatus();
        f.Click(2, LayerModel::NameColumn);

        f.Button("RemoveLayer").click();

        QCOMPARE(f.View().model()->rowCount(), 3);
        QVERIFY(f.workspace.sketch.FindLayer(L"fourth")->id == fourth);
        QVERIFY(!f.View().selectionModel()->hasSelection());
        QVERIFY(!f.Button("RemoveLayer").isEnabled());
    }

    void theSelectedLayerStaysSelected()
    {
        Fixture f;
        f.Click(1, LayerModel::NameColumn);

        f.workspace.sketch.AddLayer(L"third");
        f.pPane->UpdateStatus();

        QCOMPARE(f.View().selectionModel()->selectedRows().size(), 1);
        QCOMPARE(f.View().selectionModel()->selectedRows().front().row(), 1);
    }

private:
    static void Note(QtMsgType, const QMessageLogContext&, const QString& message)
    {
        if (message.startsWith("QAbstractItemView"))
            s_messages << message;
    }

    inline static QStringList s_messages;
};

VESK_TESTS(LayerPaneTest);
#include "LayerPaneTest.moc"

#include "Ribbon/ContextMenu.h"

#include "Ribbon/CommandTable.h"
#include "Support/WarningRecorder.h"
#include "View/SketchViewFixture.h"

#include <QMenu>

using namespace vesk;
using vesk::test::SketchViewFixture;

namespace
{

/// The program's commands in the menu of a view; what was chosen is recorded.
struct Fixture : SketchViewFixture
{
    Fixture()
    {
        workspace.sketch.AddLine({-40, 20, 0}, {40, 20, 0});
        commands = MakeCommandTable(workspace, view, input);
        RegisterCommands(commands);
        pMenu = std::make_unique<ContextMenu>(commands, view);
    }
    ~Fixture() { ActionManager::Reset(); }

    QMenu* Shown() const { return view.findChild<QMenu*>("ContextMenu"); }

    QAction* Entry(const char* commandId) const
    {
        for (QAction* pAction : Shown()->actions())
        {
            if (pAction->property("CommandId") == QLatin1String(commandId))
                return pAction;
        }
        return nullptr;
    }

    std::vector<CommandEntry> commands;
    std::unique_ptr<ContextMenu> pMenu;
};

}

class ContextMenuTest final : public QObject
{
    Q_OBJECT

private slots:
    void whatIsImpossibleIsDisabled()
    {
        Fixture f;

        f.OpenMenuAt(0, 100);

        QVERIFY(f.Shown()->isVisible());
        QVERIFY(!f.Entry("Sketcher.Delete")->isEnabled());
        QVERIFY(f.Entry("Sketcher.SelectAll")->isEnabled());
        QVERIFY(f.Entry("Sketcher.ZoomAll")->isEnabled());
    }

    void anEntryRunsItsCommand()
    {
        Fixture f;
        f.OpenMenuAt(0, 20);

        f.Entry("Sketcher.Delete")->trigger();

        QVERIFY(f.workspace.sketch.GetEntities().empty());
        QCOMPARE(f.workspace.sketch.GetUndoText(), std::wstring(L"删除"));
    }

    void theLastToolComesFirst()
    {
        Fixture f;
        ActionManager::RunCommand(L"Sketcher.Circle", {});
        ActionManager::Reset();

        f.OpenMenuAt(0, 100);

        QCOMPARE(f.Shown()->actions().front()->text(), QString("重复“圆”"));
        f.Shown()->actions().front()->trigger();
        QCOMPARE(ActionManager::GetRunningCommandId(), std::wstring(L"Sketcher.Circle"));
    }

    void beforeTheFirstToolThereIsNoneToRepeat()
    {
        Fixture f;

        f.OpenMenuAt(0, 100);

        QVERIFY(!f.Shown()->actions().front()->text().contains(QStringLiteral("重复")));
    }

    void returnRunsTheLastToolAgain()
    {
        Fixture f;
        ActionManager::RunCommand(L"Sketcher.Circle", {});
        ActionManager::Reset();

        f.Press(Qt::Key_Return);

        QCOMPARE(ActionManager::GetRunningCommandId(), std::wstring(L"Sketcher.Circle"));
    }

    void aClosedMenuIsGone()
    {
        Fixture f;
        f.OpenMenuAt(0, 100);

        f.Shown()->close();

        QTRY_VERIFY(f.Shown() == nullptr);
    }

    void entriesTellDriversOfTheProgramWhatTheyAre()
    {
        Fixture f;

        f.OpenMenuAt(0, 20);

        QVERIFY(f.Entry("Sketcher.Move")->property("IsDefinition").toBool());
        QCOMPARE(f.Entry("Sketcher.Move")->text(), QString("移动"));
    }
};

VESK_TESTS(ContextMenuTest);
#include "ContextMenuTest.moc"

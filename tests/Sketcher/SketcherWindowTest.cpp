#include "SketcherWindow.h"

#include "Model/Workspace.h"
#include "Ribbon/CommandTable.h"
#include "View/SketchView.h"

#include "Command/ActionManager.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Dimension/LengthUnit.h"
#include "HostCore.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/UiApplication.h"
#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonButtonControl.h"
#include "Qtitan/RibbonGroup.h"
#include "Qtitan/RibbonPage.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QProgressBar>
#include <QRadioButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <optional>
#include <vector>

using namespace vesk;

namespace
{

/// Records the widgets that are shown as separate windows while it lives.
class WindowsShown final : public QObject
{
public:
    WindowsShown() { QCoreApplication::instance()->installEventFilter(this); }

    const QStringList& Get() const { return m_names; }

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Show && pWatched->isWidgetType() &&
            static_cast<QWidget*>(pWatched)->isWindow())
            m_names << pWatched->objectName();
        return false;
    }

private:
    QStringList m_names;
};

/// While it exists nothing creates controls, not even a library that is linked.
class NoControlFactory
{
public:
    NoControlFactory() { Access::Set(nullptr); }
    ~NoControlFactory() { Access::Set(m_pBefore); }
    NoControlFactory(const NoControlFactory&) = delete;
    NoControlFactory& operator=(const NoControlFactory&) = delete;

private:
    struct Access : VeskIControlFactory
    {
        using VeskIControlFactory::Set;
    };

    VeskIControlFactory* m_pBefore = VeskIControlFactory::Get();
};

/// The program's window on screen, with a few commands that record that they ran.
struct Fixture
{
    explicit Fixture(bool hasLibrary = true)
    {
        if (hasLibrary)
            library.emplace();
        core.GetViewManager().AddView(&window.GetView());
        application.SetMainWindow(&window);
        const std::vector<CommandEntry> commands = {
            MakeEntry(L"Draw", L"绘图", L"", L"Ctrl+L"),
            MakeEntry(L"Zoom", L"视图", ZoomMenu::Id, L"Ctrl+0"),
            MakeEntry(L"More", L"绘图", L"", L""),
            MakeEntry(L"Hidden", L"", L"", L"Ctrl+K"),
            MakeEntry(L"Pane", L"面板", PaneMenu::Id, L""),
            MakeEntry(L"Start2", L"视图", L"", L"").OnStartPage(),
            MakeEntry(L"Start3", L"帮助", L"", L"").OnStartPage(),
            MakeEntry(L"Start", L"文件", L"", L"Ctrl+N").OnStartPage(),
        };
        RegisterCommands(commands);
        window.show();
        window.BuildControls(commands, *controls);
        QCoreApplication::processEvents();
    }

    ~Fixture()
    {
        ActionManager::Reset();
        window.ReleaseControls();
        controls.reset();
        application.SetMainWindow(nullptr);
        core.GetViewManager().RemoveView(&window.GetView());
    }

    CommandEntry MakeEntry(const std::wstring& id, const std::wstring& group,
                           const std::wstring& menu, const std::wstring& keys)
    {
        const auto run = [this, id](IUiView*, const CommandParameters&) {
            ran.push_back(id);
            return OwnerPtr<IAction>();
        };
        return {id,
                L"the " + id,
                L":/icons/line.svg",
                L"tip of " + id,
                group,
                menu,
                keys,
                Command::Kind::Plain,
                run,
                {}};
    }

    Qtitan::RibbonPage& StartPage() const { return *window.GetRibbon()->page(0); }
    Qtitan::RibbonPage& Page() const { return *window.GetRibbon()->page(1); }

    /// The groups of the drawing page from left to right.
    std::vector<Qtitan::RibbonGroup*> Groups() const { return GroupsOf(Page()); }

    static std::vector<Qtitan::RibbonGroup*> GroupsOf(const Qtitan::RibbonPage& page)
    {
        const auto found = page.findChildren<Qtitan::RibbonGroup*>();
        std::vector<Qtitan::RibbonGroup*> groups(found.begin(), found.end());
        std::sort(groups.begin(), groups.end(),
                  [](const auto* pA, const auto* pB) { return pA->x() < pB->x(); });
        return groups;
    }

    /// The buttons of a group, in the order in which they were added.
    QStringList ButtonsOf(const QString& title, Qtitan::RibbonButtonForm form) const
    {
        QStringList names;
        for (const Qtitan::RibbonGroup* pGroup : Groups())
        {
            if (pGroup->title() != title)
                continue;
            for (const auto* pControl : pGroup->findChildren<Qtitan::RibbonButtonControl*>())
            {
                if (pControl->form() == form && pControl->widget() != nullptr)
                    names << pControl->widget()->objectName();
            }
        }
        return names;
    }

    QToolButton* Button(const QString& name) const
    {
        return window.GetRibbon()->findChild<QToolButton*>(name);
    }

    QShortcut* Shortcut(const QString& keys) const
    {
        for (auto* pShortcut : window.findChildren<QShortcut*>())
        {
            if (pShortcut->key() == QKeySequence(keys))
                return pShortcut;
        }
        return nullptr;
    }

    vesk::test::WarningRecorder warnings;
    HostCore core;
    UiApplication application;
    std::optional<ControlLibrary> library;
    DimensionInputController input;
    Workspace workspace;
    WindowsShown windows;
    SketcherWindow window{workspace, input};
    std::optional<ControlHost> controls{std::in_place};
    std::vector<std::wstring> ran;
};

}

/// How the window is built: what is where, and what is removed again.
class SketcherWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void theTitleIsTheDrawingsName()
    {
        Fixture f;
        QCOMPARE(f.window.windowTitle(), QStringLiteral("未命名[*] - Sketcher"));

        f.workspace.sketch.SetName(L"plan");

        QCOMPARE(f.window.windowTitle(), QStringLiteral("plan[*] - Sketcher"));
    }

    void theWindowHasItsSizeAndIcon()
    {
        Fixture f;

        QCOMPARE(f.window.size(), QSize(1200, 800));
        QVERIFY(QFile::exists(":/icons/sketcher.svg"));
        QVERIFY(!f.window.windowIcon().pixmap(32, 32).isNull());
        QVERIFY(f.window.GetView().isVisible());
        QCOMPARE(f.window.centralWidget(), static_cast<QWidget*>(&f.window.GetView()));
    }

    void theGroupsStandInTheOrderOfTheCommandsAndThePanelsBehindThem()
    {
        Fixture f;

        QStringList titles;
        for (const Qtitan::RibbonGroup* pGroup : f.Groups())
            titles << pGroup->title();

        QCOMPARE(f.Page().title(), QStringLiteral("草图"));
        QCOMPARE(titles, QStringList({"绘图", "视图", "面板", "线条", "绘图设置", "图纸"}));
    }

    void theDrawingPageIsShownFirst()
    {
        Fixture f;

        QCOMPARE(f.window.GetRibbon()->pageCount(), 2);
        QCOMPARE(f.window.GetRibbon()->currentPageIndex(), 1);
        QVERIFY(f.Page().isVisible());
    }

    void theStartPageHasTheGroupsOfItsCommands()
    {
        Fixture f;

        f.window.GetRibbon()->setCurrentPageIndex(0);

        QStringList titles;
        for (const Qtitan::RibbonGroup* pGroup : f.GroupsOf(f.StartPage()))
            titles << pGroup->title();
        QCOMPARE(f.StartPage().title(), QStringLiteral("开始"));
        QCOMPARE(titles, QStringList({"文件", "帮助", "视图"}));
        QVERIFY(f.StartPage().isAncestorOf(f.Button("Start")));
        QVERIFY(f.StartPage().isAncestorOf(f.Button("Start2")));
        QVERIFY(f.Button("Start")->isVisible());
    }

    void keysClickAButtonOfAPageThatIsNotShown()
    {
        Fixture f;

        emit f.Shortcut("Ctrl+N")->activated();

        QTRY_COMPARE_WITH_TIMEOUT(f.ran, (std::vector<std::wstring>{L"Start"}),
                                  vesk::test::PatienceMs);
    }

    void onlyTheDrawingToolsAreLarge()
    {
        Fixture f;
        using Form = Qtitan::RibbonButtonForm;

        QCOMPARE(f.ButtonsOf("绘图", Form::Large), QStringList({"Draw", "More"}));
        QCOMPARE(f.ButtonsOf("绘图", Form::Small), QStringList());
        QCOMPARE(f.ButtonsOf("视图", Form::Small), QStringList({"Zoom", "Sketcher.Zoom"}));
        QCOMPARE(f.ButtonsOf("视图", Form::Large), QStringList());
        QCOMPARE(f.ButtonsOf("面板", Form::Small), QStringList({"Pane", "Sketcher.Panes"}));
        QCOMPARE(f.ButtonsOf("面板", Form::Large), QStringList());
        QVERIFY(f.Button("Hidden") == nullptr);
    }

    void aButtonShowsItsCommand()
    {
        Fixture f;

        const QToolButton* pButton = f.Button("More");

        QVERIFY(pButton->isVisible());
        QVERIFY(pButton->isEnabled());
        QCOMPARE(pButton->text(), QString("the More"));
        QCOMPARE(pButton->toolTip(), QString("tip of More"));
        QVERIFY(!pButton->icon().isNull());
    }

    void nothingOpensAsAWindowOfItsOwn()
    {
        const Fixture f;

        QCOMPARE(f.windows.Get(), QStringList{f.window.objectName()});
    }

    void keysClickTheButton()
    {
        Fixture f;
        QShortcut* pShortcut = f.Shortcut("Ctrl+L");
        QVERIFY(pShortcut != nullptr);
        QCOMPARE(pShortcut->context(), Qt::ApplicationShortcut);
        QVERIFY(f.Shortcut("Ctrl+0") != nullptr);
        QVERIFY(f.Shortcut("Ctrl+K") == nullptr);

        emit pShortcut->activated();

        QTRY_COMPARE_WITH_TIMEOUT(f.ran, (std::vector<std::wstring>{L"Draw"}),
                                  vesk::test::PatienceMs);
    }

    void theMenusStandBehindTheirButtons_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("entry");

        QTest::newRow("zoom") << "Sketcher.Zoom"
                              << "the Zoom";
        QTest::newRow("panes") << "Sketcher.Panes"
                               << "the Pane";
    }

    void theMenusStandBehindTheirButtons()
    {
        QFETCH(QString, button);
        QFETCH(QString, entry);
        Fixture f;

        const QToolButton* pButton = f.Button(button);

        QVERIFY(pButton != nullptr && pButton->isVisible());
        QVERIFY(pButton->menu() != nullptr);
        QCOMPARE(pButton->menu()->actions().front()->text(), entry);
    }

    void thePaneButtonIsKnown()
    {
        Fixture f;

        QCOMPARE(f.window.GetPaneButton(), f.Button("Sketcher.Panes"));
        QVERIFY(f.window.GetPaneButton() != nullptr);
    }

    void thePanelsStandInTheirGroups_data()
    {
        QTest::addColumn<QString>("group");
        QTest::addColumn<QString>("control");

        QTest::newRow("style") << "线条"
                               << "Sketcher.LineStyle";
        QTest::newRow("colour") << "线条"
                                << "Sketcher.LineColour";
        QTest::newRow("width") << "线条"
                               << "Sketcher.LineWidth";
        QTest::newRow("layer") << "图纸"
                               << "Sketcher.Layer";
        QTest::newRow("snaps") << "绘图设置"
                               << "Sketcher.Snap.Grid";
        QTest::newRow("units") << "绘图设置"
                               << "Sketcher.Unit.cm";
        QTest::newRow("name") << "图纸"
                              << "Sketcher.DrawingName";
        QTest::newRow("count") << "图纸"
                               << "Sketcher.EntityCount";
    }

    void thePanelsStandInTheirGroups()
    {
        QFETCH(QString, group);
        QFETCH(QString, control);
        Fixture f;

        const auto groups = f.Groups();
        const auto found = std::find_if(groups.begin(), groups.end(), [&](const auto* pGroup) {
            return pGroup->title() == group;
        });

        QVERIFY(found != groups.end());
        const auto* pControl = (*found)->template findChild<QWidget*>(control);
        QVERIFY(pControl != nullptr && pControl->isVisible());
    }

    void anotherUnitIsTold()
    {
        Fixture f;
        SketchView& view = f.window.GetView();
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 60), view.mapToGlobal(QPoint(50, 60)),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &move);
        const QSignalSpy units(&f.window, &SketcherWindow::unitChanged);
        const QSignalSpy cursors(&view, &DrawingView::cursorMoved);

        f.window.findChild<QRadioButton*>("Sketcher.Unit.cm")->click();

        QCOMPARE(units.count(), 1);
        QCOMPARE(cursors.count(), 1);
        QCOMPARE(&LengthUnit::GetCurrent(), &LengthUnit::Centimetre());
    }

    void unitAndSnapsCanBeChosenByTheProgram()
    {
        Fixture f;

        f.window.ChooseUnit(L"inch");
        f.window.ChooseSnaps({false, true, false, false, true});

        QVERIFY(f.window.findChild<QRadioButton*>("Sketcher.Unit.inch")->isChecked());
        QCOMPARE(&LengthUnit::GetCurrent(), &LengthUnit::Inch());
        QVERIFY(!f.window.findChild<QCheckBox*>("Sketcher.Snap.End")->isChecked());
        QVERIFY(f.window.findChild<QCheckBox*>("Sketcher.Snap.Grid")->isChecked());
        QVERIFY(!f.workspace.snapper.IsOn(Snapper::End));
        QVERIFY(f.workspace.snapper.IsOn(Snapper::Middle));
        QVERIFY(f.workspace.snapper.IsOn(Snapper::Grid));
    }

    void anUnknownUnitIsNotChosen()
    {
        Fixture f;
        f.window.ChooseUnit(L"mile");

        QCOMPARE(&LengthUnit::GetCurrent(), &LengthUnit::Millimetre());
    }

    void whatIsUnderTheCursorIsDescribed()
    {
        Fixture f;
        SketchView& view = f.window.GetView();
        const auto* pText = f.window.statusBar()->findChild<QLabel*>("Pointed");
        f.workspace.sketch.AddLine({-500, 0, 0}, {500, 0, 0});
        QCOMPARE(pText->text(), QString());

        QMouseEvent move(QEvent::MouseMove, QRectF(view.rect()).center(), QCursor::pos(),
                         Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &move);
        QCOMPARE(pText->text(), QStringLiteral("直线 #1：长度 1000.000 mm，角度 0.00°"));

        f.window.ChooseUnit(L"m");
        QCOMPARE(pText->text(), QStringLiteral("直线 #1：长度 1.000 m，角度 0.00°"));

        f.workspace.sketch.Erase(1);
        QTRY_COMPARE(pText->text(), QString());
    }

    void theProgressIsHiddenUntilSomethingIsRead()
    {
        Fixture f;
        const auto* pBar = f.window.statusBar()->findChild<QProgressBar*>();
        QVERIFY(pBar != nullptr);
        QVERIFY(!pBar->isVisible());
        QCOMPARE(pBar->toolTip(), QStringLiteral("正在进行的操作的进度；Esc 取消"));

        f.window.ShowState("test", [] { return QString("state"); });
        f.window.GetProgress()->SetVisible(true);
        f.controls->RefreshControls();

        QTRY_VERIFY_WITH_TIMEOUT(pBar->isVisible(), vesk::test::PatienceMs);
        const auto* pHint = f.window.statusBar()->findChild<QLabel*>("Hint");
        const auto* pStates = f.window.statusBar()->findChild<QLabel*>("States");
        QTRY_VERIFY_WITH_TIMEOUT(pHint->x() < pBar->x(), vesk::test::PatienceMs);
        QTRY_VERIFY_WITH_TIMEOUT(pBar->x() < pStates->x(), vesk::test::PatienceMs);
    }

    void whatRefersToTheControlsGoesBeforeThem()
    {
        Fixture f;
        const auto* pCount = f.window.findChild<QLabel*>("Sketcher.EntityCount");
        const QString before = pCount->text();

        f.window.ReleaseControls();
        f.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});

        QVERIFY(f.window.GetProgress() == nullptr);
        QVERIFY(f.window.GetPaneButton() == nullptr);
        QCOMPARE(pCount->text(), before);
    }

    void withoutTheLibraryThereAreNoControls()
    {
        const NoControlFactory none;
        Fixture f(false);

        QVERIFY(f.window.GetProgress() == nullptr);
        QVERIFY(f.window.GetPaneButton() == nullptr);
        QCOMPARE(f.window.GetRibbon()->findChildren<QToolButton*>("Draw").size(), 0);
        QVERIFY(f.Shortcut("Ctrl+L") == nullptr);
        QVERIFY(f.window.statusBar()->findChild<QProgressBar*>() == nullptr);
    }
};

VESK_TESTS(SketcherWindowTest);
#include "SketcherWindowTest.moc"

#include "Control/ReportingControls.h"
#include "DockFixture.h"
#include "HostUi/ControlHost.h"
#include "Support/TestValues.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace vesk::test
{

using EventType = ControlDefinitionChangeEventType;

/// Makes a control report something.
using Scene = void (*)(ReportingControl& f);

void FollowASelection(ReportingControl& f)
{
    auto opDefinition = MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text);
    const ForeignLineEditDefinition& definition = *opDefinition;
    f.Own(MakeOwner<QtLineEdit>(std::move(opDefinition), f.pParent.get()));
    definition.GetEvent().RaisePropertyChanged();
}

void WriteASelection(ReportingControl& f)
{
    QtLineEdit& edit = f.Own(MakeOwner<QtLineEdit>(
        MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text), f.pParent.get()));
    QMetaObject::invokeMethod(&edit, "selectionChanged");
}

void EndEditing(ReportingControl& f)
{
    QtLineEdit& edit = f.Own(MakeOwner<QtLineEdit>(
        MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text), f.pParent.get()));
    QTest::sendKeyEvent(QTest::Press, &edit, Qt::Key_Return, QString("\r"), Qt::NoModifier);
}

void ClearABareEdit(ReportingControl& f)
{
    f.script.SetAct({});
    QtLineEdit& edit = f.Own(MakeOwner<QtLineEdit>(nullptr, f.pParent.get()));
    f.script.SetAct([&f] { f.Destroy(); });
    edit.Clear();
}

void MakeAnEditOfRealNumbers(ReportingControl& f)
{
    // The window destroys the edit with it, so nobody owns it.
    auto* pEdit = new QtLineEdit(MakeOwner<EmptyRealReference>(), f.pParent.get());
    f.pVictim = f.pParent == nullptr ? nullptr : pEdit;
}

void MakeAButton(ReportingControl& f)
{
    ChildThief thief(false);
    auto* pButton =
        new QtButton(MakeOwner<CommandButtonDefinition>(L"id", L"command"), f.pParent.get());
    f.pVictim = f.pParent == nullptr ? nullptr : pButton;
}

void SendAnUnknownCommand(ReportingControl& f)
{
    f.Own(MakeOwner<QtButton>(MakeOwner<CommandButtonDefinition>(L"id", L"Unknown"), nullptr))
        .click();
}

/// Creates a menu that is destroyed by what it reports, although nobody owns it yet.
void MakeAMenu(ReportingControl& f, OwnerPtr<ICommandButtonMenuDefinition> opDefinition)
{
    f.script.SetAct([&f] {
        const QWidgetList widgets = QApplication::allWidgets();
        const auto isMenuButton = [](const QWidget* pWidget) {
            return qobject_cast<const QToolButton*>(pWidget) != nullptr;
        };
        delete *std::find_if(widgets.begin(), widgets.end(), isMenuButton);
        f.Destroy();
    });
    Factory().CreateQtCommandButtonMenu(std::move(opDefinition)).Release();
}

void MakeAMenuOfNothing(ReportingControl& f)
{
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    const auto opItem = MakeItem(L"A", L"a");
    opDefinition->items = {nullptr, opItem.Get()};
    MakeAMenu(f, std::move(opDefinition));
}

void MakeAMenuWithoutAnAction(ReportingControl& f)
{
    ChildThief thief(false);
    MakeAMenu(f, MakeOwner<LooseMenuDefinition>());
}

void MakeAMenuWithoutAMenu(ReportingControl& f)
{
    ChildThief thief(true);
    MakeAMenu(f, MakeOwner<LooseMenuDefinition>());
}

template <int type>
void TellOfASubMenu(ReportingControl& f)
{
    auto opDefinition = MakeOwner<LooseMenuDefinition>();
    const auto opItem = MakeItem(L"A", L"a");
    opDefinition->items = {opItem.Get()};
    f.Own(Factory().CreateQtCommandButtonMenu(std::move(opDefinition)));
    LooseContainerDefinition container;
    container.items = {nullptr, opItem.Get()};

    f.Tell(type, 0, &container);
}

struct CheckBoxGroupKind
{
    using Group = QtCheckBoxGroup;
    using Definition = LooseCheckBoxGroupDefinition;
    using Item = CheckBoxDefinition;
    using Buttons = CheckBoxes;

    static OwnerPtr<IControl> Make(OwnerPtr<Definition> opDefinition, QWidget& parent)
    {
        return Factory().CreateQtCheckBoxGroup(std::move(opDefinition), parent.winId());
    }
};

struct RadioButtonGroupKind
{
    using Group = QtRadioButtonGroup;
    using Definition = LooseRadioButtonGroupDefinition;
    using Item = RadioButtonDefinition;
    using Buttons = RadioButtons;

    static OwnerPtr<IControl> Make(OwnerPtr<Definition> opDefinition, QWidget& parent)
    {
        return Factory().CreateQtRadioButtonGroup(std::move(opDefinition), parent.winId());
    }
};

template <class Kind>
void MakeAGroupOfNothing(ReportingControl& f)
{
    const typename Kind::Item item(L"a", L"a");
    auto opDefinition = MakeOwner<typename Kind::Definition>();
    opDefinition->items = {nullptr, &item};

    f.opControl = Kind::Make(std::move(opDefinition), *f.pParent);

    QVERIFY(f.opControl == nullptr);
}

/// A group of two items whose list of buttons starts with a missing one.
template <class Kind>
struct TwoItems
{
    explicit TwoItems(ReportingControl& f)
    {
        auto opDefinition = MakeOwner<typename Kind::Definition>();
        pDefinition = opDefinition.Get();
        pDefinition->items = {&first, &second};
        pGroup = static_cast<typename Kind::Group*>(&f.Own(OwnerPtr<typename Kind::Group>(
            new typename Kind::Group(std::move(opDefinition), f.pParent.get()))));
    }

    void ForgetAButton() { (pGroup->*MemberOf(typename Kind::Buttons())).front() = nullptr; }

    const typename Kind::Item first{L"a", L"a"};
    const typename Kind::Item second{L"b", L"b"};
    typename Kind::Definition* pDefinition;
    typename Kind::Group* pGroup;
};

template <class Kind>
void UpdateAMissingItem(ReportingControl& f)
{
    TwoItems<Kind> items(f);
    items.pDefinition->items.front() = nullptr;
    f.opControl->UpdateStatus();
}

template <class Kind>
void FollowAMissingItem(ReportingControl& f)
{
    TwoItems<Kind> items(f);
    items.pDefinition->items.front() = nullptr;
    items.pDefinition->GetEvent().RaisePropertyChanged();
}

template <class Kind>
void ClearAMissingButton(ReportingControl& f)
{
    TwoItems<Kind> items(f);
    items.ForgetAButton();
    f.Tell(EventType::Clear, -1, nullptr);
}

template <class Kind>
void InsertBesideAMissingButton(ReportingControl& f)
{
    TwoItems<Kind> items(f);
    items.ForgetAButton();
    f.Tell(EventType::Insert, 1, &items.first);
}

template <class Kind, int type>
void TellOfAnItemWithoutAButton(ReportingControl& f)
{
    TwoItems<Kind> items(f);
    ChildThief thief(true);
    f.Tell(type, 1, &items.first);
}

/// Uses a control as a user would, so that it reports something inside a Qt signal.
using Use = void (*)(QWidget& control);

void TypeAKey(QWidget& control)
{
    QTest::keyClick(&control, Qt::Key_7);
}

void SelectSomething(QWidget& control)
{
    qobject_cast<QLineEdit*>(&control)->setSelection(0, 2);
}

void ChooseAnEntry(QWidget& control)
{
    qobject_cast<QToolButton*>(&control)->menu()->actions().first()->trigger();
}

void PressTheMainPart(QWidget& control)
{
    qobject_cast<QToolButton*>(&control)->click();
}

/// Creates a control with the id "Foreign".
using Make = QWidget* (*)(ControlHost& controls);

QWidget* MakeAForeignEdit(ControlHost& controls)
{
    return controls.Create(OwnerPtr<ILineEditDefinition>(
        MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text)));
}

QWidget* MakeAMenuOfUnknownCommands(ControlHost& controls)
{
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Foreign", L"Unknown");
    opDefinition->AddMenuItem(MakeItem(L"Unknown", L"entry"));
    return controls.Create(OwnerPtr<ICommandButtonMenuDefinition>(std::move(opDefinition)));
}

}

Q_DECLARE_METATYPE(vesk::test::Scene)
Q_DECLARE_METATYPE(vesk::test::Use)
Q_DECLARE_METATYPE(vesk::test::Make)

namespace vesk::test
{

/// While a warning is on screen, the event loop of its dialog may destroy whoever reported it, and
/// its container. Here it does so at every point where code continues afterwards.
class WarningDialogLifetimeTest : public QObject
{
    Q_OBJECT

private slots:
    void controlMayDieInItsReport_data();
    void controlMayDieInItsReport();
    void controlThatReportsInItsSignalMayBeRemoved_data();
    void controlThatReportsInItsSignalMayBeRemoved();
    void paneManagerMayDieWhileContentIsMissed();
    void paneManagerMayDieWhileAForeignPaneIsReported();
    void paneThatGoesWhileAnotherIsReportedIsNotAnswered();
    void handlerMayDieWhenItsEditorCannotBePlaced();
    void handlerMayDieWhenItsEditorCannotBeMade();
};

template <class Kind>
void AddGroupRows(const char* kind, const QString& noPairOn, const QString& noPairStatus)
{
    const auto add = [kind](const char* scene, Scene run, const QString& warning) {
        QTest::addRow("%s, %s", kind, scene) << run << QStringList{warning};
    };
    add("missing item when made", &MakeAGroupOfNothing<Kind>, "pDefinition为空");
    add("missing item in a refresh", &UpdateAMissingItem<Kind>, noPairStatus);
    add("missing item in a change", &FollowAMissingItem<Kind>, noPairOn);
    add("missing button when cleared", &ClearAMissingButton<Kind>, "iter为空");
    add("missing button in an insertion", &InsertBesideAMissingButton<Kind>, "iter为空");
    add("no button for an added item", &TellOfAnItemWithoutAButton<Kind, EventType::Add>,
        "parent cannot be null");
    add("no button for an inserted item", &TellOfAnItemWithoutAButton<Kind, EventType::Insert>,
        "parent cannot be null");
}

void WarningDialogLifetimeTest::controlMayDieInItsReport_data()
{
    QTest::addColumn<Scene>("run");
    QTest::addColumn<QStringList>("warnings");
    const auto add = [](const char* name, Scene run, const QString& warning) {
        QTest::newRow(name) << run << QStringList{warning};
    };
    add("line edit, selection followed", &FollowASelection, "类型不正确");
    add("line edit, selection written", &WriteASelection, "类型不正确");
    add("line edit, end of editing", &EndEditing, "类型不正确");
    QTest::newRow("line edit, bare and cleared")
        << Scene(&ClearABareEdit)
        << QStringList({"m_pControlDefinition为空", "pControlDefinition为空"});
    add("line edit, made", &MakeAnEditOfRealNumbers, "LineEditDefinition不能为空");
    add("button, made", &MakeAButton, "parent cannot be null");
    add("button, unknown command", &SendAnUnknownCommand, "无法找到字符串对应的注册命令：Unknown");
    add("menu, missing entry when made", &MakeAMenuOfNothing, "pMenuItemDefinition为空");
    add("menu, no action when made", &MakeAMenuWithoutAnAction, "parent cannot be null");
    add("menu, no menu when made", &MakeAMenuWithoutAMenu, "parent cannot be null");
    add("menu, missing entry added", &TellOfASubMenu<EventType::Add>, "pMenuItemDefinition为空");
    add("menu, missing entry inserted", &TellOfASubMenu<EventType::Insert>,
        "pMenuItemDefinition为空");
    AddGroupRows<CheckBoxGroupKind>("check boxes", "checkBoxDefines[i] && checkBoxControls[i]为空",
                                    "checkBoxDefines[i] && checkBoxControls[i]为空");
    AddGroupRows<RadioButtonGroupKind>(
        "radio buttons", "radioButtonGroupDefinition[i] && radioButtonControls[i]为空",
        "radioButtonDefines[i] && radioButtonControls[i]为空");
}

void WarningDialogLifetimeTest::controlMayDieInItsReport()
{
    QFETCH(Scene, run);
    QFETCH(QStringList, warnings);
    ReportingControl f;

    run(f);

    QCOMPARE(f.script.GetShownCount(), warnings.size());
    QVERIFY(f.pVictim == nullptr);
    QVERIFY(f.pParent == nullptr);
    while (!warnings.isEmpty())
        QCOMPARE(QString::fromStdWString(f.host.warnings.TakeAny().message), warnings.takeFirst());
}

void WarningDialogLifetimeTest::controlThatReportsInItsSignalMayBeRemoved_data()
{
    QTest::addColumn<Make>("make");
    QTest::addColumn<Use>("use");
    QTest::newRow("line edit, key") << Make(&MakeAForeignEdit) << Use(&TypeAKey);
    QTest::newRow("line edit, selection") << Make(&MakeAForeignEdit) << Use(&SelectSomething);
    QTest::newRow("menu, entry") << Make(&MakeAMenuOfUnknownCommands) << Use(&ChooseAnEntry);
    QTest::newRow("menu, main part") << Make(&MakeAMenuOfUnknownCommands) << Use(&PressTheMainPart);
}

void WarningDialogLifetimeTest::controlThatReportsInItsSignalMayBeRemoved()
{
    QFETCH(Make, make);
    QFETCH(Use, use);
    HostFixture host;
    WarningScript script;
    auto pParent = std::make_unique<QWidget>();
    ControlHost controls;
    const QPointer<QWidget> pControl(make(controls));
    pControl->setParent(pParent.get());
    pParent->show();
    pControl->show();
    bool wasAliveInTheDialog = false;
    script.SetAct([&] {
        controls.Remove(L"Foreign");
        QEventLoop dialog;
        QTimer::singleShot(100, &dialog, &QEventLoop::quit);
        dialog.exec();
        wasAliveInTheDialog = pControl != nullptr;
    });

    QEventLoop loop;
    connect(pControl, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(10000, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, &loop, [&] { use(*pControl); });
    loop.exec();
    pParent.reset();

    QVERIFY(wasAliveInTheDialog);
    QVERIFY(pControl == nullptr);
    while (!host.warnings.IsEmpty())
        host.warnings.TakeAny();
}

/// A manager in a window of its own, both of which may be destroyed.
struct MortalDocks
{
    MortalDocks() { host.window.SetWindowId(pWindow->GetWindowId()); }

    QDockWidget* Add(const std::wstring& name) const
    {
        pManager->AddDock(pManager->CreateDock(name, name), DockArea::Left,
                          DockOrientation::Vertical);
        pManager->GetDock(name)->Show();
        return WidgetOf(pManager->GetDock(name));
    }

    void Destroy()
    {
        pManager.reset();
        pWindow.reset();
    }

    HostFixture host;
    WarningScript script;
    std::unique_ptr<DockWindow> pWindow = std::make_unique<DockWindow>();
    std::unique_ptr<DockManagerImpl> pManager = std::make_unique<DockManagerImpl>(pWindow.get());
};

void WarningDialogLifetimeTest::paneManagerMayDieWhileContentIsMissed()
{
    MortalDocks f;
    f.Add(L"a");
    f.Add(L"b");
    f.script.SetAct([&f] { f.Destroy(); });

    f.pManager->UpdateAllDockStatus();

    EXPECT_WARNING(f.host.warnings, L"pWidget是空指针",
                   "vesk::DockManagerImpl::UpdateAllDockStatus");
    QVERIFY(f.pManager == nullptr);
}

constexpr wchar_t UnknownPane[] = L"m_qDockWidgetToIDockMap里没有要找的东西";
constexpr char TabifiedDocks[] = "vesk::DockManagerImpl::TabifiedDocks";

void WarningDialogLifetimeTest::paneManagerMayDieWhileAForeignPaneIsReported()
{
    MortalDocks f;
    QDockWidget* pFirst = f.Add(L"a");
    f.pWindow->tabifyDockWidget(pFirst, f.Add(L"b"));
    f.pWindow->tabifyDockWidget(pFirst, new QDockWidget(f.pWindow.get()));
    f.script.SetAct([&f] { f.Destroy(); });

    const std::vector<IDock*> docks = f.pManager->TabifiedDocks(f.pManager->GetDock(L"a"));

    EXPECT_WARNING(f.host.warnings, UnknownPane, TabifiedDocks);
    QVERIFY(docks.empty());
}

void WarningDialogLifetimeTest::paneThatGoesWhileAnotherIsReportedIsNotAnswered()
{
    MortalDocks f;
    QDockWidget* pFirst = f.Add(L"a");
    QDockWidget* pSecond = f.Add(L"b");
    f.pWindow->tabifyDockWidget(pFirst, pSecond);
    f.pWindow->tabifyDockWidget(pFirst, f.Add(L"c"));
    f.pWindow->tabifyDockWidget(pFirst, new QDockWidget(f.pWindow.get()));
    f.script.SetAct([&] {
        f.pManager->DeleteDock(L"b");
        delete pSecond;
    });

    const std::vector<IDock*> docks = f.pManager->TabifiedDocks(f.pManager->GetDock(L"a"));

    EXPECT_WARNING(f.host.warnings, UnknownPane, TabifiedDocks);
    QCOMPARE(docks, std::vector<IDock*>{f.pManager->GetDock(L"c")});
}

void WarningDialogLifetimeTest::handlerMayDieWhenItsEditorCannotBePlaced()
{
    HandlerFixture f;
    WarningScript script;
    f.TypeLength("5");
    f.host.view.SetWindowId(0);
    script.SetAct([&f] { f.opHandler.Reset(); });

    f.Handler().ShowInputWidget(InputState::IS_Length, true, true, L"7");

    EXPECT_WARNING(f.host.warnings, L"pNqView为空。", std::string(BaseClass) + "SetEditorPosition");
    QVERIFY(f.opHandler == nullptr);
}

void WarningDialogLifetimeTest::handlerMayDieWhenItsEditorCannotBeMade()
{
    HandlerFixture f;
    WarningScript script;
    script.SetAct([&f] { f.opHandler.Reset(); });
    ChildThief thief(true);

    f.TypeLength("5");

    EXPECT_WARNING(f.host.warnings, L"parent cannot be null",
                   std::string(BaseClass) + "CreateEditorWidget");
    QVERIFY(f.opHandler == nullptr);
}

}

VESK_TESTS(vesk::test::WarningDialogLifetimeTest);
#include "WarningDialogLifetimeTest.moc"

#include "HostUi/ControlHost.h"

#include "Command/Command.h"
#include "Command/ICommandManager.h"
#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/Controls/EmptyControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <vector>

using namespace vesk;

namespace
{

OwnerPtr<CommandButtonMenuDefinition> MakeMenu()
{
    auto opMenu = MakeOwner<CommandButtonMenuDefinition>(L"Menu", L"");
    auto opSub = MakeOwner<MenuItemContainerDefinition>(L"Sub", L"sub");
    opSub->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(L"Inner", L"Command", L"inner"));
    opMenu->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(L"Entry", L"Command", L"entry"));
    opMenu->AddMenuItem(std::move(opSub));
    return opMenu;
}

template <class Interface>
OwnerPtr<Interface> MakeCheckBoxes()
{
    auto opGroup = MakeOwner<CheckBoxGroupDefinition>(L"Boxes");
    for (const wchar_t* pId : {L"One", L"Two", L"Three"})
        opGroup->AddCheckBox(MakeOwner<CheckBoxDefinition>(pId, pId));
    return opGroup;
}

template <class Interface>
OwnerPtr<Interface> MakeRadioButtons()
{
    auto opGroup = MakeOwner<RadioButtonGroupDefinition>(L"Radios");
    for (const wchar_t* pId : {L"One", L"Two", L"Three"})
        opGroup->AddRadioButton(MakeOwner<RadioButtonDefinition>(pId, pId));
    opGroup->SetCurrentRadioButtonId(L"One");
    return opGroup;
}

using Creation = std::function<QWidget*(ControlHost&)>;

/// Records which controls are removed.
class RemovalNotes final : public IControlRemovalObserver
{
public:
    void OnControlRemoved(const IControlDefinition& definition) override
    {
        ids.push_back(definition.GetId());
    }

    std::vector<std::wstring> ids;
};

struct Fixture
{
    Fixture()
    {
        panel.setLayout(new QVBoxLayout);
        panel.resize(600, 400);
        panel.show();
    }

    ~Fixture()
    {
        // The controls are destroyed before what holds them.
        pControls.reset();
    }

    template <class Widget>
    Widget* Place(QWidget* pWidget)
    {
        panel.layout()->addWidget(pWidget);
        pControls->RefreshControls();
        return qobject_cast<Widget*>(pWidget);
    }

    test::HostFixture host;
    std::unique_ptr<ControlLibrary> pLibrary = std::make_unique<ControlLibrary>();
    QWidget panel;
    std::unique_ptr<ControlHost> pControls = std::make_unique<ControlHost>();
};

}

Q_DECLARE_METATYPE(Creation)

/// The kinds of controls, what the host does with each, and how they are removed.
class ControlHostKindsTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachKindHasItsControl_data()
    {
        QTest::addColumn<Creation>("create");
        QTest::addColumn<QByteArray>("kind");

        QTest::newRow("button") << Creation([](ControlHost& controls) {
            return controls.Create(MakeOwner<CommandButtonDefinition>(L"Button", L"Command"));
        }) << QByteArray("QToolButton");
        QTest::newRow("label") << Creation([](ControlHost& controls) {
            return controls.Create(MakeOwner<LabelDefinition>(L"Label"));
        }) << QByteArray("QLabel");
        QTest::newRow("line edit") << Creation([](ControlHost& controls) {
            return controls.Create(MakeOwner<LineEditDefinition>(L"Edit"));
        }) << QByteArray("QLineEdit");
        QTest::newRow("box") << Creation([](ControlHost& controls) {
            return controls.Create(MakeOwner<ComboBoxDefinition>(L"Box"));
        }) << QByteArray("QComboBox");
        QTest::newRow("bar") << Creation([](ControlHost& controls) {
            return controls.Create(MakeOwner<ProgressBarDefinition>(L"Bar"));
        }) << QByteArray("QProgressBar");
        QTest::newRow("menu") << Creation([](ControlHost& controls) {
            return controls.Create(MakeMenu());
        }) << QByteArray("QToolButton");
        QTest::newRow("check boxes") << Creation([](ControlHost& controls) {
            return controls.Create(MakeCheckBoxes<ICheckBoxGroupDefinition>());
        }) << QByteArray("QWidget");
        QTest::newRow("radio buttons") << Creation([](ControlHost& controls) {
            return controls.Create(MakeRadioButtons<IRadioButtonGroupDefinition>());
        }) << QByteArray("QWidget");
    }

    void eachKindHasItsControl()
    {
        QFETCH(Creation, create);
        QFETCH(QByteArray, kind);
        Fixture f;

        QWidget* pWidget = create(*f.pControls);

        QVERIFY(pWidget != nullptr);
        QVERIFY(pWidget->inherits(kind));
        QVERIFY(pWidget->parent() == nullptr);
        QCOMPARE(f.pControls->GetDefinitions().size(), std::size_t(1));
        f.panel.layout()->addWidget(pWidget);
    }

    void withoutALibraryThereIsNone_data() { eachKindHasItsControl_data(); }

    void withoutALibraryThereIsNone()
    {
        QFETCH(Creation, create);
        Fixture f;
        f.pLibrary.reset();

        QVERIFY(create(*f.pControls) == nullptr);
        QVERIFY(f.pControls->GetDefinitions().empty());
    }

    void aLibraryThatMakesNothingGivesNone_data() { eachKindHasItsControl_data(); }

    void aLibraryThatMakesNothingGivesNone()
    {
        QFETCH(Creation, create);
        Fixture f;
        f.pLibrary.reset();
        const test::EmptyControlFactory factory;

        QVERIFY(create(*f.pControls) == nullptr);
        QVERIFY(f.pControls->GetDefinitions().empty());
    }

    void definitionsComeInTheirOrder()
    {
        Fixture f;
        f.Place<QLabel>(f.pControls->Create(MakeOwner<LabelDefinition>(L"B")));
        f.Place<QLabel>(f.pControls->Create(MakeOwner<LabelDefinition>(L"A")));

        const std::vector<IControlDefinition*> definitions = f.pControls->GetDefinitions();

        QCOMPARE(definitions.size(), std::size_t(2));
        QCOMPARE(definitions[0]->GetId(), std::wstring(L"B"));
        QCOMPARE(definitions[1]->GetId(), std::wstring(L"A"));
    }

    void buttonsOfAGroupStandSideBySide()
    {
        Fixture f;
        QWidget* pGroup =
            f.Place<QWidget>(f.pControls->Create(MakeCheckBoxes<ICheckBoxGroupDefinition>()));
        pGroup->show();
        QCoreApplication::processEvents();

        const QList<QAbstractButton*> boxes = pGroup->findChildren<QAbstractButton*>();
        QCOMPARE(boxes.size(), 3);
        QCOMPARE(boxes[0]->geometry().left(), 0);
        QCOMPARE(boxes[0]->width(), boxes[0]->sizeHint().width());
        QVERIFY(boxes[0]->geometry().right() < boxes[1]->geometry().left());
        QVERIFY(boxes[1]->geometry().right() < boxes[2]->geometry().left());
        QCOMPARE(pGroup->layout()->contentsMargins(), QMargins());
    }

    void aGroupHasNoNativeWindow()
    {
        Fixture f;
        QWidget* pGroup =
            f.Place<QWidget>(f.pControls->Create(MakeCheckBoxes<ICheckBoxGroupDefinition>()));
        pGroup->show();
        QCoreApplication::processEvents();

        QVERIFY(!pGroup->testAttribute(Qt::WA_NativeWindow));
        QCOMPARE(pGroup->internalWinId(), WId(0));
    }

    void menusAreWrittenInDarkWhateverThePaletteSays()
    {
        Fixture f;
        auto* pButton = f.Place<QToolButton>(f.pControls->Create(MakeMenu()));
        QPalette bright = pButton->palette();
        for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            bright.setColor(role, Qt::white);
        pButton->setPalette(bright);

        emit pButton->menu()->aboutToShow();

        const QList<QMenu*> menus = pButton->findChildren<QMenu*>();
        QCOMPARE(menus.size(), 2);
        for (const QMenu* pMenu : menus)
        {
            for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
            {
                QCOMPARE(pMenu->palette().color(QPalette::Active, role), QColor(Qt::black));
                QCOMPARE(pMenu->palette().color(QPalette::Disabled, role), QColor(Qt::gray));
            }
        }
        QCOMPARE(pButton->palette().color(QPalette::Text), QColor(Qt::white));
    }

    void buttonIsLitAfterItsMenuIfTheMouseIsStillThere_data()
    {
        QTest::addColumn<bool>("isThere");

        QTest::newRow("there") << true;
        QTest::newRow("elsewhere") << false;
    }

    void buttonIsLitAfterItsMenuIfTheMouseIsStillThere()
    {
        QFETCH(bool, isThere);
        Fixture f;
        auto* pButton = f.Place<QToolButton>(f.pControls->Create(MakeMenu()));
        pButton->setAttribute(Qt::WA_UnderMouse);
        const QPoint outside = pButton->rect().bottomRight() + QPoint(50, 50);
        QCursor::setPos(pButton->mapToGlobal(isThere ? pButton->rect().center() : outside));

        emit pButton->menu()->aboutToHide();

        QCOMPARE(pButton->underMouse(), isThere);
    }

    void aButtonIsHiddenWithItsCommand()
    {
        Fixture f;
        Command* pCommand = f.host.AddCommand(L"Command", [](const CommandParameters&) {});
        pCommand->SetVisible(false);
        const auto* pButton = f.Place<QAbstractButton>(
            f.pControls->Create(MakeOwner<CommandButtonDefinition>(L"Button", L"Command")));
        QVERIFY(pButton->isHidden());

        pCommand->SetVisible(true);
        f.pControls->RefreshControls();

        QVERIFY(!pButton->isHidden());
        QVERIFY(pButton->isEnabled());
    }

    void tabLeavesRadioButtonsAsTheToolkitHasIt()
    {
        Fixture f;
        QWidget* pGroup =
            f.Place<QWidget>(f.pControls->Create(MakeRadioButtons<IRadioButtonGroupDefinition>()));
        pGroup->show();
        auto* pEdit = f.Place<QLineEdit>(f.pControls->Create(MakeOwner<LineEditDefinition>(L"E")));
        pEdit->show();
        f.panel.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&f.panel, test::PatienceMs));
        pGroup->findChild<QAbstractButton*>("One")->setFocus();

        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);

        QCOMPARE(QApplication::focusWidget(), pEdit);
    }

    void aRemovedControlIsToldAndHiddenAtOnce()
    {
        Fixture f;
        RemovalNotes notes;
        f.pControls->SetRemovalObserver(&notes);
        const auto* pA = f.Place<QLabel>(f.pControls->Create(MakeOwner<LabelDefinition>(L"A")));
        const auto* pB = f.Place<QLabel>(f.pControls->Create(MakeOwner<LabelDefinition>(L"B")));
        QVERIFY(!pB->isHidden());

        f.pControls->Remove(L"Nobody");
        QVERIFY(notes.ids.empty());
        f.pControls->Remove(L"B");

        QCOMPARE(notes.ids, std::vector<std::wstring>{L"B"});
        QVERIFY(pB->isHidden());
        QVERIFY(!pA->isHidden());
        QCOMPARE(f.pControls->GetDefinitions().size(), std::size_t(1));
    }

    void aRemovedGroupTakesItsPanelAlong()
    {
        Fixture f;
        const QPointer<QWidget> pGroup =
            f.Place<QWidget>(f.pControls->Create(MakeCheckBoxes<ICheckBoxGroupDefinition>()));
        const QPointer<QAbstractButton> pBox = pGroup->findChild<QAbstractButton*>("One");

        f.pControls->Remove(L"Boxes");
        QVERIFY(pGroup != nullptr);

        QTRY_VERIFY(pGroup == nullptr);
        QVERIFY(pBox == nullptr);
    }

    void allControlsAreToldAndDestroyedAtOnce()
    {
        Fixture f;
        RemovalNotes notes;
        f.pControls->SetRemovalObserver(&notes);
        const QPointer<QLabel> pLabel =
            f.Place<QLabel>(f.pControls->Create(MakeOwner<LabelDefinition>(L"A")));
        const QPointer<QWidget> pGroup =
            f.Place<QWidget>(f.pControls->Create(MakeCheckBoxes<ICheckBoxGroupDefinition>()));

        f.pControls->RemoveAll();

        QCOMPARE(notes.ids, (std::vector<std::wstring>{L"A", L"Boxes"}));
        QVERIFY(pLabel == nullptr);
        QVERIFY(pGroup == nullptr);
        QVERIFY(f.pControls->GetDefinitions().empty());
    }

    void controlsCanBeRemovedInTheOutermostLoopOnly()
    {
        bool canInOutermost = false;
        bool canInNested = true;
        QTimer::singleShot(0, this, [&] {
            canInOutermost = ControlHost::CanRemoveAll();
            QEventLoop nested;
            QTimer::singleShot(0, &nested, [&] {
                canInNested = ControlHost::CanRemoveAll();
                nested.quit();
            });
            nested.exec();
        });

        QEventLoop outermost;
        QTimer::singleShot(0, &outermost, &QEventLoop::quit);
        outermost.exec();

        QVERIFY(canInOutermost);
        QVERIFY(!canInNested);
    }

    void theHostRefreshesNothingAfterItsEnd()
    {
        Fixture f;
        f.pControls.reset();

        // Reads freed memory if it still listens.
        UpdateCtrlStatusEvent().Emit();
        f.panel.setFocus();
    }
};

VESK_TESTS(ControlHostKindsTest);
#include "ControlHostKindsTest.moc"

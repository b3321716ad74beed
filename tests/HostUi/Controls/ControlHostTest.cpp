#include "HostUi/ControlHost.h"

#include "Command/ActionManager.h"
#include "Command/Command.h"
#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/IControl.h"
#include "Control/ILabelDefinition.h"
#include "Control/LabelDefinition.h"
#include "HostCore.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/UiApplication.h"
#include "Support/IdleAction.h"
#include "Support/TestValues.h"
#include "Warnings/DebugMessageMgr.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEventLoop>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

#include <functional>
#include <memory>
#include <utility>

using namespace vesk;

namespace
{

/// Counts the debug warnings while it lives.
class WarningCounter final : public IDebugWarningObserver
{
public:
    WarningCounter() { DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this); }
    ~WarningCounter() override { DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this); }
    void OnDebugWarning(const DebugWarning&) override { ++m_count; }
    int GetCount() const { return m_count; }

private:
    int m_count = 0;
};

/// Refreshes the controls when an item is added, as a dialog that it opens would.
class Refresher final : public IControlDefinitionChangeEventHandler
{
public:
    explicit Refresher(std::function<void()> act) : m_act(std::move(act)) {}
    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        if (pArgs->GetType() == ControlDefinitionChangeEventType::Add)
            m_act();
        else
            ++m_otherCount;
    }
    int GetOtherCount() const { return m_otherCount; }

private:
    std::function<void()> m_act;
    int m_otherCount = 0;
};

/// A control of the program's own kind.
class OwnControl final : public QLabel, public IControl
{
public:
    IControlDefinition* GetControlDefinition() const override { return &m_definition; }
    void UpdateStatus() override { setEnabled(m_definition.IsEnabled()); }

private:
    mutable LabelDefinition m_definition{L"Own"};
};

/// A control without a widget; counts those that exist.
class BareControl final : public IControl
{
public:
    explicit BareControl(int& count) : m_count(count) { ++m_count; }
    ~BareControl() override { --m_count; }
    IControlDefinition* GetControlDefinition() const override { return nullptr; }
    void UpdateStatus() override {}

private:
    int& m_count;
};

OwnerPtr<IAction> Idle(IUiView*, const CommandParameters&)
{
    return MakeOwner<test::IdleAction>();
}

OwnerPtr<IAction> Nothing(IUiView*, const CommandParameters&)
{
    return nullptr;
}

}

/// Controls in a window, created by the control library.
class ControlHostTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pHost = std::make_unique<HostCore>();
        m_pApplication = std::make_unique<UiApplication>();
        m_pLibrary = std::make_unique<ControlLibrary>();
        QVERIFY2(m_pLibrary->IsLoaded(), qPrintable(m_pLibrary->GetError()));
        m_pPanel = std::make_unique<QWidget>();
        m_pPanel->setLayout(new QVBoxLayout);
        m_pPanel->show();
        m_pControls = std::make_unique<ControlHost>();
    }

    void cleanup()
    {
        ActionManager::Reset();
        m_pControls.reset();
        m_pPanel.reset();
        m_pLibrary.reset();
        m_pApplication.reset();
        m_pHost.reset();
    }

    void controlIsShownOnceItIsPlaced()
    {
        auto opDefinition = MakeOwner<LabelDefinition>(L"Label");
        LabelDefinition* pDefinition = opDefinition.Get();
        pDefinition->SetVisible(false);

        QWidget* pWidget = m_pControls->Create(std::move(opDefinition));
        QVERIFY(pWidget != nullptr);
        QVERIFY(!pWidget->isVisible());

        m_pPanel->layout()->addWidget(pWidget);
        pDefinition->SetVisible(true);
        m_pControls->RefreshControls();
        QTRY_VERIFY(pWidget->isVisible());
        QVERIFY(!pWidget->isWindow());
    }

    void buttonFollowsItsCommand()
    {
        bool isEnabled = false;
        AddCommand(L"Plain", Command::Kind::Plain, &Nothing, [&isEnabled] { return isEnabled; });
        QAbstractButton* pButton = AddButton(L"Plain");
        QVERIFY(!pButton->isEnabled());

        isEnabled = true;
        UpdateCtrlStatusEvent().Emit();

        QVERIFY(pButton->isEnabled());
    }

    void groupThatIsYetToHearOfItsItemsIsRefreshedAfterwards()
    {
        auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Group");
        CheckBoxGroupDefinition* pDefinition = opDefinition.Get();
        Refresher refresher([this, pDefinition] {
            pDefinition->Find(L"Box")->SetEnabled(false);
            m_pControls->RefreshControls();
        });
        pDefinition->GetControlDefinitionChangeEvent()->Add(&refresher);
        QWidget* pGroup = m_pControls->Create(std::move(opDefinition));
        m_pPanel->layout()->addWidget(pGroup);
        const WarningCounter warnings;

        pDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(L"Box", L"Box"));

        const auto* pBox = pGroup->findChild<QAbstractButton*>(QStringLiteral("Box"));
        QVERIFY(pBox != nullptr);
        QVERIFY(!pBox->isEnabled());
        QCOMPARE(warnings.GetCount(), 0);
    }

    void listThatIsYetToHearOfItsItemsIsRefreshedAtOnce()
    {
        auto opDefinition = MakeOwner<ComboBoxDefinition>(L"Box");
        ComboBoxDefinition* pDefinition = opDefinition.Get();
        pDefinition->AddItem(L"a");
        Refresher refresher([this] { m_pControls->RefreshControls(); });
        pDefinition->GetControlDefinitionChangeEvent()->Add(&refresher);
        QWidget* pWidget = m_pControls->Create(std::move(opDefinition));
        m_pPanel->layout()->addWidget(pWidget);

        pDefinition->AddItem(L"b");

        QCOMPARE(qobject_cast<QComboBox*>(pWidget)->count(), 2);
        QCOMPARE(refresher.GetOtherCount(), 0);
    }

    void buttonWithoutACommandIsHidden()
    {
        const QAbstractButton* pButton = AddButton(L"Unknown");

        QVERIFY(pButton->isHidden());
    }

    void plainButtonIsUncheckedAfterItsCommand()
    {
        AddCommand(L"Plain", Command::Kind::Plain, &Nothing);
        QAbstractButton* pButton = AddButton(L"Plain");

        QTest::mouseClick(pButton, Qt::LeftButton);

        QTRY_VERIFY(!pButton->isChecked());
    }

    void buttonIsCheckedWhileItsActionRuns()
    {
        AddCommand(L"Tool", Command::Kind::Interactive, &Idle);
        QAbstractButton* pButton = AddButton(L"Tool");
        bool wasChecked = false;
        QTimer::singleShot(50, this, [pButton, &wasChecked] {
            wasChecked = pButton->isChecked();
            ActionManager::Reset();
        });

        QTest::mouseClick(pButton, Qt::LeftButton);

        QVERIFY(wasChecked);
        QTRY_VERIFY(!pButton->isChecked());
    }

    void removedControlDiesOnlyWhenNothingRuns()
    {
        AddCommand(L"Tool", Command::Kind::Interactive, &Idle);
        const QPointer<QAbstractButton> pButton = AddButton(L"Tool");
        bool livedInTheAction = false;
        QTimer::singleShot(0, this, [this] { m_pControls->Remove(L"Tool"); });
        QTimer::singleShot(150, this, [&] {
            livedInTheAction = pButton != nullptr;
            ActionManager::Reset();
        });

        // An event loop like a program's, because tests run in none.
        QEventLoop outermost;
        QTimer::singleShot(0, this, [pButton] { QTest::mouseClick(pButton, Qt::LeftButton); });
        QTimer::singleShot(400, &outermost, &QEventLoop::quit);
        outermost.exec();

        QVERIFY(livedInTheAction);
        QVERIFY(pButton == nullptr);
    }

    void tabAndArrowsReachEveryBoxOfAGroup_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("tab") << static_cast<int>(Qt::Key_Tab);
        QTest::newRow("arrow") << static_cast<int>(Qt::Key_Right);
    }

    void tabAndArrowsReachEveryBoxOfAGroup()
    {
        QFETCH(int, key);
        auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Snap");
        for (const wchar_t* pId : {L"End", L"Middle", L"Centre"})
            opDefinition->AddCheckBox(MakeOwner<CheckBoxDefinition>(pId, pId));
        QWidget* pBoxes =
            m_pControls->Create(OwnerPtr<ICheckBoxGroupDefinition>(std::move(opDefinition)));
        m_pPanel->layout()->addWidget(pBoxes);
        pBoxes->show();
        m_pControls->RefreshControls();
        m_pPanel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_pPanel.get(), vesk::test::PatienceMs));

        QStringList reached;
        m_pPanel->findChild<QAbstractButton*>("End")->setFocus();
        for (int i = 0; i < 3; ++i)
        {
            reached << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(key));
        }

        QCOMPARE(reached, QStringList({"End", "Middle", "Centre"}));
    }

    void controlOfTheProgramsOwnKindIsRefreshedLikeAnyOther()
    {
        auto opControl = MakeOwner<OwnControl>();
        auto& definition = static_cast<LabelDefinition&>(*opControl->GetControlDefinition());
        QWidget* pWidget = m_pControls->Add(std::move(opControl));
        m_pPanel->layout()->addWidget(pWidget);
        definition.SetEnabled(false);

        m_pControls->RefreshControls();

        QVERIFY(!pWidget->isEnabled());
        QCOMPARE(m_pControls->GetDefinitions(), std::vector<IControlDefinition*>{&definition});
    }

    void controlOfTheProgramsOwnKindIsRemovedLikeAnyOther()
    {
        const QPointer<QWidget> pWidget = m_pControls->Add(MakeOwner<OwnControl>());
        m_pPanel->layout()->addWidget(pWidget);

        m_pControls->Remove(L"Own");

        QTRY_VERIFY(pWidget == nullptr);
        QVERIFY(m_pControls->GetDefinitions().empty());
    }

    void controlThatIsNoWidgetIsDestroyed()
    {
        int count = 0;

        QWidget* pWidget = m_pControls->Add(MakeOwner<BareControl>(count));

        QVERIFY(pWidget == nullptr);
        QCOMPARE(count, 0);
    }

    void unknownControlCannotBeRemoved()
    {
        AddCommand(L"Plain", Command::Kind::Plain, &Nothing);
        QAbstractButton* pButton = AddButton(L"Plain");

        m_pControls->Remove(L"Nobody");

        QVERIFY(!pButton->isHidden());
    }

private:
    static void AddCommand(const std::wstring& id, Command::Kind kind, Command::Execution execute,
                           Command::Condition isEnabled = {})
    {
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(id, kind, std::move(execute), std::move(isEnabled)));
    }

    QAbstractButton* AddButton(const std::wstring& commandId)
    {
        auto opDefinition = MakeOwner<CommandButtonDefinition>(commandId, commandId);
        opDefinition->SetVisible(false);
        QWidget* pWidget = m_pControls->Create(std::move(opDefinition));
        m_pPanel->layout()->addWidget(pWidget);
        m_pControls->RefreshControls();
        return qobject_cast<QAbstractButton*>(pWidget);
    }

    std::unique_ptr<HostCore> m_pHost;
    std::unique_ptr<UiApplication> m_pApplication;
    std::unique_ptr<ControlLibrary> m_pLibrary;
    std::unique_ptr<QWidget> m_pPanel;
    std::unique_ptr<ControlHost> m_pControls;
};

VESK_TESTS(ControlHostTest);
#include "ControlHostTest.moc"

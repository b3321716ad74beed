#include "Control/VeskIControlFactory.h"

#include "Control/CommandButtonDefinition.h"
#include "Control/FactorySlots.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Support/HostFixture.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtButton.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"
#include "VeskUiQtImpl/Control/QtLabel.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"
#include "VeskUiQtImpl/Control/VeskControlFactory.h"

#include <QProgressBar>
#include <QToolButton>

#include <typeinfo>

namespace vesk::test
{
namespace
{

/// A definition that records when it is freed; subclasses add what is specific to each kind.
template <class Interface>
class FreedDefinition : public Interface
{
public:
    explicit FreedDefinition(int& freedCount) : m_freedCount(freedCount) {}
    ~FreedDefinition() override { ++m_freedCount; }

    const std::wstring& GetId() const override { return Kept(L"id"); }
    const std::wstring& GetCaption() const override { return Kept({}); }
    const std::wstring& GetTooltip() const override { return Kept({}); }
    bool IsVisible() const override { return true; }
    bool IsEnabled() const override { return true; }

private:
    int& m_freedCount;
};

struct Menu final : FreedDefinition<ICommandButtonMenuDefinition>
{
    using FreedDefinition::FreedDefinition;
    const std::wstring& GetCommandId() const override { return Kept({}); }
    const std::wstring& GetIconPath() const override { return Kept({}); }
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override { return {}; }
};

struct ComboBox final : FreedDefinition<IComboBoxDefinition>
{
    using FreedDefinition::FreedDefinition;
    std::vector<std::wstring> GetItems() const override { return {}; }
    void SetCurrentIndex(int) override {}
    int GetCurrentIndex() const override { return -1; }
};

struct ProgressBar final : FreedDefinition<IProgressBarDefinition>
{
    using FreedDefinition::FreedDefinition;
    int GetValue() const override { return 0; }
    bool IsTextVisible() const override { return false; }
    int GetWidth() const override { return 100; }
};

struct RadioButtons final : FreedDefinition<IRadioButtonGroupDefinition>
{
    using FreedDefinition::FreedDefinition;
    const std::vector<const IRadioButtonDefinition*>& GetRadioButtonDefinitions() const override
    {
        return items;
    }
    std::wstring GetCurrentRadioButtonId() const override { return {}; }
    void SetCurrentRadioButtonId(const std::wstring&) override {}

    std::vector<const IRadioButtonDefinition*> items;
};

struct CheckBoxes final : FreedDefinition<ICheckBoxGroupDefinition>
{
    using FreedDefinition::FreedDefinition;
    const std::vector<const ICheckBoxDefinition*>& GetCheckBoxDefinitions() const override
    {
        return items;
    }
    void SetCheckState(const std::wstring&, int) override {}

    std::vector<const ICheckBoxDefinition*> items;
};

VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

/// Creates a control on behalf of a window; most kinds ignore it.
using Creation = OwnerPtr<IControl> (*)(WindowId parentWindowId);

}

}

Q_DECLARE_METATYPE(vesk::test::Creation)

namespace vesk::test
{

class VeskControlFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void operationsHaveTheirSlotsAndThereAreNoMembers();
    void makesAButton();
    void makesALabel();
    void makesALineEdit();
    void makesACommandButtonMenu();
    void makesAComboBox();
    void makesAProgressBar();
    void makesARadioButtonGroupInItsParent();
    void makesACheckBoxGroupInItsParent();
    void theControlIsDeletedAsAWhole_data();
    void theControlIsDeletedAsAWhole();
    void everyCreationIsAnother();
    void theControlFreesItsDefinition();
    void missingDefinitionMakesABareControl_data();
    void missingDefinitionMakesABareControl();
    void groupsNeedAParentWindow_data();
    void groupsNeedAParentWindow();
};

void VeskControlFactoryTest::operationsHaveTheirSlotsAndThereAreNoMembers()
{
    VerifySlotsOfTheFactory();
    QCOMPARE(sizeof(VeskControlFactory), sizeof(VeskIControlFactory));
}

void VeskControlFactoryTest::makesAButton()
{
    HostFixture host;
    auto opDefinition = MakeOwner<CommandButtonDefinition>(L"id", L"command");
    opDefinition->SetCaption(L"caption");

    const OwnerPtr<IControl> opControl = Factory().CreateQtButton(std::move(opDefinition));

    const auto* pButton = dynamic_cast<QtButton*>(opControl.Get());
    QVERIFY(pButton != nullptr);
    QVERIFY(pButton->parent() == nullptr);
    QCOMPARE(pButton->text(), QString("caption"));
}

void VeskControlFactoryTest::makesALabel()
{
    HostFixture host;
    auto opDefinition = MakeOwner<LabelDefinition>(L"id");
    opDefinition->SetCaption(L"caption");

    const OwnerPtr<IControl> opControl = Factory().CreateQtLabel(std::move(opDefinition));

    const auto* pLabel = dynamic_cast<QtLabel*>(opControl.Get());
    QVERIFY(pLabel != nullptr);
    QVERIFY(pLabel->parent() == nullptr);
    QCOMPARE(pLabel->text(), QString("caption"));
}

void VeskControlFactoryTest::makesALineEdit()
{
    HostFixture host;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id");
    opDefinition->SetText(L"text");

    const OwnerPtr<IControl> opControl = Factory().CreateQtLineEdit(std::move(opDefinition));

    const auto* pEdit = dynamic_cast<QtLineEdit*>(opControl.Get());
    QVERIFY(pEdit != nullptr);
    QVERIFY(pEdit->parent() == nullptr);
    QCOMPARE(pEdit->text(), QString("text"));
}

void VeskControlFactoryTest::makesACommandButtonMenu()
{
    HostFixture host;
    int freedCount = 0;

    const OwnerPtr<IControl> opControl =
        Factory().CreateQtCommandButtonMenu(MakeOwner<Menu>(freedCount));

    const auto* pButton = dynamic_cast<QToolButton*>(opControl.Get());
    QVERIFY(pButton != nullptr);
    QVERIFY(pButton->parent() == nullptr);
    QCOMPARE(pButton->metaObject()->className(), "vesk::QtCommandButtonMenu");
}

void VeskControlFactoryTest::makesAComboBox()
{
    HostFixture host;
    int freedCount = 0;

    const OwnerPtr<IControl> opControl =
        Factory().CreateQtComboBox(MakeOwner<ComboBox>(freedCount));

    const auto* pBox = dynamic_cast<QtComboBox*>(opControl.Get());
    QVERIFY(pBox != nullptr);
    QVERIFY(pBox->parent() == nullptr);
}

void VeskControlFactoryTest::makesAProgressBar()
{
    HostFixture host;
    int freedCount = 0;

    const OwnerPtr<IControl> opControl =
        Factory().CreateQtProgressBar(MakeOwner<ProgressBar>(freedCount));

    const auto* pBar = dynamic_cast<QProgressBar*>(opControl.Get());
    QVERIFY(pBar != nullptr);
    QVERIFY(pBar->parent() == nullptr);
    QCOMPARE(pBar->objectName(), QString("id"));
}

void VeskControlFactoryTest::makesARadioButtonGroupInItsParent()
{
    HostFixture host;
    QWidget window;
    QWidget parent(&window);
    int freedCount = 0;

    const OwnerPtr<IControl> opControl =
        Factory().CreateQtRadioButtonGroup(MakeOwner<RadioButtons>(freedCount), parent.winId());

    const auto* pGroup = dynamic_cast<QtRadioButtonGroup*>(opControl.Get());
    QVERIFY(pGroup != nullptr);
    QCOMPARE(pGroup->parent(), &parent);
}

void VeskControlFactoryTest::makesACheckBoxGroupInItsParent()
{
    HostFixture host;
    QWidget window;
    QWidget parent(&window);
    int freedCount = 0;

    const OwnerPtr<IControl> opControl =
        Factory().CreateQtCheckBoxGroup(MakeOwner<CheckBoxes>(freedCount), parent.winId());

    const auto* pGroup = dynamic_cast<QtCheckBoxGroup*>(opControl.Get());
    QVERIFY(pGroup != nullptr);
    QCOMPARE(pGroup->parent(), &parent);
}

void VeskControlFactoryTest::theControlIsDeletedAsAWhole_data()
{
    missingDefinitionMakesABareControl_data();
}

void VeskControlFactoryTest::theControlIsDeletedAsAWhole()
{
    QFETCH(Creation, create);
    HostFixture host;
    QWidget parent;
    OwnerPtr<IControl> opControl = create(parent.winId());
    host.warnings.TakeAny();
    const QPointer<QObject> pObject(dynamic_cast<QObject*>(opControl.Get()));
    QVERIFY(pObject != nullptr);

    opControl.Reset();

    QVERIFY(pObject == nullptr);
}

void VeskControlFactoryTest::everyCreationIsAnother()
{
    HostFixture host;

    const OwnerPtr<IControl> opFirst = Factory().CreateQtLabel(MakeOwner<LabelDefinition>(L"id"));
    const OwnerPtr<IControl> opSecond = Factory().CreateQtLabel(MakeOwner<LabelDefinition>(L"id"));

    QVERIFY(opFirst.Get() != opSecond.Get());
}

void VeskControlFactoryTest::theControlFreesItsDefinition()
{
    HostFixture host;
    QWidget parent;
    const WindowId windowId = parent.winId();
    int freedCount = 0;

    Factory().CreateQtCommandButtonMenu(MakeOwner<Menu>(freedCount));
    QCOMPARE(freedCount, 1);
    Factory().CreateQtComboBox(MakeOwner<ComboBox>(freedCount));
    QCOMPARE(freedCount, 2);
    Factory().CreateQtProgressBar(MakeOwner<ProgressBar>(freedCount));
    QCOMPARE(freedCount, 3);
    Factory().CreateQtRadioButtonGroup(MakeOwner<RadioButtons>(freedCount), windowId);
    QCOMPARE(freedCount, 4);
    Factory().CreateQtCheckBoxGroup(MakeOwner<CheckBoxes>(freedCount), windowId);
    QCOMPARE(freedCount, 5);
}

void VeskControlFactoryTest::missingDefinitionMakesABareControl_data()
{
    QTest::addColumn<Creation>("create");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QByteArray>("function");
    const auto addRow = [](const char* kind, Creation create, const char* message) {
        const QByteArray name(kind);
        QTest::newRow(kind) << create << QString::fromUtf8(message)
                            << "vesk::" + name + "::" + name;
    };
    addRow(
        "QtButton", [](WindowId) { return Factory().CreateQtButton(nullptr); },
        "pControlDefinition为空");
    addRow(
        "QtLineEdit", [](WindowId) { return Factory().CreateQtLineEdit(nullptr); },
        "m_pControlDefinition为空");
    addRow(
        "QtLabel", [](WindowId) { return Factory().CreateQtLabel(nullptr); },
        "pControlDefinition是空指针");
    addRow(
        "QtCommandButtonMenu",
        [](WindowId) { return Factory().CreateQtCommandButtonMenu(nullptr); },
        "pControlDefinition为空");
    addRow(
        "QtComboBox", [](WindowId) { return Factory().CreateQtComboBox(nullptr); },
        "m_pControlDefinition为空");
    addRow(
        "QtProgressBar", [](WindowId) { return Factory().CreateQtProgressBar(nullptr); },
        "pControlDefinition是空指针");
    addRow(
        "QtRadioButtonGroup",
        [](WindowId id) { return Factory().CreateQtRadioButtonGroup(nullptr, id); },
        "m_pControlDefinition或pParent是空指针");
    addRow(
        "QtCheckBoxGroup", [](WindowId id) { return Factory().CreateQtCheckBoxGroup(nullptr, id); },
        "m_pControlDefinition或pParent是空指针");
}

void VeskControlFactoryTest::missingDefinitionMakesABareControl()
{
    QFETCH(Creation, create);
    QFETCH(QString, message);
    QFETCH(QByteArray, function);
    HostFixture host;
    QWidget parent;

    const OwnerPtr<IControl> opControl = create(parent.winId());

    EXPECT_WARNING(host.warnings, message.toStdWString(), function.toStdString());
    QVERIFY(opControl != nullptr);
    QVERIFY(opControl->GetControlDefinition() == nullptr);
    const auto* pObject = dynamic_cast<QObject*>(opControl.Get());
    QVERIFY(pObject != nullptr);
    const IControl& control = *opControl;
    QVERIFY(QByteArray(typeid(control).name()).contains(QTest::currentDataTag()));
    const bool isGroup = QByteArray(QTest::currentDataTag()).endsWith("Group");
    QCOMPARE(pObject->parent(), isGroup ? static_cast<QObject*>(&parent) : nullptr);
}

void VeskControlFactoryTest::groupsNeedAParentWindow_data()
{
    QTest::addColumn<WindowId>("windowId");
    QTest::newRow("none") << WindowId(0);
    QTest::newRow("unknown") << WindowId(0x7fffffff);
}

void VeskControlFactoryTest::groupsNeedAParentWindow()
{
    QFETCH(WindowId, windowId);
    HostFixture host;
    int freedCount = 0;

    QVERIFY(Factory().CreateQtRadioButtonGroup(MakeOwner<RadioButtons>(freedCount), windowId) ==
            nullptr);
    EXPECT_WARNING(host.warnings, L"pParent为空",
                   "vesk::VeskControlFactory::CreateQtRadioButtonGroup");
    QCOMPARE(freedCount, 1);
    QVERIFY(Factory().CreateQtCheckBoxGroup(MakeOwner<CheckBoxes>(freedCount), windowId) ==
            nullptr);
    EXPECT_WARNING(host.warnings, L"pParent为空",
                   "vesk::VeskControlFactory::CreateQtCheckBoxGroup");
    QCOMPARE(freedCount, 2);
}

}

VESK_TESTS(vesk::test::VeskControlFactoryTest);
#include "VeskControlFactoryTest.moc"

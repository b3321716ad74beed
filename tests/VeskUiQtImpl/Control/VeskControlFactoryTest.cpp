#include "Control/VeskIControlFactory.h"

#include "Control/CommandButtonDefinition.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/QtButton.h"
#include "Control/QtLabel.h"
#include "Control/QtLineEdit.h"
#include "Support/HostFixture.h"

#include <QtTest>

namespace vesk::test
{

/// A definition that notes when it is freed; the kinds add what is theirs.
template <class Interface>
class FreedDefinition : public Interface
{
public:
    explicit FreedDefinition(int& freedCount) : m_freedCount(freedCount) {}
    ~FreedDefinition() override { ++m_freedCount; }

    std::wstring GetId() const override { return L"id"; }
    std::wstring GetCaption() const override { return {}; }
    std::wstring GetTooltip() const override { return {}; }
    bool IsVisible() const override { return true; }
    bool IsEnabled() const override { return true; }

private:
    int& m_freedCount;
};

struct Menu final : FreedDefinition<ICommandButtonMenuDefinition>
{
    using FreedDefinition::FreedDefinition;
    std::wstring GetCommandId() const override { return {}; }
    std::wstring GetIconPath() const override { return {}; }
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
    std::vector<const IRadioButtonDefinition*> GetRadioButtonDefinitions() const override
    {
        return {};
    }
    std::wstring GetCurrentRadioButtonId() const override { return {}; }
    void SetCurrentRadioButtonId(const std::wstring&) override {}
};

struct CheckBoxes final : FreedDefinition<ICheckBoxGroupDefinition>
{
    using FreedDefinition::FreedDefinition;
    std::vector<const ICheckBoxDefinition*> GetCheckBoxDefinitions() const override { return {}; }
    void SetCheckState(const std::wstring&, int) override {}
};

VeskIControlFactory& Factory()
{
    return *VeskIControlFactory::Get();
}

class VeskControlFactoryTest : public QObject
{
    Q_OBJECT

private slots:
    void makesAButton();
    void makesALabel();
    void makesALineEdit();
    void theControlIsDeletedAsAWhole();
    void makesABlankButtonOfAMissingDefinition();
    void makesABareLabelOfAMissingDefinition();
    void makesABareLineEditOfAMissingDefinition();
    void kindsNotMadeYetSaySoAndFreeTheDefinition();
    void groupsNeedAParentWindow_data();
    void groupsNeedAParentWindow();
    void groupsNotMadeYetSaySoAndFreeTheDefinition();
};

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

void VeskControlFactoryTest::theControlIsDeletedAsAWhole()
{
    HostFixture host;
    OwnerPtr<IControl> opControl = Factory().CreateQtLabel(MakeOwner<LabelDefinition>(L"id"));
    const QPointer<QtLabel> pLabel(dynamic_cast<QtLabel*>(opControl.Get()));

    opControl.Reset();

    QVERIFY(pLabel == nullptr);
}

void VeskControlFactoryTest::makesABlankButtonOfAMissingDefinition()
{
    HostFixture host;

    const OwnerPtr<IControl> opControl = Factory().CreateQtButton(nullptr);

    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtButton::QtButton");
    QVERIFY(dynamic_cast<QtButton*>(opControl.Get()) != nullptr);
}

void VeskControlFactoryTest::makesABareLabelOfAMissingDefinition()
{
    HostFixture host;

    const OwnerPtr<IControl> opControl = Factory().CreateQtLabel(nullptr);

    EXPECT_WARNING(host.warnings, L"pControlDefinition是空指针", "vesk::QtLabel::QtLabel");
    QVERIFY(dynamic_cast<QtLabel*>(opControl.Get()) != nullptr);
}

void VeskControlFactoryTest::makesABareLineEditOfAMissingDefinition()
{
    HostFixture host;

    const OwnerPtr<IControl> opControl = Factory().CreateQtLineEdit(nullptr);

    EXPECT_WARNING(host.warnings, L"m_pControlDefinition为空", "vesk::QtLineEdit::QtLineEdit");
    QVERIFY(dynamic_cast<QtLineEdit*>(opControl.Get()) != nullptr);
}

void VeskControlFactoryTest::kindsNotMadeYetSaySoAndFreeTheDefinition()
{
    HostFixture host;
    int freedCount = 0;

    QVERIFY(Factory().CreateQtCommandButtonMenu(MakeOwner<Menu>(freedCount)) == nullptr);
    EXPECT_WARNING(host.warnings, L"QtCommandButtonMenu尚未实现",
                   "vesk::VeskControlFactory::CreateQtCommandButtonMenu");
    QCOMPARE(freedCount, 1);
    QVERIFY(Factory().CreateQtComboBox(MakeOwner<ComboBox>(freedCount)) == nullptr);
    EXPECT_WARNING(host.warnings, L"QtComboBox尚未实现",
                   "vesk::VeskControlFactory::CreateQtComboBox");
    QCOMPARE(freedCount, 2);
    QVERIFY(Factory().CreateQtProgressBar(MakeOwner<ProgressBar>(freedCount)) == nullptr);
    EXPECT_WARNING(host.warnings, L"QtProgressBar尚未实现",
                   "vesk::VeskControlFactory::CreateQtProgressBar");
    QCOMPARE(freedCount, 3);
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

void VeskControlFactoryTest::groupsNotMadeYetSaySoAndFreeTheDefinition()
{
    HostFixture host;
    QWidget parent;
    const WindowId windowId = parent.winId();
    int freedCount = 0;

    QVERIFY(Factory().CreateQtRadioButtonGroup(MakeOwner<RadioButtons>(freedCount), windowId) ==
            nullptr);
    EXPECT_WARNING(host.warnings, L"QtRadioButtonGroup尚未实现",
                   "vesk::VeskControlFactory::CreateQtRadioButtonGroup");
    QCOMPARE(freedCount, 1);
    QVERIFY(Factory().CreateQtCheckBoxGroup(MakeOwner<CheckBoxes>(freedCount), windowId) ==
            nullptr);
    EXPECT_WARNING(host.warnings, L"QtCheckBoxGroup尚未实现",
                   "vesk::VeskControlFactory::CreateQtCheckBoxGroup");
    QCOMPARE(freedCount, 2);
}

}

QTEST_MAIN(vesk::test::VeskControlFactoryTest)
#include "VeskControlFactoryTest.moc"

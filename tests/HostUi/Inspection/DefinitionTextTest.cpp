#include "Inspection/DefinitionText.h"

#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Support/TestValues.h"

using namespace vesk;

/// How the inspector describes each kind of definition.
class DefinitionTextTest final : public QObject
{
    Q_OBJECT

private slots:
    void aButtonIsCheckedOrNot()
    {
        CommandButtonDefinition button(L"Button", L"Command");
        Verify(button, "按钮", "");

        button.SetChecked(true);

        Verify(button, "按钮", "选中");
    }

    void aLabelSaysItsCaption()
    {
        LabelDefinition label(L"Label");
        label.SetCaption(L"标题 %1");

        Verify(label, "标签", "标题 %1");
    }

    void aLineEditSaysItsText()
    {
        LineEditDefinition edit(L"Edit");
        edit.SetText(L"12.5");

        Verify(edit, "输入框", "12.5");
    }

    void aReferenceToALineEditSaysItsText()
    {
        LineEditDefinition edit(L"Edit");
        edit.SetText(L"12.5");

        Verify(LineEditDefinitionReference(L"Reference", &edit), "输入框", "12.5");
    }

    void aComboBoxSaysItsItem()
    {
        ComboBoxDefinition box(L"Box");
        Verify(box, "下拉框", "-1/0 ");

        box.AddItem(L"实线");
        box.AddItem(L"100%3");
        box.SetCurrentIndex(1);

        Verify(box, "下拉框", "1/2 100%3");
    }

    void anIndexBehindTheLastItemIsNone()
    {
        /// As another host may define it.
        struct StaleBox final : ComboBoxDefinition
        {
            using ComboBoxDefinition::ComboBoxDefinition;
            int GetCurrentIndex() const override { return 0; }
        };

        Verify(StaleBox(L"Box"), "下拉框", "0/0 ");
    }

    void aProgressBarSaysItsValue()
    {
        ProgressBarDefinition bar(L"Bar");
        bar.SetValue(42);

        Verify(bar, "进度条", "42");
    }

    void aGroupOfCheckBoxesSaysTheStateOfEach()
    {
        CheckBoxGroupDefinition group(L"Group");
        Verify(group, "复选组", "");

        for (const wchar_t* pId : {L"End", L"Middle", L"Centre"})
            group.AddCheckBox(MakeOwner<CheckBoxDefinition>(pId, pId));
        group.SetCheckState(L"Middle", 2);
        group.SetCheckState(L"Centre", 1);

        Verify(group, "复选组", "End=0 Middle=2 Centre=1");
    }

    void aGroupOfRadioButtonsSaysTheChosenOne()
    {
        RadioButtonGroupDefinition group(L"Group");
        group.AddRadioButton(MakeOwner<RadioButtonDefinition>(L"mm", L"毫米"));
        group.AddRadioButton(MakeOwner<RadioButtonDefinition>(L"cm", L"厘米"));
        group.SetCurrentRadioButtonId(L"cm");

        Verify(group, "单选组", "cm");
    }

    void aMenuSaysHowManyEntriesItHas()
    {
        CommandButtonMenuDefinition menu(L"Menu", L"Command");
        menu.AddMenuItem(MakeOwner<CommandMenuItemDefinition>(L"Item", L"Command", L"项"));

        Verify(menu, "菜单", "1 项");
    }

    void anotherDefinitionHasNoValue()
    {
        Verify(CommandMenuItemDefinition(L"Item", L"Command", L"项"), "其他", "");
    }

private:
    static void Verify(const IControlDefinition& definition, const char* kind, const char* value)
    {
        const DefinitionText text = DescribeDefinition(definition);

        QCOMPARE(text.kind, QString::fromUtf8(kind));
        QCOMPARE(text.value, QString::fromUtf8(value));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(DefinitionTextTest);
#include "DefinitionTextTest.moc"

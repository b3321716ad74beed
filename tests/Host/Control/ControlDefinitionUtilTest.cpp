#include "Control/ControlDefinitionUtil.h"

#include "Control/CommandButtonDefinition.h"
#include "Control/ICheckBoxGroupDefinition.h"
#include "Control/IComboBoxDefinition.h"
#include "Control/ICommandButtonMenuDefinition.h"
#include "Control/IProgressBarDefinition.h"
#include "Control/IRadioButtonGroupDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Support/KeptText.h"
#include "Support/TestValues.h"

namespace vesk
{

namespace
{

class CheckBoxGroup final : public ControlDefinition<ICheckBoxGroupDefinition>
{
public:
    CheckBoxGroup() : ControlDefinition(L"id") {}
    const std::vector<const ICheckBoxDefinition*>& GetCheckBoxDefinitions() const override
    {
        return items;
    }
    void SetCheckState(const std::wstring& /*checkBoxId*/, int /*checkState*/) override {}

    std::vector<const ICheckBoxDefinition*> items;
};

class ComboBox final : public ControlDefinition<IComboBoxDefinition>
{
public:
    ComboBox() : ControlDefinition(L"id") {}
    std::vector<std::wstring> GetItems() const override { return {}; }
    void SetCurrentIndex(int /*index*/) override {}
    int GetCurrentIndex() const override { return -1; }
};

class ButtonMenu final : public ControlDefinition<ICommandButtonMenuDefinition>
{
public:
    ButtonMenu() : ControlDefinition(L"id") {}
    const std::wstring& GetCommandId() const override { return test::Kept({}); }
    const std::wstring& GetIconPath() const override { return test::Kept({}); }
    std::vector<const IMenuItemDefinition*> GetMenuItemDefinitions() const override { return {}; }
};

class ProgressBar final : public ControlDefinition<IProgressBarDefinition>
{
public:
    ProgressBar() : ControlDefinition(L"id") {}
    int GetValue() const override { return 0; }
    bool IsTextVisible() const override { return false; }
    int GetWidth() const override { return 0; }
};

class RadioButtonGroup final : public ControlDefinition<IRadioButtonGroupDefinition>
{
public:
    RadioButtonGroup() : ControlDefinition(L"id") {}
    const std::vector<const IRadioButtonDefinition*>& GetRadioButtonDefinitions() const override
    {
        return items;
    }
    std::wstring GetCurrentRadioButtonId() const override { return {}; }
    void SetCurrentRadioButtonId(const std::wstring& /*radioButtonId*/) override {}

    std::vector<const IRadioButtonDefinition*> items;
};

/// A label without a change event.
class SilentLabel final : public ILabelDefinition
{
public:
    const std::wstring& GetId() const override { return test::Kept(L"id"); }
    const std::wstring& GetCaption() const override { return test::Kept({}); }
    const std::wstring& GetTooltip() const override { return test::Kept({}); }
    bool IsVisible() const override { return true; }
    bool IsEnabled() const override { return true; }
};

template <class TInterface>
IControlDefinitionChangeEvent* Find(const TInterface* pDefinition)
{
    return ControlDefinitionUtil::GetControlDefinitionChangeEvent(pDefinition);
}

/// True if the event is found through the kind's interface, and null is found for a null
/// definition.
template <class TInterface, class TDefinition>
bool FindsTheEventOf(const TDefinition& definition)
{
    const TInterface* const pNone = nullptr;
    return Find<TInterface>(&definition) == definition.GetControlDefinitionChangeEvent() &&
           Find<TInterface>(pNone) == nullptr;
}

}

class ControlDefinitionUtilTest : public QObject
{
    Q_OBJECT

private slots:
    void findsTheEventOfEachKind();
    void aDefinitionWithoutEventHasNone();
};

void ControlDefinitionUtilTest::findsTheEventOfEachKind()
{
    QVERIFY(FindsTheEventOf<ICommandButtonDefinition>(CommandButtonDefinition(L"id", L"c")));
    QVERIFY(FindsTheEventOf<ICheckBoxGroupDefinition>(CheckBoxGroup()));
    QVERIFY(FindsTheEventOf<IComboBoxDefinition>(ComboBox()));
    QVERIFY(FindsTheEventOf<ICommandButtonMenuDefinition>(ButtonMenu()));
    QVERIFY(FindsTheEventOf<ILabelDefinition>(LabelDefinition(L"id")));
    QVERIFY(FindsTheEventOf<ILineEditDefinition>(LineEditDefinition(L"id")));
    QVERIFY(FindsTheEventOf<IProgressBarDefinition>(ProgressBar()));
    QVERIFY(FindsTheEventOf<IRadioButtonGroupDefinition>(RadioButtonGroup()));
}

void ControlDefinitionUtilTest::aDefinitionWithoutEventHasNone()
{
    const SilentLabel label;

    QVERIFY(Find<ILabelDefinition>(&label) == nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ControlDefinitionUtilTest);
#include "ControlDefinitionUtilTest.moc"

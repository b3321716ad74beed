#include "Control/CommandButtonDefinition.h"

#include "Control/LabelDefinition.h"
#include "Host/Control/ChangeRecorder.h"
#include "Support/TestValues.h"

#include <memory>

using Setter = void (*)(vesk::CommandButtonDefinition&);
Q_DECLARE_METATYPE(Setter)

namespace vesk
{

using Button = CommandButtonDefinition;

class CommandButtonDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void startsEnabledVisibleUncheckedWithTextUnderTheIcon();
    void keepsWhatIsSet();
    void aChangeRaisesOneEventAndAnEqualValueNone_data();
    void aChangeRaisesOneEventAndAnEqualValueNone();
    void theStateIsRightWhenTheEventIsRaised();
    void aHandlerMayDestroyTheDefinition();
    void aHandlerMayChangeTheDefinitionAgain();
    void aLabelIsItsCaption();
};

void CommandButtonDefinitionTest::startsEnabledVisibleUncheckedWithTextUnderTheIcon()
{
    const Button button(L"id", L"Draw.Line");

    QCOMPARE(button.GetId(), std::wstring(L"id"));
    QCOMPARE(button.GetCommandId(), std::wstring(L"Draw.Line"));
    QCOMPARE(button.GetCaption(), std::wstring());
    QCOMPARE(button.GetTooltip(), std::wstring());
    QCOMPARE(button.GetIconPath(), std::wstring());
    QCOMPARE(button.GetButtonStyle(), 3);
    QVERIFY(button.IsVisible());
    QVERIFY(button.IsEnabled());
    QVERIFY(!button.IsChecked());
}

void CommandButtonDefinitionTest::keepsWhatIsSet()
{
    Button button(L"id", L"Draw.Line");

    button.SetCaption(L"caption");
    button.SetTooltip(L"tip");
    button.SetIconPath(L":/icon.svg");
    button.SetButtonStyle(1);
    button.SetVisible(false);
    button.SetEnabled(false);
    button.SetChecked(true);

    QCOMPARE(button.GetCaption(), std::wstring(L"caption"));
    QCOMPARE(button.GetTooltip(), std::wstring(L"tip"));
    QCOMPARE(button.GetIconPath(), std::wstring(L":/icon.svg"));
    QCOMPARE(button.GetButtonStyle(), 1);
    QVERIFY(!button.IsVisible());
    QVERIFY(!button.IsEnabled());
    QVERIFY(button.IsChecked());
}

void CommandButtonDefinitionTest::aChangeRaisesOneEventAndAnEqualValueNone_data()
{
    QTest::addColumn<Setter>("set");

    QTest::newRow("caption") << Setter{[](Button& b) { b.SetCaption(L"x"); }};
    QTest::newRow("tooltip") << Setter{[](Button& b) { b.SetTooltip(L"x"); }};
    QTest::newRow("icon") << Setter{[](Button& b) { b.SetIconPath(L"x"); }};
    QTest::newRow("style") << Setter{[](Button& b) { b.SetButtonStyle(0); }};
    QTest::newRow("visible") << Setter{[](Button& b) { b.SetVisible(false); }};
    QTest::newRow("enabled") << Setter{[](Button& b) { b.SetEnabled(false); }};
    QTest::newRow("checked") << Setter{[](Button& b) { b.SetChecked(true); }};
}

void CommandButtonDefinitionTest::aChangeRaisesOneEventAndAnEqualValueNone()
{
    QFETCH(Setter, set);
    Button button(L"id", L"command");
    const ChangeRecorder recorder(*button.GetControlDefinitionChangeEvent());

    set(button);
    QCOMPARE(recorder.GetCount(), 1);
    QCOMPARE(recorder.GetChanges().front().type, 6);
    set(button);

    QCOMPARE(recorder.GetCount(), 1);
}

void CommandButtonDefinitionTest::theStateIsRightWhenTheEventIsRaised()
{
    Button button(L"id", L"command");
    ChangeRecorder recorder(*button.GetControlDefinitionChangeEvent());
    bool isCheckedInside = false;
    recorder.Then([&] { isCheckedInside = button.IsChecked(); });

    button.SetChecked(true);

    QVERIFY(isCheckedInside);
}

void CommandButtonDefinitionTest::aHandlerMayDestroyTheDefinition()
{
    auto pButton = std::make_unique<Button>(L"id", L"command");
    ChangeRecorder recorder(*pButton->GetControlDefinitionChangeEvent());
    recorder.Then([&] { pButton.reset(); });

    pButton->SetCaption(L"caption");

    QCOMPARE(recorder.GetCount(), 1);
}

void CommandButtonDefinitionTest::aHandlerMayChangeTheDefinitionAgain()
{
    Button button(L"id", L"command");
    ChangeRecorder recorder(*button.GetControlDefinitionChangeEvent());
    recorder.Then([&] { button.SetCaption(L"second"); });

    button.SetCaption(L"first");

    QCOMPARE(button.GetCaption(), std::wstring(L"second"));
    QCOMPARE(recorder.GetCount(), 2);
}

void CommandButtonDefinitionTest::aLabelIsItsCaption()
{
    LabelDefinition label(L"id");
    const ChangeRecorder recorder(*label.GetControlDefinitionChangeEvent());

    label.SetCaption(L"caption");

    QCOMPARE(label.GetId(), std::wstring(L"id"));
    QCOMPARE(label.GetCaption(), std::wstring(L"caption"));
    QCOMPARE(recorder.GetCount(), 1);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::CommandButtonDefinitionTest);
#include "CommandButtonDefinitionTest.moc"

#include "Control/QtLineEdit.h"

#include "Control/ChangeArgs.h"
#include "Control/LineEditDefinitions.h"
#include "Control/OtherEventTypes.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "Validation/NumberValidator.h"

namespace vesk::test
{

struct LineEditFixture
{
    explicit LineEditFixture(const std::wstring& text = L"12.5")
    {
        auto opDefinition = MakeOwner<LineEditDefinition>(L"Edit.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetText(text);
        pDefinition->SetTooltip(L"tip");
        opEdit = MakeOwner<QtLineEdit>(std::move(opDefinition), &parent);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    LineEditDefinition* pDefinition;
    OwnerPtr<QtLineEdit> opEdit;
};

class QtLineEditTest : public QObject
{
    Q_OBJECT

private slots:
    void showsItsDefinition();
    void hasAMetaObjectWithoutSignalsSlotsAndInvokables();
    void isBuiltWithVisibilityAndEnabledState();
    void showsItselfWithoutAParent();
    void givesTheValidatorOfTheInputType_data();
    void givesTheValidatorOfTheInputType();
    void keepsTheValidatorOfTheDefinition();
    void takesTheDecimalsOfADefinitionReferredTo();
    void isBareForRealNumbersOfAForeignDefinition();
    void isBareForRealNumbersOfAnEmptyReference();
    void followsAText();
    void anEqualTextKeepsCursorAndSelection();
    void followsVisibilityAndEnabledState();
    void comparesVisibilityAndEnabledStateFirst();
    void followsASelection();
    void deselectsWhenTheDefinitionSelectsNothing();
    void followsTextAndSelectionTogether();
    void anEqualSelectionKeepsTheCursorAtItsStart();
    void aStartAloneMovesTheCursor();
    void countsASelectionInUnitsOfQt();
    void ignoresOtherEvents_data();
    void ignoresOtherEvents();
    void reportsMissingArguments();
    void statusUpdateAppliesVisibilityAndEnabledState();
    void withoutDefinitionItIsBareAndReportsIt();
    void withoutDefinitionItNeverChanges();
    void withoutDefinitionClearingEmptiesTheWidgetAndReports();
};

void QtLineEditTest::showsItsDefinition()
{
    LineEditFixture f;

    QCOMPARE(f.opEdit->text(), QString("12.5"));
    QCOMPARE(f.opEdit->objectName(), QString("Edit.Id"));
    QCOMPARE(f.opEdit->property("IsDefinition"), QVariant(true));
    QCOMPARE(f.opEdit->toolTip(), QString());
    QCOMPARE(f.opEdit->parentWidget(), &f.parent);
    QCOMPARE(f.opEdit->GetControlDefinition(), static_cast<IControlDefinition*>(f.pDefinition));
    QVERIFY(f.opEdit->GetValidator() == nullptr);
}

void QtLineEditTest::hasAMetaObjectWithoutSignalsSlotsAndInvokables()
{
    const QMetaObject& meta = QtLineEdit::staticMetaObject;

    QCOMPARE(QByteArray(meta.className()), QByteArray("vesk::QtLineEdit"));
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
}

void QtLineEditTest::isBuiltWithVisibilityAndEnabledState()
{
    HostFixture host;
    QWidget parent;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id");
    opDefinition->SetVisible(false);
    opDefinition->SetEnabled(false);

    const QtLineEdit edit(std::move(opDefinition), &parent);

    QVERIFY(edit.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QVERIFY(edit.isHidden());
    QVERIFY(!edit.isEnabled());
}

void QtLineEditTest::showsItselfWithoutAParent()
{
    HostFixture host;

    const QtLineEdit edit(MakeOwner<LineEditDefinition>(L"id"), nullptr);

    QVERIFY(edit.isWindow());
    QVERIFY(edit.isVisible());
}

void QtLineEditTest::givesTheValidatorOfTheInputType_data()
{
    QTest::addColumn<int>("inputType");
    QTest::addColumn<bool>("isInteger");
    QTest::addColumn<bool>("isReal");
    QTest::newRow("text") << 0 << false << false;
    QTest::newRow("whole number") << 1 << true << false;
    QTest::newRow("real number") << 2 << false << true;
    QTest::newRow("3") << 3 << false << false;
    QTest::newRow("-1") << -1 << false << false;
}

void QtLineEditTest::givesTheValidatorOfTheInputType()
{
    QFETCH(int, inputType);
    QFETCH(bool, isInteger);
    QFETCH(bool, isReal);
    HostFixture host;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id", inputType, 7);
    const LineEditDefinition& definition = *opDefinition;

    const QtLineEdit edit(std::move(opDefinition), nullptr);

    const ValidatorBase* pValidator = definition.GetValidator();
    const auto* pReal = dynamic_cast<const NumberValidator<double>*>(pValidator);
    QCOMPARE(dynamic_cast<const NumberValidator<int>*>(pValidator) != nullptr, isInteger);
    QCOMPARE(pReal != nullptr, isReal);
    QCOMPARE(pReal != nullptr ? pReal->GetDecimals() : 7, 7);
    QVERIFY(edit.GetValidator() == nullptr);
}

void QtLineEditTest::keepsTheValidatorOfTheDefinition()
{
    HostFixture host;
    bool isDestroyed = false;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id", LineEditInputType::Integer);
    opDefinition->SetValidator(MakeOwner<NotingValidator>(isDestroyed));

    const QtLineEdit edit(std::move(opDefinition), nullptr);

    QVERIFY(!isDestroyed);
}

void QtLineEditTest::takesTheDecimalsOfADefinitionReferredTo()
{
    HostFixture host;
    LineEditDefinition target(L"target", LineEditInputType::Real, 5);

    const QtLineEdit edit(MakeOwner<LineEditDefinitionReference>(L"id", &target), nullptr);

    const auto* pReal = dynamic_cast<const NumberValidator<double>*>(target.GetValidator());
    QVERIFY(pReal != nullptr);
    QCOMPARE(pReal->GetDecimals(), 5);
}

void QtLineEditTest::isBareForRealNumbersOfAForeignDefinition()
{
    HostFixture host;
    auto opDefinition = MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Real);
    ForeignLineEditDefinition& definition = *opDefinition;

    QtLineEdit edit(std::move(opDefinition), nullptr);
    edit.show();
    definition.SetText(L"another");
    definition.GetEvent().RaisePropertyChanged();
    QTest::keyClicks(&edit, "x");

    EXPECT_WARNING(host.warnings, L"LineEditDefinition不能为空", "vesk::QtLineEdit::QtLineEdit");
    QCOMPARE(edit.text(), QString("x"));
    QCOMPARE(definition.GetText(), std::wstring(L"another"));
    QVERIFY(definition.GetValidator() == nullptr);
    QVERIFY(definition.GetEvent().IsEmpty());
    QCOMPARE(edit.objectName(), QString());
    QVERIFY(!edit.property("IsDefinition").isValid());
}

void QtLineEditTest::isBareForRealNumbersOfAnEmptyReference()
{
    HostFixture host;

    const QtLineEdit edit(MakeOwner<EmptyRealReference>(), nullptr);

    EXPECT_WARNING(host.warnings, L"LineEditDefinition不能为空", "vesk::QtLineEdit::QtLineEdit");
    QVERIFY(!edit.testAttribute(Qt::WA_WState_ExplicitShowHide));
    QCOMPARE(edit.objectName(), QString());
}

void QtLineEditTest::followsAText()
{
    LineEditFixture f;

    f.pDefinition->SetText(L"a\U0001F4D0角");

    QCOMPARE(f.opEdit->text(), QString::fromUtf8("a\xF0\x9F\x93\x90\xE8\xA7\x92"));
}

void QtLineEditTest::anEqualTextKeepsCursorAndSelection()
{
    LineEditFixture f;
    const QSignalSpy changes(f.opEdit.Get(), &QLineEdit::textChanged);
    f.opEdit->setSelection(1, 2);

    f.pDefinition->SetCaption(L"raises the event");

    QCOMPARE(f.opEdit->selectedText(), QString("2."));
    QCOMPARE(f.opEdit->cursorPosition(), 3);
    QCOMPARE(changes.count(), 0);
}

void QtLineEditTest::followsVisibilityAndEnabledState()
{
    LineEditFixture f;

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    QVERIFY(f.opEdit->isHidden());
    QVERIFY(!f.opEdit->isEnabled());

    f.pDefinition->SetVisible(true);
    f.pDefinition->SetEnabled(true);
    QVERIFY(f.opEdit->isVisible());
    QVERIFY(f.opEdit->isEnabled());
}

void QtLineEditTest::comparesVisibilityAndEnabledStateFirst()
{
    LineEditFixture f;
    f.parent.hide();
    f.parent.setEnabled(false);

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(!f.opEdit->isHidden());
    QVERIFY(!f.opEdit->testAttribute(Qt::WA_ForceDisabled));
}

void QtLineEditTest::followsASelection()
{
    LineEditFixture f(L"abcdef");

    f.pDefinition->SetSelection(2, 3);

    QCOMPARE(f.opEdit->selectionStart(), 2);
    QCOMPARE(f.opEdit->selectedText(), QString("cde"));
}

void QtLineEditTest::deselectsWhenTheDefinitionSelectsNothing()
{
    LineEditFixture f(L"abcdef");
    f.pDefinition->SetSelection(2, 3);

    f.pDefinition->SetSelection(-1, 0);

    QVERIFY(!f.opEdit->hasSelectedText());
    QCOMPARE(f.opEdit->cursorPosition(), 5);
}

void QtLineEditTest::followsTextAndSelectionTogether()
{
    LineEditFixture f(L"abcdef");
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opEdit.Get());
    f.pDefinition->SetText(L"uvwxyz");
    f.pDefinition->SetSelection(1, 2);

    f.opEdit->On(&args);

    QCOMPARE(f.opEdit->text(), QString("uvwxyz"));
    QCOMPARE(f.opEdit->selectedText(), QString("vw"));
}

void QtLineEditTest::anEqualSelectionKeepsTheCursorAtItsStart()
{
    LineEditFixture f(L"abcdef");
    f.opEdit->setCursorPosition(4);
    f.opEdit->cursorBackward(true, 3);

    f.pDefinition->SetCaption(L"raises the event");

    QCOMPARE(f.opEdit->selectedText(), QString("bcd"));
    QCOMPARE(f.opEdit->cursorPosition(), 1);
}

void QtLineEditTest::aStartAloneMovesTheCursor()
{
    HostFixture host;
    auto opDefinition = MakeOwner<StartOnlyDefinition>(L"id");
    LineEditDefinition& definition = *opDefinition;
    definition.SetText(L"abcdef");
    QtLineEdit edit(std::move(opDefinition), nullptr);
    QCOMPARE(edit.cursorPosition(), 6);

    definition.SetSelection(2, 1);

    QCOMPARE(edit.cursorPosition(), 2);
    QVERIFY(!edit.hasSelectedText());
}

void QtLineEditTest::countsASelectionInUnitsOfQt()
{
    LineEditFixture f(L"\U0001F4D0\U0001F4D0c");

    f.pDefinition->SetSelection(0, 4);

    QCOMPARE(f.opEdit->selectedText(), QString::fromUtf8("\xF0\x9F\x93\x90\xF0\x9F\x93\x90"));
    QCOMPARE(f.opEdit->selectionLength(), 4);
}

void QtLineEditTest::ignoresOtherEvents_data()
{
    AddOtherEventTypes();
}

void QtLineEditTest::ignoresOtherEvents()
{
    QFETCH(int, type);
    LineEditFixture f;
    {
        const QSignalBlocker unwritten(f.opEdit.Get());
        f.opEdit->setText("by hand");
    }
    ChangeArgs args(type);

    f.opEdit->On(&args);

    QCOMPARE(f.opEdit->text(), QString("by hand"));
}

void QtLineEditTest::reportsMissingArguments()
{
    LineEditFixture f;

    f.opEdit->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtLineEdit::On");
    QCOMPARE(f.opEdit->text(), QString("12.5"));
}

void QtLineEditTest::statusUpdateAppliesVisibilityAndEnabledState()
{
    LineEditFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opEdit.Get());
    f.parent.hide();
    f.parent.setEnabled(false);
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    f.opEdit->UpdateStatus();

    QVERIFY(f.opEdit->isHidden());
    QVERIFY(f.opEdit->testAttribute(Qt::WA_ForceDisabled));
}

void QtLineEditTest::withoutDefinitionItIsBareAndReportsIt()
{
    HostFixture host;

    QtLineEdit edit(nullptr, nullptr);
    edit.setText("x");
    QTest::keyClicks(&edit, "y");
    QTest::keyClick(&edit, Qt::Key_Return);
    edit.SelectAll();

    EXPECT_WARNING(host.warnings, L"m_pControlDefinition为空", "vesk::QtLineEdit::QtLineEdit");
    QCOMPARE(edit.text(), QString("xy"));
    QCOMPARE(edit.selectedText(), QString("xy"));
    QVERIFY(edit.GetControlDefinition() == nullptr);
    QCOMPARE(edit.objectName(), QString());
    QVERIFY(!edit.property("IsDefinition").isValid());
}

void QtLineEditTest::withoutDefinitionItNeverChanges()
{
    HostFixture host;
    QtLineEdit edit(nullptr, nullptr);
    EXPECT_WARNING(host.warnings, L"m_pControlDefinition为空", "vesk::QtLineEdit::QtLineEdit");
    ChangeArgs args(ControlDefinitionChangeEventType::Add);

    edit.On(nullptr);
    EXPECT_WARNING(host.warnings, L"pArgs为空", "vesk::QtLineEdit::On");
    edit.On(&args);
    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtLineEdit::On");
    edit.UpdateStatus();
    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtLineEdit::UpdateStatus");
    edit.SetText(L"text");
    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtLineEdit::SetText");

    QCOMPARE(edit.text(), QString());
    QVERIFY(!edit.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void QtLineEditTest::withoutDefinitionClearingEmptiesTheWidgetAndReports()
{
    HostFixture host;
    QtLineEdit edit(nullptr, nullptr);
    EXPECT_WARNING(host.warnings, L"m_pControlDefinition为空", "vesk::QtLineEdit::QtLineEdit");
    edit.setText("x");

    edit.Clear();

    EXPECT_WARNING(host.warnings, L"pControlDefinition为空", "vesk::QtLineEdit::Clear");
    QCOMPARE(edit.text(), QString());
}

}

QTEST_MAIN(vesk::test::QtLineEditTest)
#include "QtLineEditTest.moc"

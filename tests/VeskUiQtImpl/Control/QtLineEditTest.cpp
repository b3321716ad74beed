#include "VeskUiQtImpl/Control/QtLineEdit.h"

#include "Control/ChangeArgs.h"
#include "Control/LineEditFixture.h"
#include "Support/TestValues.h"
#include "Validation/NumberValidator.h"

namespace vesk::test
{

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
    void followsItsDefinitionWhateverItsInputType_data();
    void followsItsDefinitionWhateverItsInputType();
    void showsATextOfAnyLength();
    void keepsTheValidatorOfTheDefinition_data();
    void keepsTheValidatorOfTheDefinition();
    void takesTheDecimalsOfADefinitionReferredTo();
    void givesAForeignDefinitionAValidatorOfWholeNumbers();
    void isBareForRealNumbersOfAForeignDefinition();
    void isBareForRealNumbersOfAnEmptyReference();
    void statusUpdateAppliesVisibilityAndEnabledState();
    void statusUpdateLeavesTextAndSelectionAlone();
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

void QtLineEditTest::followsItsDefinitionWhateverItsInputType_data()
{
    QTest::addColumn<int>("inputType");
    QTest::addColumn<bool>("hasValidator");
    for (const int inputType : {0, 1, 2, 3})
    {
        QTest::addRow("type %d", inputType) << inputType << false;
        QTest::addRow("type %d with a validator", inputType) << inputType << true;
    }
}

void QtLineEditTest::followsItsDefinitionWhateverItsInputType()
{
    QFETCH(int, inputType);
    QFETCH(bool, hasValidator);
    HostFixture host;
    bool isDestroyed = false;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id", inputType);
    LineEditDefinition& definition = *opDefinition;
    definition.SetText(L"12");
    if (hasValidator)
        definition.SetValidator(MakeOwner<NotingValidator>(isDestroyed));

    QtLineEdit edit(std::move(opDefinition), nullptr);
    QCOMPARE(edit.text(), QString("12"));
    QCOMPARE(edit.objectName(), QString("id"));
    QCOMPARE(edit.property("IsDefinition"), QVariant(true));
    definition.SetText(L"34");
    QCOMPARE(edit.text(), QString("34"));
    QTest::keyClick(&edit, Qt::Key_5);

    QCOMPARE(definition.GetText(), std::wstring(L"345"));
    QVERIFY(definition.IsEditing());
    QVERIFY(!isDestroyed);
}

void QtLineEditTest::showsATextOfAnyLength()
{
    const std::wstring longText(40000, L'7');
    const QString expected = QString::fromStdWString(longText);
    HostFixture host;
    auto opDefinition = MakeOwner<NotingLineEditDefinition>(L"id");
    NotingLineEditDefinition& definition = *opDefinition;
    definition.SetText(longText);
    definition.writes.clear();

    QtLineEdit edit(std::move(opDefinition), nullptr);
    QVERIFY(edit.text() == expected);
    definition.SetText(longText + L"8");
    QVERIFY(edit.text() == expected + "8");
    edit.SetText(longText);

    QVERIFY(edit.text() == expected);
    QVERIFY(definition.GetText() == longText);
    // The test wrote once, and so did the edit.
    QCOMPARE(definition.writes.size(), std::size_t(2));
}

void QtLineEditTest::keepsTheValidatorOfTheDefinition_data()
{
    QTest::addColumn<int>("inputType");
    QTest::newRow("whole number") << int(LineEditInputType::Integer);
    QTest::newRow("real number") << int(LineEditInputType::Real);
}

void QtLineEditTest::keepsTheValidatorOfTheDefinition()
{
    QFETCH(int, inputType);
    HostFixture host;
    bool isDestroyed = false;
    auto opDefinition = MakeOwner<LineEditDefinition>(L"id", inputType);
    opDefinition->SetValidator(MakeOwner<NotingValidator>(isDestroyed));
    const LineEditDefinition& definition = *opDefinition;
    const ValidatorBase* pOwn = definition.GetValidator();

    const QtLineEdit edit(std::move(opDefinition), nullptr);

    QVERIFY(!isDestroyed);
    QCOMPARE(definition.GetValidator(), pOwn);
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

void QtLineEditTest::givesAForeignDefinitionAValidatorOfWholeNumbers()
{
    HostFixture host;
    auto opDefinition = MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Integer);
    const ForeignLineEditDefinition& definition = *opDefinition;

    const QtLineEdit edit(std::move(opDefinition), nullptr);

    QVERIFY(dynamic_cast<const NumberValidator<int>*>(definition.GetValidator()) != nullptr);
    QCOMPARE(edit.text(), QString("foreign"));
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

void QtLineEditTest::statusUpdateLeavesTextAndSelectionAlone()
{
    LineEditFixture f;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opEdit.Get());
    f.pDefinition->SetText(L"another");
    f.pDefinition->SetSelection(0, 2);

    f.opEdit->UpdateStatus();

    QCOMPARE(f.opEdit->text(), QString("12.5"));
    QVERIFY(!f.opEdit->hasSelectedText());
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

VESK_TESTS(vesk::test::QtLineEditTest);
#include "QtLineEditTest.moc"

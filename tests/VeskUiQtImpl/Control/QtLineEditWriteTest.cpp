#include "Control/UserFixture.h"

namespace vesk::test
{

class QtLineEditWriteTest : public QObject
{
    Q_OBJECT

private slots:
    void selectingIsWrittenMarkedAsTheUsers_data() { AddEchoModes(); }
    void selectingIsWrittenMarkedAsTheUsers();
    void selectingTheSameTextElsewhereIsWritten();
    void selectingMoreFromTheSameStartIsWritten();
    void deselectingIsWritten();
    void anEqualSelectionIsNotWritten();
    void settingTheTextReachesWidgetAndDefinition();
    void settingTheTextOfASilencedWidgetIsTheProgramsChange();
    void settingAnEqualTextWritesNothing();
    void writingATextLeavesTheStateOfBeingEditedAlone_data();
    void writingATextLeavesTheStateOfBeingEditedAlone();
    void clearingReachesWidgetAndDefinition();
    void clearingAnEmptyWidgetEmptiesTheDefinition();
    void clearingWhatIsEmptyWritesNothing();
    void selectingAllReachesTheDefinition();
    void holdsAValidatorOfItsOwn();
    void selectingInAForeignDefinitionIsReported();
};

void QtLineEditWriteTest::selectingIsWrittenMarkedAsTheUsers()
{
    QFETCH(bool, isEchoing);
    UserFixture f(L"a\U0001F4D0cdef", isEchoing);
    bool isByUser = false;
    struct Notes final : IControlDefinitionChangeEventHandler
    {
        explicit Notes(bool& isMarked) : m_isMarked(isMarked) {}
        void On(IControlDefinitionChangeEventArgs* pArgs) override
        {
            m_isMarked = pArgs->IsChangeByUser();
        }
        bool& m_isMarked;
    } notes(isByUser);
    f.pDefinition->LineEditDefinition::GetControlDefinitionChangeEvent()->Add(&notes);

    f.opEdit->setSelection(1, 4);

    QVERIFY(isByUser);
    QCOMPARE(f.pDefinition->GetSelectionStart(), 1);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"\U0001F4D0cd"));
    QCOMPARE(f.opEdit->selectionLength(), 4);
}

void QtLineEditWriteTest::selectingTheSameTextElsewhereIsWritten()
{
    UserFixture f(L"abab");
    f.opEdit->setSelection(0, 2);

    f.opEdit->setSelection(2, 2);

    QCOMPARE(f.pDefinition->GetSelectionStart(), 2);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"ab"));
}

void QtLineEditWriteTest::selectingMoreFromTheSameStartIsWritten()
{
    UserFixture f(L"abab");
    f.opEdit->setSelection(1, 1);

    f.opEdit->setSelection(1, 2);

    QCOMPARE(f.pDefinition->GetSelectionStart(), 1);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"ba"));
}

void QtLineEditWriteTest::deselectingIsWritten()
{
    UserFixture f(L"abcdef");
    f.opEdit->setSelection(1, 3);

    f.opEdit->deselect();

    QCOMPARE(f.pDefinition->GetSelectionStart(), -1);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring());
}

void QtLineEditWriteTest::anEqualSelectionIsNotWritten()
{
    HostFixture host;
    QtLineEdit edit(MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text), nullptr);

    QMetaObject::invokeMethod(&edit, "selectionChanged");

    // It was read; a write would be reported after that.
    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::GetDefinitionSelectionStart");
    QVERIFY(host.warnings.IsEmpty());
}

void QtLineEditWriteTest::settingTheTextReachesWidgetAndDefinition()
{
    UserFixture f(L"12");

    f.opEdit->SetText(L"34");

    const std::vector<TextWrite> expected{{L"34", false, true}};
    QCOMPARE(f.opEdit->text(), QString("34"));
    QCOMPARE(f.pDefinition->writes, expected);
}

void QtLineEditWriteTest::settingTheTextOfASilencedWidgetIsTheProgramsChange()
{
    UserFixture f(L"12");
    const QSignalBlocker silence(f.opEdit.Get());

    f.opEdit->SetText(L"34");

    const std::vector<TextWrite> expected{{L"34", false, false}};
    QCOMPARE(f.opEdit->text(), QString("34"));
    QCOMPARE(f.pDefinition->writes, expected);
}

void QtLineEditWriteTest::settingAnEqualTextWritesNothing()
{
    UserFixture f(L"12");

    f.opEdit->SetText(L"12");

    QVERIFY(f.pDefinition->writes.empty());
}

void QtLineEditWriteTest::writingATextLeavesTheStateOfBeingEditedAlone_data()
{
    QTest::addColumn<bool>("isEditing");
    QTest::newRow("edited") << true;
    QTest::newRow("not edited") << false;
}

void QtLineEditWriteTest::writingATextLeavesTheStateOfBeingEditedAlone()
{
    QFETCH(bool, isEditing);
    UserFixture f(L"12");
    f.pDefinition->SetIsEditing(isEditing);

    f.opEdit->SetText(L"34");
    QCOMPARE(f.pDefinition->IsEditing(), isEditing);
    f.opEdit->Clear();
    QCOMPARE(f.pDefinition->IsEditing(), isEditing);
}

void QtLineEditWriteTest::clearingReachesWidgetAndDefinition()
{
    UserFixture f(L"12");

    f.opEdit->Clear();

    QCOMPARE(f.opEdit->text(), QString());
    QCOMPARE(f.pDefinition->GetText(), std::wstring());
    QCOMPARE(f.pDefinition->clearCount, 0);
}

void QtLineEditWriteTest::clearingAnEmptyWidgetEmptiesTheDefinition()
{
    UserFixture f(L"12");
    const QSignalBlocker silence(f.opEdit.Get());
    f.opEdit->setText("");

    f.opEdit->Clear();

    QCOMPARE(f.pDefinition->GetText(), std::wstring());
    QCOMPARE(f.pDefinition->clearCount, 1);
}

void QtLineEditWriteTest::clearingWhatIsEmptyWritesNothing()
{
    UserFixture f;

    f.opEdit->Clear();

    QCOMPARE(f.pDefinition->clearCount, 0);
    QVERIFY(f.pDefinition->writes.empty());
}

void QtLineEditWriteTest::selectingAllReachesTheDefinition()
{
    UserFixture f(L"abc");

    f.opEdit->SelectAll();

    QCOMPARE(f.opEdit->selectedText(), QString("abc"));
    QCOMPARE(f.pDefinition->GetSelectionStart(), 0);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"abc"));
}

void QtLineEditWriteTest::holdsAValidatorOfItsOwn()
{
    UserFixture f;
    bool isFirstDestroyed = false;
    bool isSecondDestroyed = false;
    auto opFirst = MakeOwner<NotingValidator>(isFirstDestroyed);
    const ValidatorBase* pFirst = opFirst.Get();

    f.opEdit->SetValidator(std::move(opFirst));
    QCOMPARE(f.opEdit->GetValidator(), pFirst);
    QVERIFY(f.pDefinition->GetValidator() == nullptr);

    f.opEdit->SetValidator(MakeOwner<NotingValidator>(isSecondDestroyed));
    QVERIFY(isFirstDestroyed);
    QVERIFY(!isSecondDestroyed);

    f.opEdit->SetValidator(nullptr);
    QVERIFY(isSecondDestroyed);
    QVERIFY(f.opEdit->GetValidator() == nullptr);
}

void QtLineEditWriteTest::selectingInAForeignDefinitionIsReported()
{
    HostFixture host;
    QtLineEdit edit(MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text), nullptr);

    edit.setSelection(0, 2);

    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::GetDefinitionSelectionStart");
    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::SetDefinitionSelection");
    QCOMPARE(edit.selectedText(), QString("fo"));
}

}

VESK_TESTS(vesk::test::QtLineEditWriteTest);
#include "QtLineEditWriteTest.moc"

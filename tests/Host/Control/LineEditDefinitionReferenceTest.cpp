#include "Control/LineEditDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/ControlDefinitionUtil.h"
#include "Host/Control/ChangeRecorder.h"
#include "Host/Control/MortalValidator.h"
#include "Support/TestValues.h"
#include "Validation/NumberValidator.h"

#include <memory>

using Act = void (*)(vesk::LineEditDefinitionReference&);
Q_DECLARE_METATYPE(Act)

namespace vesk
{

namespace
{

/// A definition "other", a reference "ref" to it, and a record of the definition's changes.
struct Fixture
{
    Fixture()
    {
        pOther->SetCaption(L"caption");
        pOther->SetTooltip(L"tip");
        pOther->SetText(L"abc");
        pOther->SetSelection(1, 1);
        pRecorder = std::make_unique<ChangeRecorder>(*pOther->GetControlDefinitionChangeEvent());
    }

    std::unique_ptr<LineEditDefinition> pOther =
        std::make_unique<LineEditDefinition>(L"other", LineEditInputType::Real, 4);
    std::unique_ptr<LineEditDefinitionReference> pReference =
        std::make_unique<LineEditDefinitionReference>(L"ref", pOther.get());
    std::unique_ptr<ChangeRecorder> pRecorder;
};

}

class LineEditDefinitionReferenceTest : public QObject
{
    Q_OBJECT

private slots:
    void hasAnIdOfItsOwn();
    void showsEverythingElseOfTheOther();
    void followsTheOthersStates();
    void changesReachTheOther();
    void itsEventsAreTheOthers();
    void theUsersChangeIsTheUsersForTheOtherToo_data();
    void theUsersChangeIsTheUsersForTheOtherToo();
    void theProgramsChangeIsNotTheUsers_data();
    void theProgramsChangeIsNotTheUsers();
    void theMarkEndsWithTheOperation();
    void aHandlerMayDestroyBothOnAChange_data();
    void aHandlerMayDestroyBothOnAChange();
    void withoutDefinitionItIsEmptyAndTakesNothing();
    void withoutDefinitionItFreesTheValidator();
};

void LineEditDefinitionReferenceTest::hasAnIdOfItsOwn()
{
    const Fixture f;

    QCOMPARE(f.pReference->GetId(), std::wstring(L"ref"));
    QCOMPARE(f.pReference->GetLineEditDefinition(),
             static_cast<const LineEditDefinition*>(f.pOther.get()));
}

void LineEditDefinitionReferenceTest::showsEverythingElseOfTheOther()
{
    const Fixture f;

    QCOMPARE(f.pReference->GetCaption(), std::wstring(L"caption"));
    QCOMPARE(f.pReference->GetTooltip(), std::wstring(L"tip"));
    QCOMPARE(f.pReference->GetInputType(), int{LineEditInputType::Real});
    QCOMPARE(f.pReference->GetText(), std::wstring(L"abc"));
    QCOMPARE(f.pReference->GetSelectionStart(), 1);
    QCOMPARE(f.pReference->GetSelectedText(), std::wstring(L"b"));
    QVERIFY(f.pReference->IsVisible());
    QVERIFY(f.pReference->IsEnabled());
}

void LineEditDefinitionReferenceTest::followsTheOthersStates()
{
    const Fixture f;

    f.pOther->SetVisible(false);
    f.pOther->SetEnabled(false);

    QVERIFY(!f.pReference->IsVisible());
    QVERIFY(!f.pReference->IsEnabled());
}

void LineEditDefinitionReferenceTest::changesReachTheOther()
{
    const Fixture f;

    f.pReference->SetText(L"defg");
    f.pReference->SetSelection(1, 2);
    const bool isNoted = f.pReference->SetIsEditing(true);
    f.pReference->SetValidator(MakeOwner<NumberValidator<int>>());

    QCOMPARE(f.pOther->GetText(), std::wstring(L"defg"));
    QCOMPARE(f.pOther->GetSelectionStart(), 1);
    QCOMPARE(f.pOther->GetSelectedText(), std::wstring(L"ef"));
    QVERIFY(isNoted);
    QVERIFY(f.pOther->IsEditing());
    QVERIFY(f.pOther->GetValidator() != nullptr);
    QCOMPARE(f.pReference->GetValidator(), f.pOther->GetValidator());
    f.pReference->ClearText();
    QCOMPARE(f.pOther->GetText(), std::wstring());
}

void LineEditDefinitionReferenceTest::itsEventsAreTheOthers()
{
    const Fixture f;

    QCOMPARE(f.pReference->GetControlDefinitionChangeEvent(),
             f.pOther->GetControlDefinitionChangeEvent());
    QCOMPARE(f.pReference->GetLineEditEvent(), f.pOther->GetLineEditEvent());
}

namespace
{

void AddActs()
{
    QTest::addColumn<Act>("act");
    QTest::newRow("text") << Act{[](LineEditDefinitionReference& r) { r.SetText(L"x"); }};
    QTest::newRow("clear") << Act{[](LineEditDefinitionReference& r) { r.ClearText(); }};
    QTest::newRow("selection") << Act{[](LineEditDefinitionReference& r) { r.SetSelection(0, 2); }};
}

}

void LineEditDefinitionReferenceTest::theUsersChangeIsTheUsersForTheOtherToo_data()
{
    AddActs();
}

void LineEditDefinitionReferenceTest::theUsersChangeIsTheUsersForTheOtherToo()
{
    QFETCH(Act, act);
    const Fixture f;

    const ControlDefinitionChangeByUser byUser(L"ref");
    act(*f.pReference);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QVERIFY(f.pRecorder->GetChanges().front().isByUser);
}

void LineEditDefinitionReferenceTest::theProgramsChangeIsNotTheUsers_data()
{
    AddActs();
}

void LineEditDefinitionReferenceTest::theProgramsChangeIsNotTheUsers()
{
    QFETCH(Act, act);
    const Fixture f;

    act(*f.pReference);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QVERIFY(!f.pRecorder->GetChanges().front().isByUser);
}

void LineEditDefinitionReferenceTest::theMarkEndsWithTheOperation()
{
    const Fixture f;
    const ControlDefinitionChangeByUser byUser(L"ref");

    f.pReference->SetText(L"x");
    f.pOther->SetText(L"y");

    QVERIFY(!f.pRecorder->GetChanges().at(1).isByUser);
}

void LineEditDefinitionReferenceTest::aHandlerMayDestroyBothOnAChange_data()
{
    AddActs();
}

void LineEditDefinitionReferenceTest::aHandlerMayDestroyBothOnAChange()
{
    QFETCH(Act, act);
    Fixture f;
    f.pRecorder->Then([&] {
        f.pReference.reset();
        f.pOther.reset();
    });

    const ControlDefinitionChangeByUser byUser(L"ref");
    act(*f.pReference);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"other"));
}

void LineEditDefinitionReferenceTest::withoutDefinitionItIsEmptyAndTakesNothing()
{
    LineEditDefinitionReference reference(L"ref", nullptr);

    reference.SetText(L"x");
    reference.ClearText();
    reference.SetSelection(0, 1);

    QCOMPARE(reference.GetId(), std::wstring(L"ref"));
    QCOMPARE(reference.GetCaption(), std::wstring());
    QCOMPARE(reference.GetTooltip(), std::wstring());
    QCOMPARE(reference.GetText(), std::wstring());
    QCOMPARE(reference.GetSelectedText(), std::wstring());
    QCOMPARE(reference.GetSelectionStart(), -1);
    QCOMPARE(reference.GetInputType(), int{LineEditInputType::Text});
    QVERIFY(!reference.SetIsEditing(true));
    QVERIFY(reference.GetLineEditDefinition() == nullptr);
    QVERIFY(reference.GetLineEditEvent() == nullptr);
    QVERIFY(reference.GetControlDefinitionChangeEvent() == nullptr);
    QVERIFY(ControlDefinitionUtil::GetControlDefinitionChangeEvent(&reference) == nullptr);
}

void LineEditDefinitionReferenceTest::withoutDefinitionItFreesTheValidator()
{
    bool isAlive = false;
    LineEditDefinitionReference reference(L"ref", nullptr);

    reference.SetValidator(MakeOwner<MortalValidator>(isAlive));

    QVERIFY(!isAlive);
    QVERIFY(reference.GetValidator() == nullptr);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::LineEditDefinitionReferenceTest);
#include "LineEditDefinitionReferenceTest.moc"

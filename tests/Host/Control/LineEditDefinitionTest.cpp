#include "Control/LineEditDefinition.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Host/Control/ChangeRecorder.h"
#include "Host/Control/MortalValidator.h"
#include "Support/TestValues.h"
#include "Validation/NumberValidator.h"

#include <limits>
#include <memory>

namespace vesk
{

namespace
{

/// A definition with a text, and a record of its changes.
struct Fixture
{
    explicit Fixture(const std::wstring& text)
    {
        pDefinition->SetText(text);
        pRecorder =
            std::make_unique<ChangeRecorder>(*pDefinition->GetControlDefinitionChangeEvent());
    }

    std::unique_ptr<LineEditDefinition> pDefinition = std::make_unique<LineEditDefinition>(L"id");
    std::unique_ptr<ChangeRecorder> pRecorder;
};

class EditingRecorder final : public ILineEditEventHandler
{
public:
    void On(LineEditEventArgs* pArgs) override
    {
        m_record += pArgs->GetId() + L"=" + pArgs->GetText();
        m_type = pArgs->GetType();
    }

    const std::wstring& GetRecord() const { return m_record; }
    LineEditEventType GetType() const { return m_type; }

private:
    std::wstring m_record;
    LineEditEventType m_type{-1};
};

constexpr int MaxInt = std::numeric_limits<int>::max();

}

class LineEditDefinitionTest : public QObject
{
    Q_OBJECT

private slots:
    void isEmptyAtFirst();
    void keepsItsInputTypeAndDecimals();
    void aDifferentTextRaisesOneEvent();
    void anEqualTextRaisesNoneAndKeepsTheSelection();
    void aDifferentTextDropsTheSelectionInTheSameEvent();
    void clearingATextRaisesOneEventAndDropsTheSelection();
    void clearingAnEmptyTextRaisesNone();
    void aSelectionIsCountedInUtf16Units_data();
    void aSelectionIsCountedInUtf16Units();
    void aSelectionRaisesOneEvent();
    void anEqualSelectionRaisesNone();
    void aSelectionThatIsTheSameOnceCutRaisesNone();
    void anotherLengthFromTheSameStartRaisesOneEvent();
    void theSameTextSelectedElsewhereRaisesOneEvent();
    void droppingTheSelectionRaisesOneEvent();
    void selectingNothingWhereNothingIsSelectedRaisesNone();
    void theEditingStateRaisesNoEvent();
    void ownsItsValidator();
    void givingAValidatorRaisesNoEvent();
    void theEndOfEditingReachesItsHandlers();
    void aHandlerMayDestroyTheDefinitionOnAChangeOfText();
    void aHandlerMayDestroyTheDefinitionOnAChangeOfSelection();
    void aChangeByTheUserIsMarked();
};

void LineEditDefinitionTest::isEmptyAtFirst()
{
    const LineEditDefinition definition(L"id");

    QCOMPARE(definition.GetId(), std::wstring(L"id"));
    QCOMPARE(definition.GetText(), std::wstring());
    QCOMPARE(definition.GetSelectedText(), std::wstring());
    QCOMPARE(definition.GetSelectionStart(), -1);
    QVERIFY(!definition.IsEditing());
    QVERIFY(definition.GetValidator() == nullptr);
    QVERIFY(definition.GetLineEditEvent() != nullptr);
    QCOMPARE(definition.GetInputType(), int{LineEditInputType::Text});
}

void LineEditDefinitionTest::keepsItsInputTypeAndDecimals()
{
    const LineEditDefinition definition(L"id", LineEditInputType::Real, 5);

    QCOMPARE(definition.GetInputType(), 2);
    QCOMPARE(definition.GetDecimals(), 5);
}

void LineEditDefinitionTest::aDifferentTextRaisesOneEvent()
{
    const Fixture f(L"1");

    f.pDefinition->SetText(L"12");

    QCOMPARE(f.pDefinition->GetText(), std::wstring(L"12"));
    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, 6);
}

void LineEditDefinitionTest::anEqualTextRaisesNoneAndKeepsTheSelection()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 2);

    f.pDefinition->SetText(L"abc");

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pDefinition->GetSelectionStart(), 1);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"bc"));
}

void LineEditDefinitionTest::aDifferentTextDropsTheSelectionInTheSameEvent()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 2);
    int startInside = 0;
    std::wstring selectedInside = L"?";
    f.pRecorder->Then([&] {
        startInside = f.pDefinition->GetSelectionStart();
        selectedInside = f.pDefinition->GetSelectedText();
    });

    f.pDefinition->SetText(L"abcd");

    QCOMPARE(f.pRecorder->GetCount(), 2);
    QCOMPARE(startInside, -1);
    QCOMPARE(selectedInside, std::wstring());
}

void LineEditDefinitionTest::clearingATextRaisesOneEventAndDropsTheSelection()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(0, 1);

    f.pDefinition->ClearText();

    QCOMPARE(f.pDefinition->GetText(), std::wstring());
    QCOMPARE(f.pDefinition->GetSelectionStart(), -1);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring());
    QCOMPARE(f.pRecorder->GetCount(), 2);
}

void LineEditDefinitionTest::clearingAnEmptyTextRaisesNone()
{
    const Fixture f(L"");

    f.pDefinition->ClearText();

    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void LineEditDefinitionTest::aSelectionIsCountedInUtf16Units_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("selectedStart");
    QTest::addColumn<QString>("selectedText");

    const QString plain = "abc";
    QTest::newRow("inside") << plain << 1 << 1 << 1 << "b";
    QTest::newRow("all") << plain << 0 << 3 << 0 << "abc";
    QTest::newRow("beyond the end") << plain << 1 << 9 << 1 << "bc";
    QTest::newRow("so long that the end overflows") << plain << 2 << MaxInt << 2 << "c";
    QTest::newRow("from the end") << plain << 3 << 1 << -1 << "";
    QTest::newRow("from beyond the end") << plain << MaxInt << MaxInt << -1 << "";
    QTest::newRow("negative start") << plain << -1 << 2 << -1 << "";
    QTest::newRow("no length") << plain << 1 << 0 << -1 << "";
    QTest::newRow("negative length") << plain << 1 << -1 << -1 << "";
    QTest::newRow("empty text") << "" << 0 << 1 << -1 << "";

    const QString wide = QString::fromUcs4(U"a\U0001F600b\u4e2d\U00020000");
    QTest::newRow("behind a pair") << wide << 3 << 1 << 3 << "b";
    QTest::newRow("a pair") << wide << 1 << 2 << 1 << QString::fromUcs4(U"\U0001F600");
    QTest::newRow("half a pair") << wide << 1 << 1 << 1 << QString::fromUcs4(U"\U0001F600");
    QTest::newRow("the other half") << wide << 2 << 1 << 1 << QString::fromUcs4(U"\U0001F600");
    QTest::newRow("from a pair on") << wide << 1 << 4 << 1 << wide.mid(1, 4);
    QTest::newRow("last pair") << wide << 5 << 2 << 5 << wide.mid(5);
    QTest::newRow("all with pairs") << wide << 0 << 7 << 0 << wide;
    QTest::newRow("behind the last pair") << wide << 7 << 1 << -1 << "";
}

void LineEditDefinitionTest::aSelectionIsCountedInUtf16Units()
{
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, length);
    QFETCH(int, selectedStart);
    QFETCH(QString, selectedText);
    const Fixture f(text.toStdWString());

    f.pDefinition->SetSelection(start, length);

    QCOMPARE(f.pDefinition->GetSelectionStart(), selectedStart);
    QCOMPARE(QString::fromStdWString(f.pDefinition->GetSelectedText()), selectedText);
}

void LineEditDefinitionTest::aSelectionRaisesOneEvent()
{
    const Fixture f(L"abc");

    f.pDefinition->SetSelection(1, 2);

    QCOMPARE(f.pRecorder->GetCount(), 1);
    QCOMPARE(f.pRecorder->GetChanges().front().type, 6);
}

void LineEditDefinitionTest::anEqualSelectionRaisesNone()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 2);

    f.pDefinition->SetSelection(1, 2);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void LineEditDefinitionTest::aSelectionThatIsTheSameOnceCutRaisesNone()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 2);

    f.pDefinition->SetSelection(1, 100);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void LineEditDefinitionTest::anotherLengthFromTheSameStartRaisesOneEvent()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 1);

    f.pDefinition->SetSelection(1, 2);

    QCOMPARE(f.pRecorder->GetCount(), 2);
    QCOMPARE(f.pDefinition->GetSelectedText(), std::wstring(L"bc"));
}

void LineEditDefinitionTest::theSameTextSelectedElsewhereRaisesOneEvent()
{
    const Fixture f(L"aa");
    f.pDefinition->SetSelection(0, 1);

    f.pDefinition->SetSelection(1, 1);

    QCOMPARE(f.pRecorder->GetCount(), 2);
    QCOMPARE(f.pDefinition->GetSelectionStart(), 1);
}

void LineEditDefinitionTest::droppingTheSelectionRaisesOneEvent()
{
    const Fixture f(L"abc");
    f.pDefinition->SetSelection(1, 2);

    f.pDefinition->SetSelection(-1, 0);

    QCOMPARE(f.pRecorder->GetCount(), 2);
    QCOMPARE(f.pDefinition->GetSelectionStart(), -1);
}

void LineEditDefinitionTest::selectingNothingWhereNothingIsSelectedRaisesNone()
{
    const Fixture f(L"abc");

    f.pDefinition->SetSelection(2, 0);

    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void LineEditDefinitionTest::theEditingStateRaisesNoEvent()
{
    const Fixture f(L"abc");

    QVERIFY(f.pDefinition->SetIsEditing(true));
    QVERIFY(f.pDefinition->IsEditing());
    QVERIFY(f.pDefinition->SetIsEditing(false));

    QVERIFY(!f.pDefinition->IsEditing());
    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void LineEditDefinitionTest::ownsItsValidator()
{
    bool isFirstAlive = false;
    bool isSecondAlive = false;
    auto pDefinition = std::make_unique<LineEditDefinition>(L"id");
    OwnerPtr<ValidatorBase> opFirst = MakeOwner<MortalValidator>(isFirstAlive);
    const ValidatorBase* const pFirst = opFirst.Get();

    pDefinition->SetValidator(std::move(opFirst));
    QCOMPARE(pDefinition->GetValidator(), pFirst);
    pDefinition->SetValidator(MakeOwner<MortalValidator>(isSecondAlive));
    QVERIFY(!isFirstAlive);
    QVERIFY(isSecondAlive);
    pDefinition.reset();

    QVERIFY(!isSecondAlive);
}

void LineEditDefinitionTest::givingAValidatorRaisesNoEvent()
{
    const Fixture f(L"abc");

    f.pDefinition->SetValidator(MakeOwner<NumberValidator<int>>());

    QCOMPARE(f.pRecorder->GetCount(), 0);
}

void LineEditDefinitionTest::theEndOfEditingReachesItsHandlers()
{
    const LineEditDefinition definition(L"id");
    EditingRecorder recorder;
    auto* const pEvent = dynamic_cast<LineEditEvent*>(definition.GetLineEditEvent());
    QVERIFY(pEvent != nullptr);
    pEvent->Add(&recorder);
    LineEditEventArgs args(LineEditEventType::EditingFinished, L"id", L"12.5");

    pEvent->Emit(&args);

    QCOMPARE(recorder.GetRecord(), std::wstring(L"id=12.5"));
    QCOMPARE(static_cast<int>(recorder.GetType()), 0);
}

void LineEditDefinitionTest::aHandlerMayDestroyTheDefinitionOnAChangeOfText()
{
    Fixture f(L"abc");
    f.pRecorder->Then([&] { f.pDefinition.reset(); });

    f.pDefinition->SetText(L"");

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void LineEditDefinitionTest::aHandlerMayDestroyTheDefinitionOnAChangeOfSelection()
{
    Fixture f(L"abc");
    f.pRecorder->Then([&] { f.pDefinition.reset(); });

    f.pDefinition->SetSelection(0, 3);

    QCOMPARE(f.pRecorder->GetCount(), 1);
}

void LineEditDefinitionTest::aChangeByTheUserIsMarked()
{
    const Fixture f(L"abc");

    const ControlDefinitionChangeByUser byUser(L"id");
    f.pDefinition->SetText(L"abcd");
    f.pDefinition->SetSelection(0, 1);

    QVERIFY(f.pRecorder->GetChanges().at(0).isByUser);
    QVERIFY(f.pRecorder->GetChanges().at(1).isByUser);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::LineEditDefinitionTest);
#include "LineEditDefinitionTest.moc"

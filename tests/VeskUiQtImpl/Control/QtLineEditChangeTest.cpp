#include "Control/ChangeArgs.h"
#include "Control/LineEditFixture.h"
#include "Control/OtherEventTypes.h"

#include "Support/TestValues.h"

namespace vesk::test
{

/// How a line edit follows changes of its definition.
class QtLineEditChangeTest : public QObject
{
    Q_OBJECT

private slots:
    void followsAText();
    void anEqualTextKeepsCursorAndSelection();
    void followsVisibilityAndEnabledState();
    void comparesVisibilityAndEnabledStateFirst();
    void followsASelection();
    void followsTheSameTextElsewhere();
    void followsMoreFromTheSameStart();
    void deselectsWhenTheDefinitionSelectsNothing();
    void followsTextAndSelectionTogether();
    void anEqualSelectionKeepsTheCursorAtItsStart();
    void aStartAloneMovesTheCursor();
    void countsASelectionInUnitsOfQt();
    void visibilityIsReadAfterTheText();
    void textVisibilityEnabledStateAndSelectionAreWrittenInThisOrder();
    void ignoresOtherEvents_data();
    void ignoresOtherEvents();
    void reportsMissingArguments();
};

void QtLineEditChangeTest::followsAText()
{
    LineEditFixture f;

    f.pDefinition->SetText(L"a\U0001F4D0角");

    QCOMPARE(f.opEdit->text(), QString::fromUtf8("a\xF0\x9F\x93\x90\xE8\xA7\x92"));
}

void QtLineEditChangeTest::anEqualTextKeepsCursorAndSelection()
{
    LineEditFixture f;
    const QSignalSpy changes(f.opEdit.Get(), &QLineEdit::textChanged);
    f.opEdit->setSelection(1, 2);

    f.pDefinition->SetCaption(L"raises the event");

    QCOMPARE(f.opEdit->selectedText(), QString("2."));
    QCOMPARE(f.opEdit->cursorPosition(), 3);
    QCOMPARE(changes.count(), 0);
}

void QtLineEditChangeTest::followsVisibilityAndEnabledState()
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

void QtLineEditChangeTest::comparesVisibilityAndEnabledStateFirst()
{
    LineEditFixture f;
    f.parent.hide();
    f.parent.setEnabled(false);

    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);

    QVERIFY(!f.opEdit->isHidden());
    QVERIFY(!f.opEdit->testAttribute(Qt::WA_ForceDisabled));
}

void QtLineEditChangeTest::followsASelection()
{
    LineEditFixture f(L"abcdef");

    f.pDefinition->SetSelection(2, 3);

    QCOMPARE(f.opEdit->selectionStart(), 2);
    QCOMPARE(f.opEdit->selectedText(), QString("cde"));
}

void QtLineEditChangeTest::followsTheSameTextElsewhere()
{
    LineEditFixture f(L"abab");
    f.pDefinition->SetSelection(0, 2);

    f.pDefinition->SetSelection(2, 2);

    QCOMPARE(f.opEdit->selectionStart(), 2);
    QCOMPARE(f.opEdit->selectedText(), QString("ab"));
}

void QtLineEditChangeTest::followsMoreFromTheSameStart()
{
    LineEditFixture f(L"abab");
    f.pDefinition->SetSelection(1, 1);

    f.pDefinition->SetSelection(1, 2);

    QCOMPARE(f.opEdit->selectionStart(), 1);
    QCOMPARE(f.opEdit->selectedText(), QString("ba"));
}

void QtLineEditChangeTest::deselectsWhenTheDefinitionSelectsNothing()
{
    LineEditFixture f(L"abcdef");
    f.pDefinition->SetSelection(2, 3);

    f.pDefinition->SetSelection(-1, 0);

    QVERIFY(!f.opEdit->hasSelectedText());
    QCOMPARE(f.opEdit->cursorPosition(), 5);
}

void QtLineEditChangeTest::followsTextAndSelectionTogether()
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

void QtLineEditChangeTest::anEqualSelectionKeepsTheCursorAtItsStart()
{
    LineEditFixture f(L"abcdef");
    f.opEdit->setCursorPosition(4);
    f.opEdit->cursorBackward(true, 3);

    f.pDefinition->SetCaption(L"raises the event");

    QCOMPARE(f.opEdit->selectedText(), QString("bcd"));
    QCOMPARE(f.opEdit->cursorPosition(), 1);
}

void QtLineEditChangeTest::aStartAloneMovesTheCursor()
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

void QtLineEditChangeTest::countsASelectionInUnitsOfQt()
{
    LineEditFixture f(L"\U0001F4D0\U0001F4D0c");

    f.pDefinition->SetSelection(0, 4);

    QCOMPARE(f.opEdit->selectedText(), QString::fromUtf8("\xF0\x9F\x93\x90\xF0\x9F\x93\x90"));
    QCOMPARE(f.opEdit->selectionLength(), 4);
}

void QtLineEditChangeTest::visibilityIsReadAfterTheText()
{
    LineEditFixture f;
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opEdit.Get());
    f.pDefinition->SetText(L"another");
    connect(f.opEdit.Get(), &QLineEdit::textChanged, this, [&f] {
        f.pDefinition->SetVisible(false);
        f.pDefinition->SetEnabled(false);
        f.pDefinition->SetSelection(1, 2);
    });

    f.opEdit->On(&args);

    QVERIFY(f.opEdit->isHidden());
    QVERIFY(!f.opEdit->isEnabled());
    QCOMPARE(f.opEdit->selectedText(), QString("no"));
}

/// Records what an edit shows when it is hidden, when it is disabled and when its selection
/// changes.
class EditNotes final : public QObject
{
public:
    explicit EditNotes(QLineEdit& edit)
    {
        edit.installEventFilter(this);
        connect(&edit, &QLineEdit::textChanged, this, [this] { Note("text"); });
        connect(&edit, &QLineEdit::selectionChanged, this, [this] { Note("selection"); });
    }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::HideToParent)
            Note("hidden");
        if (pEvent->type() == QEvent::EnabledChange)
            Note("disabled");
        return false;
    }

    QStringList notes;

private:
    void Note(const QString& what) { notes += what; }
};

void QtLineEditChangeTest::textVisibilityEnabledStateAndSelectionAreWrittenInThisOrder()
{
    LineEditFixture f;
    ChangeArgs args;
    f.pDefinition->GetControlDefinitionChangeEvent()->Delete(f.opEdit.Get());
    f.pDefinition->SetText(L"another");
    f.pDefinition->SetSelection(1, 2);
    f.pDefinition->SetVisible(false);
    f.pDefinition->SetEnabled(false);
    const EditNotes notes(*f.opEdit);

    f.opEdit->On(&args);

    QCOMPARE(notes.notes, QStringList({"text", "hidden", "disabled", "selection"}));
}

void QtLineEditChangeTest::ignoresOtherEvents_data()
{
    AddOtherEventTypes();
}

void QtLineEditChangeTest::ignoresOtherEvents()
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

void QtLineEditChangeTest::reportsMissingArguments()
{
    LineEditFixture f;

    f.opEdit->On(nullptr);

    EXPECT_WARNING(f.host.warnings, L"pArgs为空", "vesk::QtLineEdit::On");
    QCOMPARE(f.opEdit->text(), QString("12.5"));
}

}

VESK_TESTS(vesk::test::QtLineEditChangeTest);
#include "QtLineEditChangeTest.moc"

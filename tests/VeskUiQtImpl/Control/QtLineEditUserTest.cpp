#include "Control/UserFixture.h"

namespace vesk::test
{

/// Records the line-edit events and the state of the definition at that time.
class LineEditEventNotes final : public ILineEditEventHandler
{
public:
    explicit LineEditEventNotes(const LineEditDefinition& definition) : m_definition(definition)
    {
        definition.GetLineEditEvent()->Add(this);
    }
    ~LineEditEventNotes() override { m_definition.GetLineEditEvent()->Delete(this); }
    LineEditEventNotes(const LineEditEventNotes&) = delete;
    LineEditEventNotes& operator=(const LineEditEventNotes&) = delete;

    void On(LineEditEventArgs* pArgs) override
    {
        events.push_back(*pArgs);
        wasEditing = m_definition.IsEditing();
        wasInUsersScope = ControlDefinitionChangeByUser::IsChangeByUser(m_definition.GetId());
    }

    std::vector<LineEditEventArgs> events;
    bool wasEditing = true;
    bool wasInUsersScope = false;

private:
    const LineEditDefinition& m_definition;
};

/// A definition whose event is not the host's own.
class ForeignEventDefinition final : public LineEditDefinition
{
public:
    using LineEditDefinition::LineEditDefinition;

    ILineEditEvent* GetLineEditEvent() const override { return &m_foreign; }

private:
    struct ForeignEvent final : ILineEditEvent
    {
        void Add(ILineEditEventHandler*) override {}
        void Delete(ILineEditEventHandler*) override {}
    };
    mutable ForeignEvent m_foreign;
};

/// A definition that records whether its user is known when its id is read, and what it holds when
/// its text is written.
class TimedDefinition final : public LineEditDefinition
{
public:
    using LineEditDefinition::LineEditDefinition;

    const std::wstring& GetId() const override
    {
        wereFlagged.push_back(LineEditTextChangeFlag::m_textChangeByUser);
        return LineEditDefinition::GetId();
    }

    void SetText(const std::wstring& text) override
    {
        wereEditing.push_back(IsEditing());
        LineEditDefinition::SetText(text);
    }

    mutable std::vector<bool> wereFlagged;
    std::vector<bool> wereEditing;
};

class QtLineEditUserTest : public QObject
{
    Q_OBJECT

private slots:
    void typingWritesTheTextOnceMarkedAsTheUsers_data() { AddEchoModes(); }
    void typingWritesTheTextOnceMarkedAsTheUsers();
    void typingWhatTheDefinitionHoldsWritesNothing();
    void typingStartsTheStateOfBeingEdited();
    void textIsWrittenFlaggedBeforeTheStateOfBeingEdited();
    void theTextFlagLastsOnlyForTheKey();
    void echoedUserEditKeepsTheCursor_data() { AddEchoModes(); }
    void echoedUserEditKeepsTheCursor();
    void echoedUserEditChangesTheTextOnce();
    void typingOverASelectionGoesOnBehindIt_data() { AddEchoModes(); }
    void typingOverASelectionGoesOnBehindIt();
    void typingWritesTextBeyondTheBasicPlane();
    void changeByProgramIsWrittenInAScopeWithoutTheFlag();
    void undoIsWrittenToo();
    void returnTellsTheEndOfEditingOnce();
    void losingTheFocusTellsTheEndOfEditing();
    void theEndOfEditingIsToldInTheUsersScope();
    void foreignEventIsNotTold();
    void writesThroughAReference();
    void foreignDefinitionIsShownAndEditedButNotMarked();
};

void QtLineEditUserTest::typingWritesTheTextOnceMarkedAsTheUsers()
{
    QFETCH(bool, isEchoing);
    UserFixture f(L"", isEchoing);

    QTest::keyClick(f.opEdit.Get(), Qt::Key_7);

    const std::vector<TextWrite> expected{{L"7", true, true}};
    QCOMPARE(f.pDefinition->writes, expected);
    QCOMPARE(f.opEdit->text(), QString("7"));
}

void QtLineEditUserTest::typingStartsTheStateOfBeingEdited()
{
    UserFixture f;
    QVERIFY(!f.pDefinition->IsEditing());

    QTest::keyClick(f.opEdit.Get(), Qt::Key_7);

    QVERIFY(f.pDefinition->IsEditing());
}

void QtLineEditUserTest::textIsWrittenFlaggedBeforeTheStateOfBeingEdited()
{
    HostFixture host;
    auto opDefinition = MakeOwner<TimedDefinition>(L"Edit.Id");
    TimedDefinition& definition = *opDefinition;
    QtLineEdit edit(std::move(opDefinition), nullptr);
    definition.wereFlagged.clear();

    QTest::keyClick(&edit, Qt::Key_7);

    // The flag is set before the user scope is opened.
    QVERIFY(!definition.wereFlagged.empty());
    QVERIFY(definition.wereFlagged.front());
    QCOMPARE(definition.wereEditing, std::vector<bool>{false});
    QVERIFY(definition.IsEditing());
}

void QtLineEditUserTest::theTextFlagLastsOnlyForTheKey()
{
    UserFixture f;

    QTest::keyClick(f.opEdit.Get(), Qt::Key_7);

    QVERIFY(!LineEditTextChangeFlag::m_textChangeByUser);
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"Edit.Id"));
}

void QtLineEditUserTest::echoedUserEditKeepsTheCursor()
{
    QFETCH(bool, isEchoing);
    UserFixture f(L"1234", isEchoing);
    f.opEdit->setCursorPosition(2);

    QTest::keyClicks(f.opEdit.Get(), "xy");

    QCOMPARE(f.opEdit->text(), QString("12xy34"));
    QCOMPARE(f.opEdit->cursorPosition(), 4);
    QVERIFY(!f.opEdit->hasSelectedText());
}

void QtLineEditUserTest::echoedUserEditChangesTheTextOnce()
{
    UserFixture f(L"12");
    const QSignalSpy changes(f.opEdit.Get(), &QLineEdit::textChanged);

    QTest::keyClick(f.opEdit.Get(), Qt::Key_3);

    QCOMPARE(changes.count(), 1);
}

void QtLineEditUserTest::typingOverASelectionGoesOnBehindIt()
{
    QFETCH(bool, isEchoing);
    UserFixture f(L"abcdef", isEchoing);
    f.opEdit->setSelection(0, 3);

    QTest::keyClicks(f.opEdit.Get(), "xy");

    QCOMPARE(f.opEdit->text(), QString("xydef"));
    QCOMPARE(f.pDefinition->GetText(), std::wstring(L"xydef"));
}

void QtLineEditUserTest::typingWritesTextBeyondTheBasicPlane()
{
    UserFixture f;
    const QString symbol = QString::fromUtf8("\xF0\x9F\x93\x90");
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, symbol);

    QCoreApplication::sendEvent(f.opEdit.Get(), &press);

    QCOMPARE(f.pDefinition->GetText(), std::wstring(L"\U0001F4D0"));
    QCOMPARE(f.opEdit->text(), symbol);
}

void QtLineEditUserTest::changeByProgramIsWrittenInAScopeWithoutTheFlag()
{
    UserFixture f;

    f.opEdit->setText("by program");

    const std::vector<TextWrite> expected{{L"by program", false, true}};
    QCOMPARE(f.pDefinition->writes, expected);
    QVERIFY(!f.pDefinition->IsEditing());
}

void QtLineEditUserTest::undoIsWrittenToo()
{
    UserFixture f(L"12");
    QTest::keyClick(f.opEdit.Get(), Qt::Key_3);

    f.opEdit->undo();

    QCOMPARE(f.opEdit->text(), QString("12"));
    QCOMPARE(f.pDefinition->GetText(), std::wstring(L"12"));
}

void QtLineEditUserTest::returnTellsTheEndOfEditingOnce()
{
    UserFixture f;
    LineEditEventNotes notes(*f.pDefinition);
    QTest::keyClicks(f.opEdit.Get(), "42");

    QTest::keyClick(f.opEdit.Get(), Qt::Key_Return);

    QCOMPARE(notes.events.size(), std::size_t(1));
    QCOMPARE(static_cast<int>(notes.events[0].GetType()), 0);
    QCOMPARE(notes.events[0].GetId(), std::wstring(L"Edit.Id"));
    QCOMPARE(notes.events[0].GetText(), std::wstring(L"42"));
    QVERIFY(!f.pDefinition->IsEditing());
}

void QtLineEditUserTest::losingTheFocusTellsTheEndOfEditing()
{
    UserFixture f;
    QLineEdit other(&f.parent);
    other.show();
    f.parent.activateWindow();
    f.opEdit->setFocus();
    QTRY_VERIFY(f.opEdit->hasFocus());
    QTest::keyClicks(f.opEdit.Get(), "42");
    LineEditEventNotes notes(*f.pDefinition);

    other.setFocus();

    QCOMPARE(notes.events.size(), std::size_t(1));
    QVERIFY(!f.pDefinition->IsEditing());
}

void QtLineEditUserTest::theEndOfEditingIsToldInTheUsersScope()
{
    UserFixture f;
    QTest::keyClicks(f.opEdit.Get(), "42");
    LineEditEventNotes notes(*f.pDefinition);

    QTest::keyClick(f.opEdit.Get(), Qt::Key_Return);

    QVERIFY(!notes.wasEditing);
    QVERIFY(notes.wasInUsersScope);
    QVERIFY(!ControlDefinitionChangeByUser::IsChangeByUser(L"Edit.Id"));
}

void QtLineEditUserTest::foreignEventIsNotTold()
{
    HostFixture host;
    auto opDefinition = MakeOwner<ForeignEventDefinition>(L"id");
    const LineEditDefinition& definition = *opDefinition;
    QtLineEdit edit(std::move(opDefinition), nullptr);
    QTest::keyClick(&edit, Qt::Key_4);
    QVERIFY(definition.IsEditing());

    QTest::keyClick(&edit, Qt::Key_Return);

    QVERIFY(!definition.IsEditing());
}

void QtLineEditUserTest::typingWhatTheDefinitionHoldsWritesNothing()
{
    UserFixture f(L"1", false);
    {
        const ControlDefinitionChangeByUser untold(L"Edit.Id");
        f.pDefinition->SetText(L"12");
    }
    f.pDefinition->writes.clear();

    QTest::keyClick(f.opEdit.Get(), Qt::Key_2);

    QCOMPARE(f.opEdit->text(), QString("12"));
    QVERIFY(f.pDefinition->writes.empty());
    QVERIFY(f.pDefinition->IsEditing());
}

void QtLineEditUserTest::writesThroughAReference()
{
    HostFixture host;
    LineEditDefinition target(L"target");
    auto opEdit =
        MakeOwner<QtLineEdit>(MakeOwner<LineEditDefinitionReference>(L"id", &target), nullptr);

    QTest::keyClicks(opEdit.Get(), "abc");
    opEdit->setSelection(1, 2);

    QCOMPARE(target.GetText(), std::wstring(L"abc"));
    QCOMPARE(target.GetSelectionStart(), 1);
    QCOMPARE(target.GetSelectedText(), std::wstring(L"bc"));
    QVERIFY(target.IsEditing());
    QTest::keyClick(opEdit.Get(), Qt::Key_Return);
    QVERIFY(!target.IsEditing());
    opEdit.Reset();
}

void QtLineEditUserTest::foreignDefinitionIsShownAndEditedButNotMarked()
{
    HostFixture host;
    auto opDefinition = MakeOwner<ForeignLineEditDefinition>(LineEditInputType::Text);
    ForeignLineEditDefinition& definition = *opDefinition;
    QtLineEdit edit(std::move(opDefinition), nullptr);
    QCOMPARE(edit.text(), QString("foreign"));

    QTest::keyClick(&edit, Qt::Key_7);
    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::SetDefinitionIsEditing");
    QCOMPARE(definition.GetText(), std::wstring(L"foreign7"));

    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::SetDefinitionIsEditing");

    definition.GetEvent().RaisePropertyChanged();
    EXPECT_WARNING(host.warnings, L"类型不正确", "vesk::QtLineEdit::GetDefinitionSelectionStart");
}

}

VESK_TESTS(vesk::test::QtLineEditUserTest);
#include "QtLineEditUserTest.moc"

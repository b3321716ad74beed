#include "Journal/JournalManager.h"
#include "TemporaryDimensionHandlersImpl/HandlerFixture.h"

#include "Support/TestValues.h"

#include <limits>

namespace vesk::test
{
namespace
{

/// Records whether typing is validated live while a shared editor is styled, and then while the
/// journal is notified of it.
class ValidationNotes final : public QObject, public IJournalObserver
{
public:
    explicit ValidationNotes(const HandlerFixture& f) : m_f(f)
    {
        f.Editor()->installEventFilter(this);
        JournalManager::GetInstance().AddObserver(this);
    }
    ~ValidationNotes() override { JournalManager::GetInstance().RemoveObserver(this); }

    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::StyleChange || pEvent->type() == QEvent::PaletteChange)
        {
            hasNewLook = true;
            wasValidatedBeforeTheLook = wasValidatedBeforeTheLook || m_f.IsValidatedLive();
        }
        return false;
    }

    void OnRecord(const JournalRecord&) override {}
    void OnUiObject(const IJournalUiObject&, int) override
    {
        wasValidatedInTheJournal = m_f.IsValidatedLive();
    }

    bool hasNewLook = false;
    bool wasValidatedBeforeTheLook = false;
    bool wasValidatedInTheJournal = false;

private:
    const HandlerFixture& m_f;
};

}

/// What handlers do to the editor of their view, and what they leave unchanged.
class EditorReuseTest : public QObject
{
    Q_OBJECT

private slots:
    void aNewEditorIsAnOrdinaryLineEditOtherwise();
    void aHandlerThatGoesLeavesTheEditorAsItIs();
    void validationBeginsBetweenTheLookAndTheJournal();
    void aTextIsWrittenEvenIfItStandsThere();
};

void EditorReuseTest::aNewEditorIsAnOrdinaryLineEditOtherwise()
{
    HandlerFixture f;
    const QLineEdit plain;

    f.TypeLength("5");

    const QLineEdit& editor = *f.Editor();
    QCOMPARE(editor.windowModality(), Qt::NonModal);
    QCOMPARE(editor.focusPolicy(), plain.focusPolicy());
    QCOMPARE(int(editor.alignment()), int(plain.alignment()));
    QCOMPARE(editor.echoMode(), plain.echoMode());
    QCOMPARE(editor.inputMask(), QString());
    QCOMPARE(editor.maxLength(), std::numeric_limits<int>::max());
    QCOMPARE(int(editor.inputMethodHints()), int(plain.inputMethodHints()));
    QCOMPARE(editor.placeholderText(), QString());
    QVERIFY(editor.isEnabled() && !editor.isReadOnly());
    QVERIFY(editor.validator() == nullptr && editor.completer() == nullptr);
    QVERIFY(editor.testAttribute(Qt::WA_InputMethodEnabled));
    QVERIFY(!editor.testAttribute(Qt::WA_DeleteOnClose));
    QVERIFY(!editor.testAttribute(Qt::WA_ShowWithoutActivating));
}

void EditorReuseTest::aHandlerThatGoesLeavesTheEditorAsItIs()
{
    HandlerFixture f;
    f.TypeLength("56");
    QTRY_VERIFY(f.Editor()->hasFocus());
    f.Editor()->setSelection(0, 1);

    f.opHandler.Reset();

    QVERIFY(f.Editor()->isVisible());
    QVERIFY(f.Editor()->hasFocus());
    QCOMPARE(f.Editor()->selectedText(), QString("5"));
}

void EditorReuseTest::validationBeginsBetweenTheLookAndTheJournal()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.opHandler = f.CreateHandler();
    f.Editor()->setStyleSheet("QLineEdit{ color:red; }");
    const ValidationNotes notes(f);

    f.TypeLength("6");

    QVERIFY(notes.hasNewLook);
    QVERIFY(!notes.wasValidatedBeforeTheLook);
    QVERIFY(notes.wasValidatedInTheJournal);
}

void EditorReuseTest::aTextIsWrittenEvenIfItStandsThere()
{
    HandlerFixture f;
    f.TypeLength("5");
    f.Editor()->selectAll();

    f.TypeLength("5");

    QVERIFY(!f.Editor()->hasSelectedText());
    QCOMPARE(f.Editor()->cursorPosition(), 1);
}

}

VESK_TESTS(vesk::test::EditorReuseTest);
#include "EditorReuseTest.moc"

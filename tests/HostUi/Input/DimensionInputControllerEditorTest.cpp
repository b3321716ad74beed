#include "HostUi/InputFixture.h"

#include "Command/IActionManager.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "Support/TestValues.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QWindow>

#include <memory>

using namespace vesk;
using namespace vesk::test;

namespace
{

TemporaryDimensionMgr& Manager()
{
    return *TemporaryDimensionMgr::GetInstance();
}

/// A field next to the view, in which the user types now.
struct FieldFixture : InputFixture
{
    FieldFixture() : InputFixture(Linear())
    {
        pField = new QLineEdit(&host.window);
        pField->show();
    }

    void ClickField() { QTest::mouseClick(pField, Qt::LeftButton); }

    /// A key from a window system that still considers the editor the active window.
    void PressInEditor(QEvent::Type type, int key, const QString& text = QString(),
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QKeyEvent press(type, key, modifiers, text);
        press.ignore();
        QCoreApplication::sendEvent(Editor(), &press);
    }

    QLineEdit* pField;
};

/// Counts the events of a type that an object receives.
class EventCounter final : public QObject
{
public:
    EventCounter(QObject& watched, QEvent::Type type) : m_type(type)
    {
        watched.installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        count += pEvent->type() == m_type ? 1 : 0;
        return false;
    }

private:
    QEvent::Type m_type;
};

/// Tells how many listen to its text.
class CountedEdit final : public QLineEdit
{
public:
    int CountListeners() const
    {
        return receivers(SIGNAL(textEdited(QString))) + receivers(SIGNAL(textChanged(QString)));
    }
};

/// Tells the host of a widget, as the control library does of its editor.
void Announce(QObject& object, int kind)
{
    OwnerPtr<IJournalUiObject> opUiObject = IJournalUiObject::Create();
    opUiObject->SetUiObject(Any(&object));
    IJournalManager::Get()->AddUiObject(std::move(opUiObject), kind, 0);
}

}

/// The editor as a window: its size, its closing, and the keys that arrive in it.
class DimensionInputControllerEditorTest final : public QObject
{
    Q_OBJECT

private slots:
    void closingEndsTheInputAndNothingElse()
    {
        InputFixture f(Linear());
        QCloseEvent close;

        f.Type("50");
        QCoreApplication::sendEvent(f.Editor(), &close);

        QVERIFY(!close.isAccepted());
        QVERIFY(!Manager().IsInputting());
        QVERIFY(!f.Editor()->isVisible());
        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QVERIFY(f.host.view.GetKeys().empty());
        QVERIFY(IActionManager::CurrentAction() != nullptr);
    }

    void digitAfterClosingBeginsAnew()
    {
        InputFixture f(Linear());

        f.Type("50");
        QVERIFY(!f.Editor()->close());
        f.Type("7").Press(Qt::Key_Return);

        QCOMPARE(f.script.TakenTexts(), QStringList{"7"});
    }

    void editorTakesNoInputMethod()
    {
        InputFixture f(Linear());

        f.Type("5");

        QVERIFY(!f.Editor()->testAttribute(Qt::WA_InputMethodEnabled));
    }

    void editorIsAsWideAsItsText()
    {
        InputFixture f(Linear());
        f.host.view.resize(640, 480);

        f.Type("1234567890.12345678901234");

        const int text = f.Editor()->fontMetrics().horizontalAdvance(f.Editor()->text());
        QVERIFY(f.Editor()->width() >= text + 8);
        QVERIFY(f.Editor()->width() < text + 40);
        QCOMPARE(TemporaryDimensionStyle().GetEditorWidth(), f.Editor()->width());
    }

    void dimensionsAreMadeAnewForAWiderEditor()
    {
        InputFixture f(Linear());
        f.host.view.resize(640, 480);
        f.Type("1234567890.1234");
        const int before = f.host.view.GetRedrawCount();

        f.Type("5");

        QVERIFY(f.host.view.GetRedrawCount() > before);
    }

    void editorIsNeverNarrowerThanItOpens()
    {
        InputFixture f(Linear());
        f.host.view.resize(640, 480);
        f.Type("1234567890.12345678901234");

        f.Editor()->selectAll();
        f.Type("5");

        QCOMPARE(f.Editor()->width(), 96);
        QCOMPARE(TemporaryDimensionStyle().GetEditorWidth(), 96);
    }

    void editorIsNeverWiderThanItsView()
    {
        InputFixture f(Linear());
        f.host.view.resize(300, 200);

        f.Type(QString(60, '7'));

        QVERIFY(f.Editor()->width() <= 300);
        QVERIFY(f.Editor()->width() > 280);
    }

    void editorFollowsTheSizeOfItsView()
    {
        InputFixture f(Linear());
        f.host.view.resize(640, 480);
        f.Type(QString(60, '7'));
        QVERIFY(f.Editor()->width() > 300);

        f.host.view.resize(300, 200);
        ActionManager::RefreshViewInput(&f.host.view);

        QVERIFY(f.Editor()->width() <= 300);
    }

    void widthGoesWithTheInput()
    {
        InputFixture f(Linear());
        f.host.view.resize(640, 480);
        f.Type("1234567890.12345678901234");

        Manager().EndInput();

        QCOMPARE(TemporaryDimensionStyle().GetEditorWidth(), 96);
    }

    void emptiedFieldOfALockedValueIsFree()
    {
        InputFixture f(Linear());
        Manager().SetLocked(InputState::IS_Length, true);

        f.Type("5").Press(Qt::Key_Backspace);

        QCOMPARE(f.freed, std::vector<InputState>{InputState::IS_Length});
        QVERIFY(Manager().IsInputting());
    }

    void emptyTextIsRefusedAllTheSame_data()
    {
        QTest::addColumn<int>("key");

        QTest::newRow("Return") << int(Qt::Key_Return);
        QTest::newRow("Tab") << int(Qt::Key_Tab);
        QTest::newRow("Shift+Tab") << int(Qt::Key_Backtab);
    }

    void emptyTextIsRefusedAllTheSame()
    {
        QFETCH(int, key);
        InputFixture f(Linear());
        Manager().SetLocked(InputState::IS_Length, true);

        f.Type("5").Press(Qt::Key_Backspace).Press(key);

        QCOMPARE(f.script.taken.size(), std::size_t(0));
        QVERIFY(!f.controller.GetMessage().isEmpty());
    }

    void fieldThatIsNotEmptiedStaysLocked()
    {
        InputFixture f(Linear());
        Manager().SetLocked(InputState::IS_Length, true);

        f.Type("57").Press(Qt::Key_Backspace).Type("8");

        QVERIFY(f.freed.empty());
    }

    void onlyTheEmptiedFieldIsFree()
    {
        InputFixture f(Linear());
        Manager().SetLocked(InputState::IS_Angle, true);

        f.Type("5").Press(Qt::Key_Backspace);

        QVERIFY(f.freed.empty());
    }

    void keyOfAClosedEditorGoesToTheFieldThatWasClicked()
    {
        FieldFixture f;
        f.Type("77");
        Manager().EndInput();

        f.ClickField();
        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(f.pField->text(), QString("3"));
        QVERIFY(!Manager().IsInputting());
    }

    void keysOfAClosedEditorAreHeardByThoseWhoWatchTheWindow_data()
    {
        QTest::addColumn<QEvent::Type>("type");
        QTest::newRow("announced") << QEvent::ShortcutOverride;
        QTest::newRow("pressed") << QEvent::KeyPress;
        QTest::newRow("released") << QEvent::KeyRelease;
    }

    void keysOfAClosedEditorAreHeardByThoseWhoWatchTheWindow()
    {
        QFETCH(QEvent::Type, type);
        FieldFixture f;
        f.Type("77");
        Manager().EndInput();
        f.host.view.setFocus();
        const EventCounter inWindow(*f.host.window.windowHandle(), type);
        const EventCounter inView(f.host.view, type);

        f.PressInEditor(type, Qt::Key_F10);

        QCOMPARE(inWindow.count, 1);
        QVERIFY(inView.count > 0);
    }

    void keysOfAClosedEditorPassByWhatHasTheFocusBesideTheView()
    {
        FieldFixture f;
        QCheckBox box(&f.host.window);
        box.show();
        f.Type("77");
        Manager().EndInput();
        box.setFocus();

        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_3});
    }

    void releaseInAnOpenEditorIsItsOwn()
    {
        FieldFixture f;
        f.Type("77");
        const EventCounter inView(f.host.view, QEvent::KeyRelease);

        f.PressInEditor(QEvent::KeyRelease, Qt::Key_3, "3");

        QCOMPARE(inView.count, 0);
    }

    void keyOfAnOpenEditorGoesToTheFieldThatWasClicked()
    {
        FieldFixture f;
        f.Type("77");

        f.ClickField();
        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(f.pField->text(), QString("3"));
        QCOMPARE(f.Editor()->text(), QString("77"));
    }

    void keyOfAnOpenEditorIsItsOwnAfterAClickOnIt()
    {
        FieldFixture f;
        f.Type("77");

        f.ClickField();
        QTest::mouseClick(f.Editor(), Qt::LeftButton, {}, QPoint(90, 13));
        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(f.pField->text(), QString());
        QVERIFY(f.Editor()->text().contains('3'));
    }

    void keyInTheViewGoesToTheEditorWhateverWasClicked()
    {
        FieldFixture f;
        QWidget pane;
        QLineEdit paneField(&pane);
        pane.show();
        f.Type("77");
        QTest::mouseClick(&paneField, Qt::LeftButton);

        QKeyEvent press(QEvent::KeyPress, Qt::Key_3, Qt::NoModifier, "3");
        f.controller.OnViewKey(press);

        QCOMPARE(f.Editor()->text(), QString("773"));
    }

    void keyOfAClosedEditorGoesToThePaneThatWasClicked()
    {
        FieldFixture f;
        QWidget pane;
        QLineEdit paneField(&pane);
        pane.show();
        f.Type("77");
        Manager().EndInput();

        QTest::mouseClick(&paneField, Qt::LeftButton);
        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(paneField.text(), QString("3"));
    }

    void clickBeforeTheEndOfTheInputIsForgotten()
    {
        FieldFixture f;
        f.Type("77");
        QWidget pane;
        QLineEdit paneField(&pane);
        pane.show();
        QTest::mouseClick(&paneField, Qt::LeftButton);

        Manager().EndInput();
        f.PressInEditor(QEvent::KeyPress, Qt::Key_3, "3");

        QCOMPARE(paneField.text(), QString());
        QCOMPARE(f.host.view.GetKeys(), std::vector<int>{Qt::Key_3});
    }

    void shortcutInAClosedEditorIsTheViews()
    {
        FieldFixture f;
        EventCounter shortcuts(f.host.view, QEvent::ShortcutOverride);
        f.Type("77");
        Manager().EndInput();

        f.PressInEditor(QEvent::ShortcutOverride, Qt::Key_Z, QString(), Qt::ControlModifier);

        QCOMPARE(shortcuts.count, 1);
    }

    void shortcutInAnOpenEditorIsItsOwn()
    {
        FieldFixture f;
        EventCounter shortcuts(f.host.view, QEvent::ShortcutOverride);
        f.Type("77");

        f.PressInEditor(QEvent::ShortcutOverride, Qt::Key_Z, QString(), Qt::ControlModifier);

        QCOMPARE(shortcuts.count, 0);
    }

    void onlyTheEditorIsTaken()
    {
        InputFixture f(Linear());
        QLineEdit otherKind;
        QWidget noEdit;

        Announce(otherKind, 2);
        Announce(noEdit, 3);
        f.Type("5");

        QVERIFY(otherKind.testAttribute(Qt::WA_InputMethodEnabled));
        QCOMPARE(f.controller.GetActiveEditor(), f.Editor());
    }

    /// As it happens when the user goes from one view to another and back.
    void editorAnnouncedAgainIsListenedToOnce()
    {
        InputFixture f(Linear());
        CountedEdit editor;
        QLineEdit other;
        Announce(editor, 3);
        const int listeners = editor.CountListeners();
        const int children = editor.children().size();

        Announce(other, 3);
        Announce(editor, 3);

        QCOMPARE(editor.CountListeners(), listeners);
        QCOMPARE(editor.children().size(), children);
        QVERIFY(listeners > 0);
    }

    void afterItsEndNobodyIsAsked()
    {
        HostFixture host;
        TypingScript script = Linear();
        script.isRawTextInput = true;
        const TypingHandlerFactory factory(host.view, script);
        TemporaryDimensionMgr& manager = *TemporaryDimensionMgr::GetInstance();
        auto pController = std::make_unique<DimensionInputController>();
        manager.SetContext(MakeLinear());
        manager.OnKeyDown('5', false, false, false);
        QCOMPARE(manager.GetInputState(), InputState::IS_Length);
        QVERIFY(manager.IsRawTextInput());

        pController.reset();

        QCOMPARE(manager.GetInputState(), InputState::IS_None);
        QVERIFY(!manager.IsRawTextInput());
        manager.Drop();
    }
};

VESK_TESTS(DimensionInputControllerEditorTest);
#include "DimensionInputControllerEditorTest.moc"

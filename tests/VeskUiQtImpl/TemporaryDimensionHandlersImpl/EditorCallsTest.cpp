#include "Command/ActionManager.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include "Support/TestValues.h"

#include <QInputMethod>
#include <QRegularExpression>
#include <QScopedPointer>
#include <QStringList>
#include <QStyle>
#include <QStyleFactory>

#include <dlfcn.h>

namespace
{

/// What handlers asked of Qt and of the host while recording, in order.
QStringList s_notes;
bool s_isNoting = false;

/// How often the input method was told to query whether it is wanted.
int s_inputMethodUpdateCount = 0;

void Note(const QString& what)
{
    if (s_isNoting)
        s_notes << what;
}

/// The original function behind the one of this program.
template <class Function>
Function Next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

bool IsEditor(const QObject* pObject)
{
    return pObject->inherits("vesk::TemporaryDimensionHandleEditor");
}

bool IsHandler(const QObject* pObject)
{
    return pObject->inherits("vesk::TemporaryDimensionHandler");
}

/// Only calls on the editor are of interest.
void NoteOf(const QObject* pObject, const QString& what)
{
    if (IsEditor(pObject))
        Note(what);
}

QString Numbers(const char* what, int first, int second)
{
    return QString("%1 %2 %3").arg(what).arg(first).arg(second);
}

}

// These functions of the program take precedence over Qt's: they record the call and forward it.

void QObject::installEventFilter(QObject* pFilter)
{
    if (IsEditor(this) && IsHandler(pFilter))
        Note("the handler filters the editor");
    if (IsEditor(pFilter))
        Note("the editor filters view " +
             QString::number(dynamic_cast<vesk::IUiView*>(this)->GetId()));
    Next<void (*)(QObject*, QObject*)>("_ZN7QObject18installEventFilterEPS_")(this, pFilter);
}

bool QObject::event(QEvent* pEvent)
{
    if (IsHandler(this) && pEvent->type() == QEvent::KeyPress)
    {
        const auto& key = static_cast<const QKeyEvent&>(*pEvent);
        Note(QString("key %1, modifiers 0x%2, text '%3'")
                 .arg(key.key())
                 .arg(int(key.modifiers()), 0, 16)
                 .arg(key.text()));
    }
    return Next<bool (*)(QObject*, QEvent*)>("_ZN7QObject5eventEP6QEvent")(this, pEvent);
}

void QObject::setObjectName(const QString& name)
{
    NoteOf(this, "name " + name);
    Next<void (*)(QObject*, const QString&)>("_ZN7QObject13setObjectNameERK7QString")(this, name);
}

void QWidget::setWindowFlags(Qt::WindowFlags flags)
{
    NoteOf(this, "flags 0x" + QString::number(int(flags), 16));
    Next<void (*)(QWidget*, Qt::WindowFlags)>(
        "_ZN7QWidget14setWindowFlagsE6QFlagsIN2Qt10WindowTypeEE")(this, flags);
}

void QWidget::setFixedSize(int width, int height)
{
    NoteOf(this, Numbers("size", width, height));
    Next<void (*)(QWidget*, int, int)>("_ZN7QWidget12setFixedSizeEii")(this, width, height);
}

void QWidget::show()
{
    NoteOf(this, "show");
    Next<void (*)(QWidget*)>("_ZN7QWidget4showEv")(this);
}

void QWidget::hide()
{
    NoteOf(this, "hide");
    Next<void (*)(QWidget*)>("_ZN7QWidget4hideEv")(this);
}

void QWidget::activateWindow()
{
    NoteOf(this, "activate");
    Next<void (*)(QWidget*)>("_ZN7QWidget14activateWindowEv")(this);
}

void QWidget::setFocus(Qt::FocusReason reason)
{
    NoteOf(this, "focus for reason " + QString::number(reason));
    Next<void (*)(QWidget*, Qt::FocusReason)>("_ZN7QWidget8setFocusEN2Qt11FocusReasonE")(this,
                                                                                         reason);
}

void QWidget::clearFocus()
{
    NoteOf(this, "no focus");
    Next<void (*)(QWidget*)>("_ZN7QWidget10clearFocusEv")(this);
}

void QWidget::move(const QPoint& position)
{
    NoteOf(this, "move");
    // Inline functions in the headers call this one.
    Next<void (*)(QWidget*, const QPoint&)>("_ZN7QWidget4moveERK6QPoint")(this, position);
}

void QWidget::setStyleSheet(const QString& styleSheet)
{
    NoteOf(this, "style sheet");
    Next<void (*)(QWidget*, const QString&)>("_ZN7QWidget13setStyleSheetERK7QString")(this,
                                                                                      styleSheet);
}

void QWidget::setStyle(QStyle* pStyle)
{
    NoteOf(this, "style");
    Next<void (*)(QWidget*, QStyle*)>("_ZN7QWidget8setStyleEP6QStyle")(this, pStyle);
}

void QWidget::setPalette(const QPalette& palette)
{
    NoteOf(this, "palette");
    Next<void (*)(QWidget*, const QPalette&)>("_ZN7QWidget10setPaletteERK8QPalette")(this, palette);
}

void QInputMethod::update(Qt::InputMethodQueries queries)
{
    s_inputMethodUpdateCount += queries == Qt::ImEnabled ? 1 : 0;
    using Function = void (*)(QInputMethod*, Qt::InputMethodQueries);
    Next<Function>("_ZN12QInputMethod6updateE6QFlagsIN2Qt16InputMethodQueryEE")(this, queries);
}

void QLineEdit::setText(const QString& text)
{
    NoteOf(this, "text " + text);
    Next<void (*)(QLineEdit*, const QString&)>("_ZN9QLineEdit7setTextERK7QString")(this, text);
}

void QLineEdit::selectAll()
{
    NoteOf(this, "select all");
    Next<void (*)(QLineEdit*)>("_ZN9QLineEdit9selectAllEv")(this);
}

namespace vesk
{

void ActionManager::ProcessViewInput(IUiView* pView, const ActionViewInput& input)
{
    Note(Numbers("value of kind and view", input.kind, int(pView->GetId())));
    Next<void (*)(IUiView*, const ActionViewInput&)>(
        "_ZN4vesk13ActionManager16ProcessViewInputEPNS_7IUiViewERKNS_15ActionViewInputE")(pView,
                                                                                          input);
}

void ActionManager::RefreshViewInput(IUiView* pView)
{
    Note("refresh view " + QString::number(pView->GetId()));
    Next<void (*)(IUiView*)>("_ZN4vesk13ActionManager16RefreshViewInputEPNS_7IUiViewE")(pView);
}

void LineEditValidateHelper::SetValidators(
    const std::map<QLineEdit*, const ValidatorBase*>& validators)
{
    for (const auto& [pEdit, pValidator] : validators)
        NoteOf(pEdit, pValidator != nullptr ? "validator" : "no validator");
    using Function =
        void (*)(LineEditValidateHelper*, const std::map<QLineEdit*, const ValidatorBase*>&);
    Next<Function>("_ZN4vesk22LineEditValidateHelper13SetValidatorsERKSt3mapIP9QLineEditPKNS_"
                   "13ValidatorBaseESt4lessIS3_ESaISt4pairIKS3_S6_EEE")(this, validators);
}

namespace test
{

/// The journal that the library sees.
class NotingJournal final : public IJournalManager
{
public:
    void AddCommandData(OwnerPtr<IJournalCommandData>) override {}
    void AddCommandDataWithParameters(OwnerPtr<IJournalCommandData>) override {}
    void AddUiObject(OwnerPtr<IJournalUiObject> opObject, int kind, int reserved) override
    {
        const auto* ppObject = std::any_cast<QObject*>(&opObject->GetUiObject());
        if (ppObject != nullptr)
            NoteOf(*ppObject, Numbers("journal", kind, reserved));
    }
};

}

IJournalManager* IJournalManager::Get()
{
    static test::NotingJournal journal;
    return &journal;
}

}

namespace vesk::test
{

/// Records during its lifetime.
class Noting
{
public:
    Noting()
    {
        s_notes.clear();
        s_isNoting = true;
    }
    ~Noting() { s_isNoting = false; }
    Noting(const Noting&) = delete;
    Noting& operator=(const Noting&) = delete;
};

/// A handler for a segment in a view of its own, which is no longer the current one.
struct CallsFixture : HandlerFixture
{
    CallsFixture() : other(2, &host.window) { host.BeginAction(); }
    ~CallsFixture()
    {
        ActionManager::Reset();
        host.core.GetViewManager().RemoveView(&other);
    }

    void MakeOtherCurrent()
    {
        host.core.GetViewManager().AddView(&other);
        host.core.GetViewManager().SetCurrentView(&other);
    }

    TestView other;
};

/// In which order handlers act on their editor and call the host.
class EditorCallsTest : public QObject
{
    Q_OBJECT

private slots:
    void newEditorIsMadeStyledAndShown();
    void editorThatIsThereKeepsNameAndFlags();
    void onlyTheLookThatDiffersIsSetAgain_data();
    void onlyTheLookThatDiffersIsSetAgain();
    void openEditorIsFilledShownAndPlaced();
    void inputEndsWithoutFocusAndHidden();
    void returnJudgesEndsAndDelivers();
    void returnDeliversToTheCurrentView();
    void returnRefusesAndSelects();
    void tabDeliversToTheHandlersViewAndShowsTheOtherField();
    void rawTextIsDeliveredWithoutValidators();
    void nothingElseTouchesTheEditor();
    void inputMethodLearnsThatItIsOffAndOn();
    void viewKeysReachTheObjectWithTheirModifiers_data();
    void viewKeysReachTheObjectWithTheirModifiers();
};

void EditorCallsTest::newEditorIsMadeStyledAndShown()
{
    CallsFixture f;
    const Noting noting;

    f.SendToHandler('5');

    const QStringList expected{"name ViewInputLineEdit",
                               "flags 0x803",
                               "the handler filters the editor",
                               Numbers("size", TemporaryDimensionStyle().GetEditorWidth(),
                                       TemporaryDimensionStyle().GetEditorHeight()),
                               "show",
                               "activate",
                               "focus for reason 7",
                               "the editor filters view 1",
                               "style sheet",
                               "palette",
                               "journal 3 0",
                               "text 5",
                               "show",
                               "focus for reason 7",
                               "move",
                               "refresh view 1"};
    QCOMPARE(s_notes, expected);
}

void EditorCallsTest::editorThatIsThereKeepsNameAndFlags()
{
    CallsFixture f;
    f.TypeLength("5");
    f.opHandler = f.CreateHandler();
    const Noting noting;

    f.SendToHandler('6');

    QCOMPARE(s_notes.mid(0, 6),
             QStringList({"the handler filters the editor",
                          Numbers("size", TemporaryDimensionStyle().GetEditorWidth(),
                                  TemporaryDimensionStyle().GetEditorHeight()),
                          "show", "activate", "focus for reason 7", "the editor filters view 1"}));
    QCOMPARE(s_notes.mid(6), QStringList({"palette", "journal 3 0", "text 6", "show",
                                          "focus for reason 7", "move", "refresh view 1"}));
}

void EditorCallsTest::onlyTheLookThatDiffersIsSetAgain_data()
{
    QTest::addColumn<QString>("styleSheet");
    QTest::addColumn<QString>("style");
    QTest::addColumn<QStringList>("expected");
    const QString original;
    QTest::newRow("nothing") << original << original << QStringList();
    QTest::newRow("sheet") << "QLineEdit{ color:red; }" << original << QStringList("style sheet");
    QTest::newRow("style") << original << "Windows" << QStringList("style");
    QTest::newRow("both") << "QLineEdit{ color:red; }"
                          << "Windows" << QStringList({"style sheet", "style"});
}

void EditorCallsTest::onlyTheLookThatDiffersIsSetAgain()
{
    QFETCH(QString, styleSheet);
    QFETCH(QString, style);
    QFETCH(QStringList, expected);
    CallsFixture f;
    const QScopedPointer<QStyle> opStyle(QStyleFactory::create("Windows"));
    f.TypeLength("5");
    const QImage firstPicture = f.Editor()->grab().toImage();
    if (!styleSheet.isEmpty())
        f.Editor()->setStyleSheet(styleSheet);
    if (!style.isEmpty())
        f.Editor()->setStyle(opStyle.get());
    f.opHandler = f.CreateHandler();
    const Noting noting;

    f.SendToHandler('5');

    QCOMPARE(s_notes.filter(QRegularExpression("^style")), expected);
    QVERIFY(!f.Editor()->testAttribute(Qt::WA_SetStyle));
    QCOMPARE(f.Editor()->grab().toImage(), firstPicture);
}

void EditorCallsTest::openEditorIsFilledShownAndPlaced()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const Noting noting;

    f.Handler().ShowInputWidget(InputState::IS_Angle, true, true, L"7");

    QCOMPARE(s_notes, QStringList({"text 7", "select all", "show", "focus for reason 7", "move",
                                   "refresh view 1"}));
}

void EditorCallsTest::inputEndsWithoutFocusAndHidden()
{
    CallsFixture f;
    f.TypeLength("5");
    const Noting noting;

    f.opHandler->EndInput();

    QCOMPARE(s_notes, QStringList({"no focus", "hide"}));
}

void EditorCallsTest::returnJudgesEndsAndDelivers()
{
    CallsFixture f;
    f.TypeLength("5");
    const Noting noting;

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(s_notes, QStringList({"validator", "no focus", "hide", "value of kind and view 8 1"}));
}

void EditorCallsTest::returnDeliversToTheCurrentView()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const Noting noting;

    f.opHandler->OnEditorReturnPressed();

    QCOMPARE(s_notes.last(), QString("value of kind and view 8 2"));
}

void EditorCallsTest::returnRefusesAndSelects()
{
    CallsFixture f;
    f.TypeLength("x");
    f.MakeOtherCurrent();
    const Noting noting;

    f.opHandler->OnEditorReturnPressed();
    QCOMPARE(s_notes, QStringList({"validator", "select all"}));

    f.SendToHandler(Qt::Key_F5);
    QCOMPARE(s_notes.mid(2, 1), QStringList("refresh view 1"));
}

void EditorCallsTest::tabDeliversToTheHandlersViewAndShowsTheOtherField()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const Noting noting;

    f.FilterKey(Qt::Key_Tab);

    QCOMPARE(s_notes,
             QStringList({"validator", "value of kind and view 1 1", "no validator", "text 53.13",
                          "select all", "show", "focus for reason 7", "move", "refresh view 1"}));
}

void EditorCallsTest::rawTextIsDeliveredWithoutValidators()
{
    CallsFixture f;
    f.Handler().SetRawTextInput(true);
    f.TypeLength("x");
    const Noting noting;

    f.FilterKey(Qt::Key_Tab);
    f.FilterKey(Qt::Key_Return);

    QCOMPARE(s_notes, QStringList({"value of kind and view 1 1", "text 53.13", "select all", "show",
                                   "focus for reason 7", "move", "refresh view 1", "no focus",
                                   "hide", "value of kind and view 9 1"}));
}

void EditorCallsTest::nothingElseTouchesTheEditor()
{
    CallsFixture f;
    f.TypeLength("5");
    f.MakeOtherCurrent();
    const Noting noting;

    f.opHandler->GenerateGraphics(&f.context);
    f.opHandler->UpdateConfig(&f.context);
    f.opHandler->IsInputting();
    f.opHandler->HasEditorFocus();
    f.opHandler->OnKeyDown(Qt::Key_F5, false, false, false);
    f.Handler().SetRawTextInput(true);

    QCOMPARE(s_notes, QStringList());
    QVERIFY(f.IsValidatedLive());
}

void EditorCallsTest::inputMethodLearnsThatItIsOffAndOn()
{
    CallsFixture f;
    f.opHandler.Reset();
    s_inputMethodUpdateCount = 0;

    auto opHandler = f.CreateHandler();
    QCOMPARE(s_inputMethodUpdateCount, 1);

    opHandler.Reset();
    QCOMPARE(s_inputMethodUpdateCount, 2);
}

void EditorCallsTest::viewKeysReachTheObjectWithTheirModifiers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("flag");
    QTest::addColumn<QString>("modifiers");
    for (std::size_t kind = 0; kind < AllKinds().size(); ++kind)
    {
        const char* name = AllKinds()[kind].name;
        QTest::addRow("%s, none", name) << int(kind) << 0 << "0x0";
        QTest::addRow("%s, Ctrl", name) << int(kind) << 1 << "0x4000000";
        QTest::addRow("%s, Alt", name) << int(kind) << 2 << "0x8000000";
        QTest::addRow("%s, Shift", name) << int(kind) << 3 << "0x2000000";
    }
}

/// A key during an input is handled as by a plain QObject; only kinds with letters give it its
/// text.
void EditorCallsTest::viewKeysReachTheObjectWithTheirModifiers()
{
    FETCH_KIND(rules);
    QFETCH(int, flag);
    QFETCH(QString, modifiers);
    KindFixture f(rules.pCreateContext());
    f.Type(rules.StartState(), "5");
    const Noting noting;

    f.opHandler->OnKeyDown('7', flag == 1, flag == 2, flag == 3);

    const QString text = rules.Has(OpensWithLetters) ? "7" : "";
    const QString key = QString("key 55, modifiers %1, text '%2'").arg(modifiers, text);
    QCOMPARE(s_notes, QStringList({"refresh view 1", key}));
}

}

VESK_TESTS(vesk::test::EditorCallsTest);
#include "EditorCallsTest.moc"

#include "TemporaryDimensionHandlersImpl/EditorCalls.h"

#include "Command/ActionManager.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "TemporaryDimensionHandlersImpl/KindTable.h"

#include <QInputMethod>

#include <dlfcn.h>

using vesk::test::EditorCalls;

namespace
{

QStringList s_notes;
bool s_isNoting = false;

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

// That of Qt 6 is inline and calls another.
#if QT_VERSION_MAJOR == 5
void QObject::setObjectName(const QString& name)
#else
void QObject::doSetObjectName(const QString& name)
#endif
{
    const char* const pSymbol = QT_VERSION_MAJOR == 5 ? "_ZN7QObject13setObjectNameERK7QString"
                                                      : "_ZN7QObject15doSetObjectNameERK7QString";
    NoteOf(this, "name " + name);
    Next<void (*)(QObject*, const QString&)>(pSymbol)(this, name);
}

void QWidget::setWindowFlags(Qt::WindowFlags flags)
{
    NoteOf(this, "flags 0x" + QString::number(int(flags), 16));
    Next<void (*)(QWidget*, Qt::WindowFlags)>(
        "_ZN7QWidget14setWindowFlagsE6QFlagsIN2Qt10WindowTypeEE")(this, flags);
}

void QWidget::setFixedSize(int width, int height)
{
    NoteOf(this, EditorCalls::Numbers("size", width, height));
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
    Note(EditorCalls::Numbers("value of kind and view", input.kind, int(pView->GetId())));
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
            NoteOf(*ppObject, EditorCalls::Numbers("journal", kind, reserved));
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

EditorCalls::EditorCalls()
{
    s_notes.clear();
    s_isNoting = true;
}

EditorCalls::~EditorCalls()
{
    s_isNoting = false;
}

const QStringList& EditorCalls::Get() const
{
    return s_notes;
}

int EditorCalls::GetInputMethodUpdateCount()
{
    return s_inputMethodUpdateCount;
}

QString EditorCalls::Numbers(const char* what, int first, int second)
{
    return QString("%1 %2 %3").arg(what).arg(first).arg(second);
}

}

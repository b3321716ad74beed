#include "HostUi/DimensionInputController.h"

#include "Accessibility/AccessibleTexts.h"
#include "Command/ActionManager.h"
#include "Command/IActionManager.h"
#include "Command/TypedValue.h"
#include "Dimension/ITemporaryDimensionHandler.h"
#include "Dimension/InputField.h"
#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "HostUi/QtText.h"
#include "Input/EditorKeyboard.h"
#include "Input/EditorNotes.h"
#include "Input/EditorWidth.h"
#include "Input/EscapeKey.h"
#include "Input/HeldKey.h"
#include "Input/InputJudge.h"
#include "Input/KeyCode.h"
#include "Input/KeyTarget.h"
#include "Input/LateUnit.h"
#include "Input/MemberScope.h"
#include "Input/PointInput.h"
#include "Input/TextCollector.h"
#include "Journal/IJournalUiObject.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>

namespace vesk
{
namespace
{

constexpr int EditorKind = 3;

TemporaryDimensionMgr& Manager()
{
    return *TemporaryDimensionMgr::GetInstance();
}

QWidget* CurrentViewWidget()
{
    const IUiView* pView = UiDocumentViewManager::FindCurrentView();
    return pView != nullptr ? QWidget::find(pView->GetWindowId()) : nullptr;
}

TypedReading Read(const QLineEdit& editor, const InputField& field)
{
    return ReadTypedText(editor.text(), field.quantity, LengthUnit::GetCurrent());
}

}

DimensionInputController::DimensionInputController()
    : m_pNotes(std::make_unique<EditorNotes>()), m_pEscape(std::make_unique<EscapeKey>()),
      m_pLateUnit(std::make_unique<LateUnit>()), m_pPoint(std::make_unique<PointInput>(*m_pEscape))
{
    connect(m_pPoint.get(), &PointInput::changed, this, &DimensionInputController::UpdateNotes);
    JournalManager::GetInstance().AddObserver(this);
    Manager().SetHandlerAccess(this);
    qApp->installEventFilter(this);
}

DimensionInputController::~DimensionInputController()
{
    if (qApp != nullptr) // The windows that go with this still send events.
        qApp->removeEventFilter(this);
    Manager().SetHandlerAccess(nullptr);
    JournalManager::GetInstance().RemoveObserver(this);
}

bool DimensionInputController::OnViewKey(QKeyEvent& event)
{
    if (KeepsForUnit(event))
        return true;
    if (ActionManager::IsCommandWaiting())
    {
        HoldKey(event);
        return true;
    }
    if (QLineEdit* pField = GetOpenField())
    {
        m_pClicked.clear();
        QCoreApplication::sendEvent(pField, &event);
        // A key that the editor ignores would also be offered to the window.
        event.accept();
        return true;
    }
    // If ignored, it would be offered to the window, which moves the focus.
    if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        return IActionManager::CurrentAction() != nullptr;
    if (event.key() != Qt::Key_Escape)
        return OpenInput(event);
    if (!m_pEscape->Press(event))
        return true;
    if (IActionManager::CurrentAction() == nullptr)
        return false;
    ActionManager::ProcessEscape(UiDocumentViewManager::FindCurrentView());
    return true;
}

bool DimensionInputController::Commit()
{
    QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr)
        return true;
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(pEditor, &press);
    return GetActiveEditor() == nullptr;
}

QLineEdit* DimensionInputController::GetActiveEditor() const
{
    return Manager().IsInputting() ? qobject_cast<QLineEdit*>(m_pEditor) : nullptr;
}

QLineEdit* DimensionInputController::GetOpenField() const
{
    QLineEdit* pEditor = GetActiveEditor();
    return pEditor != nullptr ? pEditor : m_pPoint->GetField();
}

std::optional<DimensionInputController::TypedPoint> DimensionInputController::GetTypedPoint() const
{
    if (m_pPoint->GetField() == nullptr)
        return std::nullopt;
    return TypedPoint{m_pPoint->GetText(0), m_pPoint->GetText(1), m_pPoint->GetRefusal()};
}

QString DimensionInputController::GetMessage() const
{
    return GetActiveEditor() != nullptr ? m_refusal : QString();
}

std::optional<double> DimensionInputController::GetValue() const
{
    const QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr)
        return std::nullopt;
    const TypedReading reading = Read(*pEditor, Manager().GetInputField());
    const bool isRead = reading.isPlain || !Manager().IsRawTextInput();
    return reading.fault == TypedTextFault::None && isRead ? std::optional(reading.value)
                                                           : std::nullopt;
}

void DimensionInputController::OnUiObject(const IJournalUiObject& object, int kind)
{
    QObject* const* ppObject = std::any_cast<QObject*>(&object.GetUiObject());
    if (kind != EditorKind || ppObject == nullptr)
        return;
    auto* pEditor = qobject_cast<QLineEdit*>(*ppObject);
    if (pEditor == nullptr || pEditor == m_pEditor)
        return;
    // An input method would swallow letters, and no value needs one.
    pEditor->setAttribute(Qt::WA_InputMethodEnabled, false);
    m_pEditor = pEditor;
    EditorKeyboard::Watch(*pEditor);
    connect(pEditor, &QLineEdit::textEdited, this, &DimensionInputController::OnTextEdited,
            Qt::UniqueConnection);
    connect(pEditor, &QLineEdit::textChanged, this, &DimensionInputController::FitEditor,
            Qt::UniqueConnection);
    connect(pEditor, &QLineEdit::textChanged, this, &DimensionInputController::UpdateNotes,
            Qt::UniqueConnection);
}

/// Called whenever the dimensions have been drawn anew.
void DimensionInputController::ResetEditorPosition(ITemporaryDimensionHandler& handler)
{
    m_texts.reset();
    if (auto* pObject = dynamic_cast<QObject*>(&handler))
        QMetaObject::invokeMethod(pObject, "ResetEditorPosition");
    FitEditor();
    UpdateNotes();
}

InputState DimensionInputController::GetInputState(ITemporaryDimensionHandler& handler)
{
    const auto* pObject = dynamic_cast<QObject*>(&handler);
    return pObject != nullptr ? static_cast<InputState>(pObject->property("inputState").toInt())
                              : InputState::IS_None;
}

bool DimensionInputController::IsRawTextInput(ITemporaryDimensionHandler& handler)
{
    const auto* pObject = dynamic_cast<QObject*>(&handler);
    return pObject != nullptr && pObject->property("rawTextInput").toBool();
}

bool DimensionInputController::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() == QEvent::KeyRelease)
        m_pEscape->Release(static_cast<QKeyEvent&>(*pEvent));
    NoteCursor(pWatched, *pEvent);
    NoteClick(pWatched, *pEvent);
    NoteOtherKey(*pEvent);
    if (pWatched == m_pPoint->GetField() && pWatched != nullptr)
        return FilterPointEvent(*pEvent);
    return pWatched == m_pEditor && pWatched != nullptr && FilterEditorEvent(*pEvent);
}

void DimensionInputController::NoteCursor(const QObject* pWatched, const QEvent& event)
{
    const bool isMouse =
        event.type() == QEvent::MouseMove || event.type() == QEvent::MouseButtonPress;
    if ((!isMouse && event.type() != QEvent::Leave) || pWatched != CurrentViewWidget())
        return;
    m_cursor.reset();
    if (isMouse)
        m_cursor = static_cast<const QMouseEvent&>(event).pos();
    m_pPoint->MoveTo(m_cursor);
}

/// Any click decides about letters that may become a unit, before it is delivered. One in the view
/// gives the point that was being typed.
void DimensionInputController::NoteClick(QObject* pWatched, const QEvent& event)
{
    if (event.type() != QEvent::MouseButtonPress && event.type() != QEvent::MouseButtonDblClick)
        return;
    if (const auto* pWidget = qobject_cast<QWidget*>(pWatched))
        m_pClicked = pWidget->window();
    EndLateUnit();
    const bool isLeft = static_cast<const QMouseEvent&>(event).button() == Qt::LeftButton;
    if (isLeft && pWatched == CurrentViewWidget())
        m_pPoint->Close();
}

/// So does a key that is a shortcut, which the view never receives.
void DimensionInputController::NoteOtherKey(const QEvent& event)
{
    if (event.type() != QEvent::ShortcutOverride)
        return;
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (!IsModifierKey(key) && !m_pLateUnit->CanTake(key))
        EndLateUnit();
}

bool DimensionInputController::FilterPointEvent(QEvent& event)
{
    const bool isHeld = event.type() == QEvent::KeyPress && ActionManager::IsCommandWaiting();
    if (isHeld)
        HoldKey(static_cast<QKeyEvent&>(event));
    return isHeld;
}

bool DimensionInputController::FilterEditorEvent(QEvent& event)
{
    switch (event.type())
    {
    case QEvent::KeyPress:
        return FilterEditorKey(static_cast<QKeyEvent&>(event));
    case QEvent::ShortcutOverride:
    case QEvent::KeyRelease:
        return (GetActiveEditor() == nullptr || FindOtherField() != nullptr) && PassOn(event);
    case QEvent::Close:
        // Hidden on its own, it would go on receiving keys unseen.
        event.ignore();
        Manager().EndInput();
        return true;
    case QEvent::Hide:
        OnEditorHidden();
        return false;
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Show:
        UpdateNotes();
        return false;
    default:
        return false;
    }
}

void DimensionInputController::OnEditorHidden()
{
    m_refusal.clear();
    m_texts.reset();
    m_pNotes->Hide();
    if (!Manager().IsInputting())
        Manager().SetEditorWidth(0);
    m_pClicked.clear();
    // Without a window manager nothing else returns the keyboard.
    IUiView* pView = UiDocumentViewManager::FindCurrentView();
    if (pView != nullptr && QGuiApplication::applicationState() == Qt::ApplicationActive)
        pView->Activate();
}

/// True if the key goes no further.
bool DimensionInputController::FilterEditorKey(QKeyEvent& event)
{
    if (&event == m_pDelivered)
    {
        if (event.key() == Qt::Key_Space && !Manager().IsRawTextInput())
            m_pLateUnit->Begin(); // Not before: the same key, asked for as a shortcut, ends it.
        return false;
    }
    QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr || FindOtherField() != nullptr)
        return PassOn(event);
    m_pLateUnit->End();
    if (ActionManager::IsCommandWaiting())
    {
        HoldKey(event);
        return true;
    }
    if (event.key() == Qt::Key_Escape)
        return !m_pEscape->Press(event);
    const InputField field = Manager().GetInputField();
    if (event.key() == Qt::Key_Backtab && TakesValue(field, Qt::Key_Tab))
    {
        // With two fields, backwards is the same as forwards.
        QKeyEvent tab(event.type(), Qt::Key_Tab, Qt::NoModifier, event.text());
        QCoreApplication::sendEvent(pEditor, &tab);
        return true;
    }
    if (!TakesValue(field, event.key()))
        return false;
    TakeValue(*pEditor, event, field);
    return true;
}

bool DimensionInputController::CommitsWithSpace(const TypedReading& reading,
                                                const InputField& field) const
{
    return m_isSpaceCommitting && IsTakenWithSpace(reading, field);
}

/// Judges the text in the editor and, if it is accepted, lets the handler commit it.
void DimensionInputController::TakeValue(QLineEdit& editor, QKeyEvent& event,
                                         const InputField& field)
{
    const bool isJudged = !Manager().IsRawTextInput();
    const bool isSpace = event.key() == Qt::Key_Space;
    if (isJudged && isSpace && !CommitsWithSpace(Read(editor, field), field))
    {
        editor.insert(QStringLiteral(" "));
        return;
    }
    EditorText typed{ToWide(editor.text()), !m_isTextTyped, std::nullopt};
    if (isJudged)
    {
        typed.modelValue = Accept(editor, field);
        if (!typed.modelValue.has_value())
            return;
    }
    m_isTextTyped = m_isTextTyped && event.key() != Qt::Key_Tab;
    const EditorTextScope text(typed);
    // So that it is not judged again when the editor receives it.
    const MemberScope<const QEvent> delivered(*this, m_pDelivered, &event);
    QCoreApplication::sendEvent(&editor, &event);
}

/// The other text field into which the user now types; null if there is none.
QWidget* DimensionInputController::FindOtherField() const
{
    const QWidget* pView = CurrentViewWidget();
    if (pView == nullptr)
        return nullptr;
    return FindTextField(m_pClicked != nullptr ? *m_pClicked : *pView->window(), m_pEditor);
}

/// Forwards a key in the editor that is not for it: the window system moves the keyboard late.
bool DimensionInputController::PassOn(QEvent& event)
{
    QWidget* pField = FindOtherField();
    QWidget* pWidget = pField != nullptr ? pField : CurrentViewWidget();
    if (pWidget != nullptr)
        SendKeyTo(*pWidget, event);
    return true;
}

/// True for a key kept for a late unit; any other, unless a modifier, delivers the kept ones first.
bool DimensionInputController::KeepsForUnit(const QKeyEvent& event)
{
    if (!m_pLateUnit->IsAwaited() || IsModifierKey(event))
        return false;
    if (!m_pLateUnit->CanTake(event))
    {
        EndLateUnit();
        return false;
    }
    IUiView* pView = UiDocumentViewManager::FindCurrentView();
    if (m_pLateUnit->Take(event) && pView != nullptr)
        pView->SetViewText(ToWide(DescribeLateUnit(m_pLateUnit->GetText())));
    return true;
}

/// Delivers the keys that were kept for a unit but are not one.
void DimensionInputController::EndLateUnit()
{
    for (const KeptKey& key : m_pLateUnit->End())
        key.Deliver([this](QKeyEvent& event) { OnViewKey(event); });
}

/// Returns the model value and puts its number into the editor; only selects a rejected text.
std::optional<double> DimensionInputController::Accept(QLineEdit& editor, const InputField& field)
{
    const InputVerdict verdict = JudgeInput(editor.text(), field, LengthUnit::GetCurrent());
    m_refusal = verdict.refusal;
    if (verdict.modelValue.has_value())
        m_refusal = AskAction(field.state, *verdict.modelValue);
    if (!m_refusal.isEmpty())
        editor.selectAll();
    else if (verdict.replacement.has_value())
        editor.setText(*verdict.replacement);
    UpdateNotes();
    return m_refusal.isEmpty() ? verdict.modelValue : std::nullopt;
}

/// Holds a key that is meant for a command that has not begun yet.
void DimensionInputController::HoldKey(QKeyEvent& event)
{
    const QPointer<DimensionInputController> pSelf(this);
    vesk::HoldKey(event, *m_pEscape, [pSelf](QKeyEvent& held) {
        if (pSelf != nullptr)
            pSelf->OnViewKey(held);
    });
}

/// False for a key that cannot open an input.
bool DimensionInputController::OpenInput(QKeyEvent& event)
{
    QWidget* pView = CurrentViewWidget();
    if (pView != nullptr && PointInput::IsBegunBy(event))
    {
        m_pPoint->Open(*pView, m_cursor, event);
        return true;
    }
    const int virtualKey = ToVirtualKey(event);
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    if (virtualKey != 0)
        Manager().OnKeyDown(virtualKey, false, modifiers & Qt::AltModifier,
                            modifiers & Qt::ShiftModifier);
    m_isTextTyped = virtualKey != VirtualComma || !Manager().IsInputting();
    if (!CanBeginValue(event))
        return virtualKey != 0;
    if (Manager().IsInputting())
        return true;
    // Opened as if by a digit, which the character then replaces.
    Manager().OnKeyDown('0', false, false, false);
    if (QLineEdit* pEditor = GetActiveEditor())
        pEditor->setText(event.text());
    return true;
}

/// The notes follow the text, whose change Qt tells next.
void DimensionInputController::OnTextEdited()
{
    m_isTextTyped = true;
    m_refusal.clear();
    const QLineEdit* pEditor = GetActiveEditor();
    if (pEditor == nullptr || !pEditor->text().isEmpty())
        return;
    const InputState field = Manager().GetInputState();
    if (Manager().IsLocked(field))
        ActionManager::FreeValue(UiDocumentViewManager::FindCurrentView(), field);
}

/// Makes the editor as wide as its text needs; the generators, which position it, must know.
void DimensionInputController::FitEditor()
{
    QLineEdit* pEditor = GetActiveEditor();
    const QWidget* pView = CurrentViewWidget();
    if (pEditor == nullptr || pView == nullptr)
        return;
    const int width = FindEditorWidth(*pEditor, *pView);
    if (width == Manager().GetEditorWidth())
        return;
    Manager().SetEditorWidth(width);
    pEditor->setFixedWidth(TemporaryDimensionStyle().GetEditorWidth());
    ActionManager::RefreshViewInput(UiDocumentViewManager::FindCurrentView());
}

void DimensionInputController::UpdateNotes()
{
    QLineEdit* pEditor = GetActiveEditor();
    QWidget* pView = CurrentViewWidget();
    if (pView != nullptr && m_pPoint->GetField() != nullptr)
        return m_pNotes->Show(*pView, {pView->size(), m_pPoint->GetRect(), m_cursor, {}},
                              m_pPoint->GetNotes(m_isKeyStripShown));
    if (pEditor == nullptr || pView == nullptr || !pEditor->isVisible())
        return m_pNotes->Hide();
    const InputField field = Manager().GetInputField();
    NoteTexts texts{m_refusal, {}, {}};
    const TypedReading reading = Read(*pEditor, field);
    if (!Manager().IsRawTextInput())
        texts.value = DescribeValue(reading, field.quantity, LengthUnit::GetCurrent());
    if (m_isKeyStripShown)
        texts.keys = DescribeKeys(field, CommitsWithSpace(reading, field));
    SetAccessibleTexts(*pEditor, ToQString(CaptionOf(field.state)),
                       m_refusal.isEmpty() ? texts.value : m_refusal);
    const QPoint corner = pView->mapFromGlobal(pEditor->mapToGlobal(QPoint(0, 0)));
    if (!m_texts.has_value())
        m_texts = FindDimensionTexts(*UiDocumentViewManager::FindCurrentView(), *pView);
    m_pNotes->Show(*pView, {pView->size(), QRect(corner, pEditor->size()), m_cursor, *m_texts},
                   texts);
}

}

#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

#include "Command/ActionManager.h"
#include "Dimension/ITemporaryDimensionContext.h"
#include "Foundation/FirstException.h"
#include "Geometry/Constants.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/EditorWindow.h"
#include "VeskUiQtImpl/ViewLookup.h"
#include "View/IUiManager.h"
#include "View/IUiView.h"

#include "HostUi/QtText.h"

#include <QKeyEvent>

namespace vesk
{
namespace
{

constexpr double MinAngle = -180.0;
constexpr double MaxAngle = 180.0;
constexpr int ValueDecimals = 3;
constexpr int DimensionEditorKind = 3;

/// The main window's widget; null if there is none. Warns in the name of `function` if the host has
/// no user-interface manager or no main window.
QWidget* FindMainWindow(const char* function)
{
    const IUiManager* pUiManager = IUiManager::Get();
    if (!Check(pUiManager != nullptr, VESK_SITE(function, L"pUiMgr为空！")))
        return nullptr;
    const IApplicationWindow* pMainWindow = pUiManager->GetMainWindow();
    if (!Check(pMainWindow != nullptr, VESK_SITE(function, L"pUIMainWnd为空")))
        return nullptr;
    QWidget* pWidget = QWidget::find(pMainWindow->GetWindowId());
    return pWidget != nullptr && pWidget->winId() != 0 ? pWidget : nullptr;
}

/// Without a view nothing is delivered.
void Deliver(std::uint32_t viewId, const ActionViewInput& record)
{
    if (IUiView* pView = FindViewById(viewId))
        ActionManager::ProcessViewInput(pView, record);
}

}

TemporaryDimensionHandler::TemporaryDimensionHandler(IUiView* pView)
    : m_viewId(pView->GetId()),
      m_firstValueValidator(Constants::MIN_MODEL_SIZE, Constants::MAX_MODEL_SIZE, L"", true, true,
                            ValueDecimals),
      m_secondValueValidator(MinAngle, MaxAngle, L"", true, true, ValueDecimals)
{
    DisableIme();
}

TemporaryDimensionHandler::~TemporaryDimensionHandler()
{
    EnableIme();
}

bool TemporaryDimensionHandler::IsInputting()
{
    return m_InputState != InputState::IS_None;
}

bool TemporaryDimensionHandler::HasEditorFocus()
{
    return m_pEditor != nullptr && m_pEditor->hasFocus();
}

void TemporaryDimensionHandler::EndInput()
{
    m_InputState = InputState::IS_None;
    if (m_pEditor != nullptr)
        EditorWindow(m_pEditor).Hide();
}

bool TemporaryDimensionHandler::UpdateConfig(const ITemporaryDimensionContext* pContext)
{
    if (!Check(pContext != nullptr,
               VESK_SITE("vesk::TemporaryDimensionHandler::UpdateConfig", L"pCtx为空。")))
        return false;

    const Intervald first = pContext->GetFirstValueRange();
    m_firstValueValidator.SetBottom(first.GetMin(), true);
    m_firstValueValidator.SetTop(first.GetMax(), true);
    const Intervald second = pContext->GetSecondValueRange();
    m_secondValueValidator.SetBottom(second.GetMin(), true);
    m_secondValueValidator.SetTop(second.GetMax(), true);
    return true;
}

bool TemporaryDimensionHandler::IsRawTextInput() const
{
    return m_isRawTextInput;
}

void TemporaryDimensionHandler::SetRawTextInput(bool isRawTextInput)
{
    m_isRawTextInput = isRawTextInput;
}

void TemporaryDimensionHandler::CreateEditorWidget()
{
    constexpr char Function[] = "vesk::TemporaryDimensionHandler::CreateEditorWidget";
    RefreshViewId();
    const IUiView* pView = FindView();
    if (!Check(pView != nullptr, VESK_SITE(Function, L"pUIView为空。")))
        return;
    QWidget* pViewWidget = QWidget::find(pView->GetWindowId());
    if (!Check(pViewWidget != nullptr, VESK_SITE(Function, L"pNqView为空。")))
        return;
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    TemporaryDimensionHandleEditor* pEditor = EditorWindow::FindOrCreate(*pViewWidget);
    if (pSelf == nullptr)
        return;
    m_pEditor = pEditor;
    if (!Check(m_pEditor != nullptr, VESK_SITE(Function, L"m_pEditor创建失败。")))
        return;
    EditorWindow window(m_pEditor);
    const QSize size(m_style.GetEditorWidth(), m_style.GetEditorHeight());
    if (!window.Activate(*pViewWidget, *this, size))
        return;
    window.ApplyStyle();
    m_opValidateHelper = MakeOwner<LineEditValidateHelper>(this);
    RegisterEditor();
}

void TemporaryDimensionHandler::SetEditorPosition(const Vector3d& world)
{
    if (m_pEditor == nullptr)
        return;
    const IUiView* pView = FindView();
    if (pView == nullptr)
        return;
    EditorWindow(m_pEditor).MoveTo(*pView, world);
}

void TemporaryDimensionHandler::ResetEditorPosition()
{
    if (m_InputState == InputState::IS_None)
    {
        EndInput();
        return;
    }
    const int entry = static_cast<int>(m_InputState);
    if (!Check(
            entry >= 1 && entry <= TemporaryDimensionData::EntryCount,
            VESK_SITE("vesk::TemporaryDimensionHandler::ResetEditorPosition", L"不该运行至此。")))
        return;

    SetEditorPosition(m_data[m_InputState].textPosition);
}

void TemporaryDimensionHandler::DisableIme()
{
    QWidget* pMainWindow = FindMainWindow("vesk::TemporaryDimensionHandler::DisableIme");
    if (pMainWindow == nullptr || m_savedInputContext.has_value())
        return;

    m_savedInputContext = InputMethodSwitch::SwitchOff(*pMainWindow);
}

void TemporaryDimensionHandler::EnableIme()
{
    QWidget* pMainWindow = FindMainWindow("vesk::TemporaryDimensionHandler::EnableIme");
    if (!m_savedInputContext.has_value())
        return;

    m_savedInputContext.reset();
    InputMethodSwitch::SwitchOn(pMainWindow);
}

/// Switches to the current view's id; keeps the previous view if there is none.
void TemporaryDimensionHandler::RefreshViewId()
{
    const IUiView* pView = FindCurrentView();
    if (pView != nullptr && pView->GetId() != m_viewId)
        m_viewId = pView->GetId();
}

void TemporaryDimensionHandler::RegisterEditor()
{
    OwnerPtr<IJournalUiObject> opUiObject = IJournalUiObject::Create();
    if (!Check(opUiObject != nullptr,
               VESK_SITE("vesk::TemporaryDimensionHandler::CreateEditorWidget",
                         L"vesk::IJournalUiObject::Create()返回空指针")))
        return;

    opUiObject->SetUiObject(Any(static_cast<QObject*>(m_pEditor)));
    IJournalManager::Get()->AddUiObject(std::move(opUiObject), DimensionEditorKind, 0);
}

/// The view the handler works in; null if it no longer exists.
IUiView* TemporaryDimensionHandler::FindView() const
{
    return FindViewById(m_viewId);
}

/// Has the host regenerate the dimensions of the handler's view.
void TemporaryDimensionHandler::RefreshView()
{
    if (IUiView* pView = FindView())
        ActionManager::RefreshViewInput(pView);
}

void TemporaryDimensionHandler::ShowField(const DimensionKind& kind, const char* function,
                                          const FieldRequest& request)
{
    const DimensionField* pField = FindField(kind, request.state);
    if (!Check(pField != nullptr, VESK_SITE(function, L"InputState输入非法!")))
        return;
    if (!BeginInput(request.state, request.editorReady))
        return;

    const bool isOpenedByKey = pField->rule == FieldRule::OpenedByKey && !request.editorReady;
    const bool isGivenText = request.useGivenText || isOpenedByKey;
    const bool isSelected =
        pField->rule == FieldRule::ReachedByTab ? kind.switchesWithTab : request.editorReady;
    ShowEditor(isGivenText ? ToQString(request.text) : FormatValue(*pField), isSelected);
}

/// Enters a state; without `editorReady` the editor is found or created. Returns false if there is
/// no editor, and no input runs then, or if the host ended the input while the focus moved.
bool TemporaryDimensionHandler::BeginInput(InputState state, bool editorReady)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    m_InputState = state;
    FirstException exception;
    if (!editorReady)
        exception.Catch([this] { CreateEditorWidget(); });
    if (pSelf != nullptr && (m_pEditor == nullptr || exception.IsKept()))
        EndInput();
    exception.Throw();
    return pSelf != nullptr && m_InputState == state;
}

/// The current value of a field, formatted as its dimension shows it.
QString TemporaryDimensionHandler::FormatValue(const DimensionField& field) const
{
    const int decimals = field.slot == ValueSlot::First ? m_style.GetFirstValueDecimals()
                                                        : m_style.GetSecondValueDecimals();
    return QString::number(m_data[field.state].value, 'f', decimals);
}

/// Shows the editor with a text at the position of its field.
void TemporaryDimensionHandler::ShowEditor(const QString& text, bool isSelected)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    const Vector3d anchor = m_data[m_InputState].textPosition;
    EditorWindow(m_pEditor).Show(text, isSelected);
    if (pSelf == nullptr)
        return;
    SetEditorPosition(anchor);
    // The report for a view without a widget may have run an event loop.
    if (pSelf != nullptr)
        RefreshView();
}

void TemporaryDimensionHandler::CommitValue(const DimensionKind& kind, const char* function)
{
    std::optional<TakenValue> taken = TakeValue(kind, function);
    if (!taken.has_value())
        return;

    taken->record.kind = taken->field.returnKind;
    RefreshViewId();
    const std::uint32_t viewId = m_viewId;
    EndInput();
    Deliver(viewId, taken->record);
}

void TemporaryDimensionHandler::CommitValueAndSwitch(const DimensionKind& kind,
                                                     const char* function)
{
    std::optional<TakenValue> taken = TakeValue(kind, function);
    if (!taken.has_value())
        return;

    taken->record.kind = taken->field.tabKind;
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    Deliver(m_viewId, taken->record);
    // The action may have ended the input, and the handler may exist only because it is still on
    // the stack.
    if (pSelf == nullptr || !IsInputting())
        return;
    if (m_opValidateHelper != nullptr && m_pEditor != nullptr)
        m_opValidateHelper->SetValidators({{m_pEditor, nullptr}});
    ShowInputWidget(taken->field.next, true, false, L"");
}

/// Reads and validates the text of the editor; empty if no value is being typed, or an invalid one.
/// In raw-text mode every text is valid, and the live validation ends with it.
std::optional<TemporaryDimensionHandler::TakenValue>
TemporaryDimensionHandler::TakeValue(const DimensionKind& kind, const char* function)
{
    if (!IsInputting() || m_pEditor == nullptr)
        return std::nullopt;
    TakenValue taken;
    const QString text = m_pEditor->text();
    bool isNumber = false;
    taken.record.value = text.toDouble(&isNumber);
    if (m_isRawTextInput)
    {
        taken.record.text = ToWide(text);
        m_opValidateHelper.Reset();
    }

    const DimensionField* pField = FindField(kind, m_InputState);
    if (!Check(pField != nullptr, VESK_SITE(function, kind.wrongState)))
        return std::nullopt;
    taken.field = *pField;
    if (!m_isRawTextInput &&
        !IsAccepted(taken.record.value, isNumber || !kind.needsNumber, *pField))
        return std::nullopt;
    return taken;
}

/// Validates a value. A rejected one stays in the editor, selected.
bool TemporaryDimensionHandler::IsAccepted(double value, bool isNumber, const DimensionField& field)
{
    const NumberValidator<double>& validator = ValidatorOf(field);
    if (m_opValidateHelper != nullptr)
        m_opValidateHelper->SetValidators({{m_pEditor, &validator}});
    if (isNumber && validator.ValidateValue(value))
        return true;
    m_pEditor->selectAll();
    return false;
}

const NumberValidator<double>&
TemporaryDimensionHandler::ValidatorOf(const DimensionField& field) const
{
    return field.slot == ValueSlot::First ? m_firstValueValidator : m_secondValueValidator;
}

bool TemporaryDimensionHandler::HandleEvent(QEvent* pEvent, const DimensionKind& kind,
                                            const char* function)
{
    if (pEvent->type() != QEvent::KeyPress)
        return HandleAsPlainObject(pEvent);
    const auto* pKeyEvent = dynamic_cast<QKeyEvent*>(pEvent);
    if (!Check(pKeyEvent != nullptr, VESK_SITE(function, L"难道pEvent不是键盘事件?")))
        return false;
    const std::optional<FieldRequest> opening = FindOpening(kind, *pKeyEvent);
    if (IsInputting() || !opening.has_value())
        return PassKeyOn(pEvent);

    const QPointer<TemporaryDimensionHandler> pSelf(this);
    ShowInputWidget(opening->state, opening->editorReady, opening->useGivenText, opening->text);
    if (!IsMinusKey(pKeyEvent->key()))
        return true;
    // A minus also opens the editor but is not consumed.
    return pSelf != nullptr && PassKeyOn(pEvent);
}

bool TemporaryDimensionHandler::SendViewKey(const DimensionKind& kind, int virtualKey,
                                            Qt::KeyboardModifiers modifiers)
{
    if (!IsTakenFromView(virtualKey, kind.openingKeys))
        return false;
    const QString text = kind.hasKeyText ? TextOf(virtualKey) : QString();
    QKeyEvent keyEvent(QEvent::KeyPress, virtualKey, modifiers, text);
    return event(&keyEvent);
}

/// For a key that opens nothing: the host refreshes, the rest is as for a plain QObject.
bool TemporaryDimensionHandler::PassKeyOn(QEvent* pEvent)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    RefreshView();
    return pSelf != nullptr && HandleAsPlainObject(pEvent);
}

bool TemporaryDimensionHandler::HandleAsPlainObject(QEvent* pEvent)
{
    return QObject::event(pEvent); // NOLINT(bugprone-parent-virtual-call): skips QWidget on purpose
}

/// Returns true for an editor that was destroyed: otherwise Qt would deliver the event to it.
bool TemporaryDimensionHandler::FilterEditorEvent(QObject* pWatched, QEvent* pEvent,
                                                  const EditorRules& rules)
{
    if (pEvent->type() == QEvent::KeyRelease)
        return true;
    auto* pKeyEvent =
        pEvent->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent*>(pEvent) : nullptr;
    if (pKeyEvent == nullptr)
        return QObject::eventFilter(pWatched, pEvent);
    const QPointer<QObject> pEditor(pWatched);
    if (!Check(FindView() != nullptr, VESK_SITE(rules.function, L"pUIView指针不能为空")))
        return pEditor == nullptr;
    if (!Check(FindViewWidget(m_viewId) != nullptr,
               VESK_SITE(rules.function, L"pViewWidget指针不能为空")))
        return pEditor == nullptr;

    return HandleEditorKey(pWatched, *pKeyEvent, rules);
}

bool TemporaryDimensionHandler::HandleEditorKey(QObject* pWatched, QKeyEvent& event,
                                                const EditorRules& rules)
{
    const QPointer<QObject> pEditor(pWatched);
    switch (FindEditorKey(rules.kind, event.key()))
    {
    case EditorKey::Commit:
        OnEditorReturnPressed();
        return pEditor == nullptr;
    case EditorKey::Cancel:
        return HandleEscape(pEditor, event, rules.kind.handsEscapeOn);
    case EditorKey::Switch:
        rules.onTab();
        return true;
    case EditorKey::Other:
        break;
    }
    return QObject::eventFilter(pWatched, &event);
}

bool TemporaryDimensionHandler::HandleEscape(const QPointer<QObject>& pWatched, QKeyEvent& event,
                                             bool isHandedOn)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    const std::uint32_t viewId = m_viewId;
    EndInput();
    if (!isHandedOn)
        return pWatched == nullptr || (pSelf != nullptr && IsInputting());

    QObject* pViewWidget = FindViewWidget(viewId);
    const bool isConsumed = pViewWidget != nullptr && pViewWidget->event(&event);
    return pWatched == nullptr || isConsumed;
}

}

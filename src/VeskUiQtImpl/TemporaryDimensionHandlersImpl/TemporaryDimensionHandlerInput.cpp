#include "Command/ActionManager.h"
#include "Foundation/FirstException.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "VeskUiQtImpl/ViewLookup.h"

#include "HostUi/QtText.h"

namespace vesk
{
namespace
{

/// Without a view nothing is delivered.
void Deliver(std::uint32_t viewId, const ActionViewInput& record)
{
    if (IUiView* pView = FindViewById(viewId))
        ActionManager::ProcessViewInput(pView, record);
}

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
    const QPointer<TemporaryDimensionHandleEditor> pEditor = m_pEditor;
    const Vector3d anchor = m_data[m_InputState].textPosition;

    pEditor->setText(text);
    if (isSelected)
        pEditor->selectAll();
    pEditor->show();
    if (pEditor != nullptr)
        pEditor->setFocus(Qt::OtherFocusReason);
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

}

#include "CheckSite.h"
#include "Command/ActionManager.h"
#include "TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "View/IUiDocumentViewManager.h"
#include "View/IUiView.h"

#include <HostUi/QtText.h>

#include <QKeyEvent>

namespace vesk
{
namespace
{

IUiView* FindViewById(std::uint32_t id)
{
    const IUiDocumentViewManager* pViewManager = IUiDocumentViewManager::Get();
    return pViewManager != nullptr ? pViewManager->GetUiViewById(id) : nullptr;
}

QWidget* FindViewWidget(std::uint32_t id)
{
    const IUiView* pView = FindViewById(id);
    return pView != nullptr ? QWidget::find(pView->GetWindowId()) : nullptr;
}

/// Without a view there is nobody to deliver to.
void Deliver(std::uint32_t viewId, const ActionViewInput& record)
{
    if (IUiView* pView = FindViewById(viewId))
        ActionManager::ProcessViewInput(pView, record);
}

}

IUiView* TemporaryDimensionHandler::FindView() const
{
    return FindViewById(m_viewId);
}

IUiView* TemporaryDimensionHandler::FindDrawableView(const char* function) const
{
    IUiView* pView = FindView();
    if (!Check(pView != nullptr, VESK_SITE(function, L"pUIView为空！")))
        return nullptr;
    if (!Check(pView->GetModelView() != nullptr, VESK_SITE(function, L"pModelView为空！")))
        return nullptr;
    return pView;
}

bool TemporaryDimensionHandler::BeginInput(InputState state, bool editorReady)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    m_InputState = state;
    if (!editorReady)
        CreateEditorWidget();
    if (pSelf == nullptr)
        return false;
    if (m_pEditor == nullptr)
        EndInput();
    return m_pEditor != nullptr;
}

QString TemporaryDimensionHandler::FormatValue(const DimensionField& field) const
{
    const int decimals = field.decimals == ValueSlot::First ? m_style.GetFirstValueDecimals()
                                                            : m_style.GetSecondValueDecimals();
    return QString::number(m_data[field.state].value, 'f', decimals);
}

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
    RefreshView();
}

void TemporaryDimensionHandler::RefreshView()
{
    if (IUiView* pView = FindView())
        ActionManager::RefreshViewInput(pView);
}

bool TemporaryDimensionHandler::SendKey(int virtualKey, Qt::KeyboardModifiers modifiers,
                                        const QString& text)
{
    QKeyEvent keyEvent(QEvent::KeyPress, virtualKey, modifiers, text);
    return event(&keyEvent);
}

bool TemporaryDimensionHandler::PassKeyOn(QEvent* pEvent)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    RefreshView();
    return pSelf != nullptr && HandleAsPlainObject(pEvent);
}

bool TemporaryDimensionHandler::HandleAsPlainObject(QEvent* pEvent)
{
    return QObject::event(pEvent); // NOLINT(bugprone-parent-virtual-call): the widget is left out
}

bool TemporaryDimensionHandler::FilterEditorEvent(QObject* pWatched, QEvent* pEvent,
                                                  const EditorRules& rules)
{
    if (pEvent->type() == QEvent::KeyRelease)
        return true;
    auto* pKeyEvent =
        pEvent->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent*>(pEvent) : nullptr;
    if (pKeyEvent == nullptr)
        return QObject::eventFilter(pWatched, pEvent);
    if (!Check(FindView() != nullptr, VESK_SITE(rules.function, L"pUIView指针不能为空")))
        return false;
    if (!Check(FindViewWidget(m_viewId) != nullptr,
               VESK_SITE(rules.function, L"pViewWidget指针不能为空")))
        return false;

    return HandleEditorKey(pWatched, *pKeyEvent, rules);
}

/// Answers true for an editor that died: Qt would deliver the key to it otherwise.
bool TemporaryDimensionHandler::HandleEditorKey(QObject* pWatched, QKeyEvent& event,
                                                const EditorRules& rules)
{
    const QPointer<QObject> pEditor(pWatched);
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter ||
        (key == Qt::Key_Space && rules.commitsWithSpace))
    {
        OnEditorReturnPressed();
        return pEditor == nullptr;
    }
    if (key == Qt::Key_Escape)
        return HandleEscape(pEditor, event, rules.handsEscapeOn);
    if (key == Qt::Key_Tab && rules.onTab)
    {
        rules.onTab();
        return true;
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

bool TemporaryDimensionHandler::HasEditorValue() const
{
    return m_InputState != InputState::IS_None && m_pEditor != nullptr;
}

TemporaryDimensionHandler::EditorValue TemporaryDimensionHandler::TakeEditorValue()
{
    EditorValue value;
    const QString text = m_pEditor->text();
    value.record.value = text.toDouble(&value.isNumber);
    if (!m_isRawTextInput)
        return value;
    value.record.text = ToWide(text);
    m_opValidateHelper.Reset();
    return value;
}

bool TemporaryDimensionHandler::IsAccepted(const EditorValue& value, const DimensionField& field)
{
    if (m_isRawTextInput)
        return true;
    const NumberValidator<double>& validator = ValidatorOf(field);
    if (m_opValidateHelper != nullptr)
        m_opValidateHelper->SetValidators({{m_pEditor, &validator}});
    if (value.isNumber && validator.ValidateValue(value.record.value))
        return true;
    m_pEditor->selectAll();
    return false;
}

void TemporaryDimensionHandler::Commit(const ActionViewInput& record)
{
    RefreshViewId();
    const std::uint32_t viewId = m_viewId;
    EndInput();
    Deliver(viewId, record);
}

void TemporaryDimensionHandler::CommitAndSwitch(const ActionViewInput& record, InputState next)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    Deliver(m_viewId, record);
    if (pSelf == nullptr)
        return;
    if (m_opValidateHelper != nullptr && m_pEditor != nullptr)
        m_opValidateHelper->SetValidators({{m_pEditor, nullptr}});
    ShowInputWidget(next, true, false, L"");
}

const NumberValidator<double>&
TemporaryDimensionHandler::ValidatorOf(const DimensionField& field) const
{
    return field.validator == ValueSlot::First ? m_firstValueValidator : m_secondValueValidator;
}

}

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"
#include "VeskUiQtImpl/ViewLookup.h"

#include <QKeyEvent>

namespace vesk
{

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
    const int key = event.key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter ||
        (key == Qt::Key_Space && rules.kind.commitsWithSpace))
    {
        OnEditorReturnPressed();
        return pEditor == nullptr;
    }
    if (key == Qt::Key_Escape)
        return HandleEscape(pEditor, event, rules.kind.handsEscapeOn);
    if (key == Qt::Key_Tab && rules.kind.switchesWithTab)
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

}

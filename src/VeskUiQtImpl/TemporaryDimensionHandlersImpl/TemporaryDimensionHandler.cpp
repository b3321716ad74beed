#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/TemporaryDimensionHandler.h"

#include "Dimension/ITemporaryDimensionContext.h"
#include "Geometry/Constants.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/CreateChild.h"
#include "VeskUiQtImpl/ViewLookup.h"
#include "View/IUiManager.h"
#include "View/IUiView.h"
#include "View/UiViewUtility.h"

#include <QStyle>
#include <QStyleFactory>

namespace vesk
{
namespace
{

constexpr double MinAngle = -180.0;
constexpr double MaxAngle = 180.0;
constexpr int ValueDecimals = 3;
constexpr int DimensionEditorKind = 3;

/// Moves the editor of an embedded view far off screen: it keeps the focus but is not visible.
constexpr int EmbeddedViewOffset = 10000;

constexpr char EditorStyleSheet[] =
    "QLineEdit{ color:rgba(199, 199, 120, 100%); border:2px solid rgba(199, 199, 120, 100%); "
    "font:10pt; border-radius:4px}QLineEdit:!enabled{ color:rgba(100, 100, 100, "
    "100%);}QLineEdit:focus{ color:rgba(0, 0, 0, 100%); background:rgba(255, 255, 255, 100%);}";

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

/// The editor's style is its child, created once, since the widget itself never owns a style. Null
/// if the platform has no such style; the editor then keeps the application's.
QStyle* FindOrCreateStyle(QWidget& editor)
{
    auto* pStyle = editor.findChild<QStyle*>(QString(), Qt::FindDirectChildrenOnly);
    if (pStyle != nullptr)
        return pStyle;
    pStyle = QStyleFactory::create(QStringLiteral("WindowsVista"));
    if (pStyle != nullptr)
        pStyle->setParent(&editor);
    return pStyle;
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
    TemporaryDimensionHandleEditor* pEditor = m_pEditor;
    if (pEditor == nullptr)
        return;
    // These calls move the focus, and handlers of that may destroy the handler.
    pEditor->clearFocus();
    pEditor->hide();
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
    if (!FindOrCreateEditor(pViewWidget) || !ActivateEditor(pViewWidget))
        return;
    StyleEditor();
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
    int x = 0;
    int y = 0;
    float depth = 0.0F;
    UiViewUtility::WorldPositionToScreenPosition(pView, world, x, y, depth);
    const QWidget* pViewWidget = QWidget::find(pView->GetWindowId());
    if (!Check(pViewWidget != nullptr,
               VESK_SITE("vesk::TemporaryDimensionHandler::SetEditorPosition", L"pNqView为空。")))
        return;

    const QSize size = m_pEditor->size();
    QPoint corner = pViewWidget->mapToGlobal(QPoint(0, 0)) +
                    QPoint(x - size.width() / 2, y - size.height() / 2);
    if (dynamic_cast<const IUiView*>(pViewWidget->parent()) != nullptr)
        corner += QPoint(EmbeddedViewOffset, EmbeddedViewOffset);
    m_pEditor->move(corner);
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

/// Successive handlers of a view share the editor that the first of them created there.
bool TemporaryDimensionHandler::FindOrCreateEditor(QWidget* pViewWidget)
{
    constexpr char Function[] = "vesk::TemporaryDimensionHandler::CreateEditorWidget";
    const QString name = QStringLiteral("ViewInputLineEdit");
    m_pEditor = pViewWidget->findChild<TemporaryDimensionHandleEditor*>(name);
    if (m_pEditor != nullptr)
        return true;
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    auto* pEditor = CreateChild<TemporaryDimensionHandleEditor>(pViewWidget, Function);
    if (pSelf == nullptr)
        return false;
    m_pEditor = pEditor;
    if (!Check(m_pEditor != nullptr, VESK_SITE(Function, L"m_pEditor创建失败。")))
        return false;
    m_pEditor->setObjectName(name);
    m_pEditor->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    return true;
}

/// Returns false if this destroyed the handler or the editor.
bool TemporaryDimensionHandler::ActivateEditor(QWidget* pViewWidget)
{
    const QPointer<TemporaryDimensionHandler> pSelf(this);
    const QPointer<TemporaryDimensionHandleEditor> pEditor = m_pEditor;
    const QPointer<QWidget> pView(pViewWidget);
    pEditor->installEventFilter(this);
    pEditor->setFixedSize(m_style.GetEditorWidth(), m_style.GetEditorHeight());
    pEditor->show();
    if (pEditor != nullptr)
    {
        pEditor->activateWindow();
        pEditor->setFocus(Qt::OtherFocusReason);
    }
    if (pSelf == nullptr || pEditor == nullptr || pView == nullptr)
        return false;
    pView->installEventFilter(pEditor);
    return true;
}

void TemporaryDimensionHandler::StyleEditor()
{
    m_pEditor->setStyleSheet(QString::fromLatin1(EditorStyleSheet));
    m_pEditor->setStyle(FindOrCreateStyle(*m_pEditor));
    QPalette palette = m_pEditor->palette();
    palette.setBrush(QPalette::Base, Qt::white);
    m_pEditor->setPalette(palette);
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

}

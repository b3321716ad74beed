#include "VeskUiQtImpl/TemporaryDimensionHandlersImpl/EditorWindow.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/CreateChild.h"
#include "View/IUiView.h"
#include "View/UiViewUtility.h"

#include <QStyle>
#include <QStyleFactory>

namespace vesk
{
namespace
{

/// Moves the editor of an embedded view far off screen: it keeps the focus but is not visible.
constexpr int EmbeddedViewOffset = 10000;

const QString& EditorStyleSheet()
{
    static const QString s_styleSheet = QStringLiteral(
        "QLineEdit{ color:rgba(199, 199, 120, 100%); border:2px solid rgba(199, 199, 120, 100%); "
        "font:10pt; border-radius:4px}QLineEdit:!enabled{ color:rgba(100, 100, 100, "
        "100%);}QLineEdit:focus{ color:rgba(0, 0, 0, 100%); background:rgba(255, 255, 255, "
        "100%);}");
    return s_styleSheet;
}

/// The style of its system, null if there is none. Which styles there are never changes.
QStyle* CreateStyle()
{
    static const QString s_name = QStringLiteral("WindowsVista");
    static const bool s_exists = QStyleFactory::keys().contains(s_name, Qt::CaseInsensitive);
    return s_exists ? QStyleFactory::create(s_name) : nullptr;
}

/// The editor's style is its child, created once, since the widget itself never owns a style. Null
/// if the platform has no such style; the editor then keeps the application's.
QStyle* FindOrCreateStyle(QWidget& editor)
{
    auto* pStyle = editor.findChild<QStyle*>(QString(), Qt::FindDirectChildrenOnly);
    if (pStyle != nullptr)
        return pStyle;
    pStyle = CreateStyle();
    if (pStyle != nullptr)
        pStyle->setParent(&editor);
    return pStyle;
}

/// Whether the background is white in every state, as chosen for the editor itself.
bool IsWhite(const QPalette& palette)
{
    const QBrush white(Qt::white);
    const auto isWhite = [&](QPalette::ColorGroup group) {
        return palette.isBrushSet(group, QPalette::Base) &&
               palette.brush(group, QPalette::Base) == white;
    };
    return isWhite(QPalette::Active) && isWhite(QPalette::Inactive) && isWhite(QPalette::Disabled);
}

}

TemporaryDimensionHandleEditor* EditorWindow::FindOrCreate(QWidget& view)
{
    const QString name = QStringLiteral("ViewInputLineEdit");
    auto* pEditor = view.findChild<TemporaryDimensionHandleEditor*>(name);
    if (pEditor != nullptr)
        return pEditor;
    pEditor = CreateChild<TemporaryDimensionHandleEditor>(
        &view, "vesk::TemporaryDimensionHandler::CreateEditorWidget");
    if (pEditor == nullptr)
        return nullptr;
    pEditor->setObjectName(name);
    pEditor->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    return pEditor;
}

bool EditorWindow::Activate(QWidget& view, QObject& filter, const QSize& size)
{
    const QPointer<QWidget> pView(&view);
    const QPointer<QObject> pFilter(&filter);
    m_pEditor->installEventFilter(pFilter);
    m_pEditor->setFixedSize(size.width(), size.height());
    m_pEditor->show();
    if (m_pEditor != nullptr)
    {
        m_pEditor->activateWindow();
        m_pEditor->setFocus(Qt::OtherFocusReason);
    }
    if (m_pEditor == nullptr || pView == nullptr || pFilter == nullptr)
        return false;
    pView->installEventFilter(m_pEditor);
    return true;
}

void EditorWindow::ApplyStyle()
{
    // Setting the sheet, style and palette that are there would only compute the same look again,
    // which takes longer than all the rest of opening. A style of the editor's own cannot be
    // compared: the sheet stands before it.
    if (m_pEditor->styleSheet() != EditorStyleSheet())
        m_pEditor->setStyleSheet(EditorStyleSheet());
    QStyle* pStyle = FindOrCreateStyle(*m_pEditor);
    if (pStyle != nullptr || m_pEditor->testAttribute(Qt::WA_SetStyle))
        m_pEditor->setStyle(pStyle);
    QPalette palette = m_pEditor->palette();
    if (IsWhite(palette))
        return;
    palette.setBrush(QPalette::Base, Qt::white);
    m_pEditor->setPalette(palette);
}

void EditorWindow::Show(const QString& text, bool isSelected)
{
    m_pEditor->setText(text);
    if (isSelected)
        m_pEditor->selectAll();
    m_pEditor->show();
    if (m_pEditor != nullptr)
        m_pEditor->setFocus(Qt::OtherFocusReason);
}

void EditorWindow::MoveTo(const IUiView& view, const Vector3d& world)
{
    int x = 0;
    int y = 0;
    float depth = 0.0F;
    UiViewUtility::WorldPositionToScreenPosition(&view, world, x, y, depth);
    const QWidget* pViewWidget = QWidget::find(view.GetWindowId());
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

void EditorWindow::Hide()
{
    m_pEditor->clearFocus();
    if (m_pEditor != nullptr)
        m_pEditor->hide();
}

}

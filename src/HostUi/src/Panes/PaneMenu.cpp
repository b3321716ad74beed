#include "Panes/PaneMenu.h"

#include "Texts/HostUiText.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QShortcut>

#include <utility>

namespace vesk
{
namespace
{

/// By how many pixels a pane becomes larger or smaller; less where it shares its side with others,
/// of which each gives a part.
constexpr int SizeStep = 40;

/// The pane that a widget is in, or is; null if it is in none.
QDockWidget* FindPane(QWidget* pWidget)
{
    for (QWidget* p = pWidget; p != nullptr; p = p->parentWidget())
    {
        if (auto* pPane = qobject_cast<QDockWidget*>(p))
            return pPane;
    }
    return nullptr;
}

/// Adds an entry that does something to the pane, if that is still there when it is chosen. The
/// keyboard stays where it was.
template <class Change>
QAction* AddEntry(QMenu& menu, QDockWidget& pane, const QString& text, Change change)
{
    return menu.addAction(text, &pane, [&pane, change = std::move(change)] {
        const QPointer<QDockWidget> pPane(&pane);
        const QPointer<QWidget> pFocus(QApplication::focusWidget());
        change();
        if (pPane == nullptr || pPane->isHidden() || pFocus == nullptr)
            return;
        pPane->raise();
        pPane->activateWindow();
        pFocus->setFocus();
    });
}

}

PaneMenu::PaneMenu(QMainWindow& window, QObject* pParent) : QObject(pParent), m_window(window)
{
    window.installEventFilter(this);
    auto* pKey = new QShortcut(QKeySequence(QStringLiteral("Alt+-")), &window);
    connect(pKey, &QShortcut::activated, this, &PaneMenu::OnKey);
    connect(this, &QObject::destroyed, pKey, &QObject::deleteLater);
}

bool PaneMenu::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::ContextMenu)
        return QObject::eventFilter(pWatched, pEvent);
    const auto& event = static_cast<const QContextMenuEvent&>(*pEvent);
    QWidget* pHit = m_window.childAt(event.pos());
    QDockWidget* pPane = FindPane(pHit);
    const QWidget* pContent = pPane != nullptr ? pPane->widget() : nullptr;
    const bool isInContent =
        pContent != nullptr && (pHit == pContent || pContent->isAncestorOf(pHit));
    if (pPane == nullptr || isInContent)
        return QObject::eventFilter(pWatched, pEvent);
    Open(*pPane, event.globalPos());
    return true;
}

void PaneMenu::OnKey()
{
    QDockWidget* pPane = FindPane(QApplication::focusWidget());
    if (pPane != nullptr && pPane->parentWidget() == &m_window)
        Open(*pPane, pPane->mapToGlobal(QPoint()));
}

void PaneMenu::Open(QDockWidget& pane, const QPoint& position)
{
    // Not a child of the pane: what is chosen may destroy that, and the toolkit still uses the menu
    // afterwards.
    auto* pMenu = new QMenu(&m_window);
    connect(&pane, &QObject::destroyed, pMenu, &QMenu::close);
    pMenu->setObjectName(QStringLiteral("PaneMenu"));
    pMenu->setAttribute(Qt::WA_DeleteOnClose);
    if (pane.features() & QDockWidget::DockWidgetFloatable)
    {
        QAction* pFloat = AddEntry(*pMenu, pane, "浮动(&F)"_tr,
                                   [&pane] { pane.setFloating(!pane.isFloating()); });
        pFloat->setCheckable(true);
        pFloat->setChecked(pane.isFloating());
    }
    AddPlaces(*pMenu, pane);
    AddSizes(*pMenu, pane);
    if (pane.features() & QDockWidget::DockWidgetClosable)
    {
        pMenu->addSeparator();
        AddEntry(*pMenu, pane, "关闭(&C)"_tr, [&pane] { pane.close(); });
    }
    pMenu->popup(position);
}

/// The sides of the window that the pane may be moved to.
void PaneMenu::AddPlaces(QMenu& menu, QDockWidget& pane)
{
    if (!(pane.features() & QDockWidget::DockWidgetMovable))
        return;
    const std::pair<Qt::DockWidgetArea, QString> places[] = {
        {Qt::LeftDockWidgetArea, "移到左侧(&L)"_tr},
        {Qt::RightDockWidgetArea, "移到右侧(&R)"_tr},
        {Qt::TopDockWidgetArea, "移到上方(&T)"_tr},
        {Qt::BottomDockWidgetArea, "移到下方(&B)"_tr},
    };
    menu.addSeparator();
    for (const auto& [area, text] : places)
    {
        const auto move = [this, &pane, area = area] {
            pane.setFloating(false);
            m_window.addDockWidget(area, &pane);
        };
        const bool isThere = !pane.isFloating() && m_window.dockWidgetArea(&pane) == area;
        AddEntry(menu, pane, text, move)->setEnabled(!isThere && pane.isAreaAllowed(area));
    }
}

void PaneMenu::AddSizes(QMenu& menu, QDockWidget& pane)
{
    struct Size
    {
        Qt::Orientation orientation;
        int change;
        QString text;
    };
    menu.addSeparator();
    for (const Size& size : {Size{Qt::Horizontal, SizeStep, "加宽(&W)"_tr},
                             Size{Qt::Horizontal, -SizeStep, "缩窄(&N)"_tr},
                             Size{Qt::Vertical, SizeStep, "加高(&A)"_tr},
                             Size{Qt::Vertical, -SizeStep, "减低(&S)"_tr}})
        AddEntry(menu, pane, size.text,
                 [this, &pane, size] { Resize(pane, size.orientation, size.change); });
}

void PaneMenu::Resize(QDockWidget& pane, Qt::Orientation orientation, int change)
{
    const bool isWidth = orientation == Qt::Horizontal;
    if (pane.isFloating())
        pane.resize(pane.width() + (isWidth ? change : 0), pane.height() + (isWidth ? 0 : change));
    else
        m_window.resizeDocks({&pane}, {(isWidth ? pane.width() : pane.height()) + change},
                             orientation);
}

}

#include "Qtitan/RibbonBar.h"

#include "Caption.h"
#include "Qtitan/RibbonPage.h"
#include "RibbonColors.h"
#include "RibbonKeyTips.h"
#include "RibbonOpening.h"
#include "RibbonTabBar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace Qtitan
{

RibbonBar::RibbonBar(QWidget* pParent)
    : QWidget(pParent), m_pTabs(new RibbonTabBar(this)), m_pTabRow(new QHBoxLayout),
      m_pPages(new QStackedWidget(this)), m_pOpening(new RibbonOpening(*this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 1);
    pLayout->setSpacing(0);
    pLayout->addLayout(m_pTabRow);
    m_pTabRow->addWidget(m_pTabs, 1);
    m_pTabs->installEventFilter(this);
    pLayout->addWidget(m_pPages);
    m_pPages->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_pTabs, &QTabBar::currentChanged, this, &RibbonBar::OnCurrentTabChanged);
    connect(m_pTabs, &QTabBar::tabBarClicked, this, &RibbonBar::OnTabClicked);
    connect(m_pOpening, &RibbonOpening::ended, this, &RibbonBar::closePage);
    connect(m_pTabs, &QTabBar::tabBarDoubleClicked, this, &RibbonBar::OnTabDoubleClicked);
    connect(m_pPages, &QStackedWidget::widgetRemoved, this, &RibbonBar::OnPageRemoved);
    new RibbonKeyTips(*this);
}

RibbonBar::~RibbonBar()
{
    // The base class destroys the pages one by one, when there is no ribbon left to notify.
    disconnect(m_pPages, nullptr, this, nullptr);
    disconnect(m_pTabs, nullptr, this, nullptr);
}

RibbonPage* RibbonBar::addPage(const QString& title)
{
    auto* pPage = new RibbonPage(title, m_pPages);
    m_pPages->addWidget(pPage);
    // The tab bar would turn a single '&' into an Alt shortcut; here it only marks a key tip.
    const QString caption = plainCaption(title);
    const int index =
        m_pTabs->addTab(QString(caption).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_pTabs->setAccessibleTabName(index, caption);
    // A layout within another is told only while it is shown.
    m_pTabRow->invalidate();
    return pPage;
}

int RibbonBar::pageCount() const
{
    return m_pPages->count();
}

RibbonPage* RibbonBar::page(int index) const
{
    return qobject_cast<RibbonPage*>(m_pPages->widget(index));
}

int RibbonBar::currentPageIndex() const
{
    return m_pTabs->currentIndex();
}

void RibbonBar::setCurrentPageIndex(int index)
{
    m_pTabs->setCurrentIndex(index);
}

bool RibbonBar::isMinimized() const
{
    return m_isMinimized;
}

void RibbonBar::setMinimized(bool minimized)
{
    closePage();
    m_isMinimized = minimized;
    showPages();
}

void RibbonBar::openPage()
{
    m_pOpening->setActive(m_isMinimized);
    showPages();
}

void RibbonBar::closePage()
{
    m_pOpening->setActive(false);
    showPages();
}

void RibbonBar::addTabRowButton(QToolButton* pButton)
{
    m_pTabRow->addWidget(pButton);
}

/// The keys that open a list open the page, too.
bool RibbonBar::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pWatched != m_pTabs)
        return QWidget::eventFilter(pWatched, pEvent);
    m_isDoubleClick = pEvent->type() == QEvent::MouseButtonDblClick;
    if (!m_isMinimized || pEvent->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent*>(pEvent)->key();
    const bool isOpening = key == Qt::Key_Down || key == Qt::Key_Space || key == Qt::Key_Return ||
                           key == Qt::Key_Enter;
    if (isOpening)
        openPage();
    return isOpening;
}

/// The toolkit counts the second press of a double-click as another click.
void RibbonBar::OnTabClicked(int index)
{
    if (m_isDoubleClick || index < 0)
        return;
    if (index == currentPageIndex() && m_pOpening->isActive())
        closePage();
    else
        openPage();
}

void RibbonBar::showPages()
{
    const bool isShown = !m_isMinimized || m_pOpening->isActive();
    m_pPages->setVisible(isShown);
    m_pTabs->setJoinedToPage(isShown);
}

QRect RibbonBar::tabRect(int index) const
{
    const QRect rect = m_pTabs->tabRect(index);
    return rect.isEmpty() ? QRect() : rect.translated(m_pTabs->pos());
}

void RibbonBar::paintEvent(QPaintEvent*)
{
    const RibbonColors colors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.tabRow);
    painter.fillRect(0, height() - 1, width(), 1, colors.line);
}

void RibbonBar::OnCurrentTabChanged(int index)
{
    m_pPages->setCurrentIndex(index);
    emit currentPageChanged(index);
}

void RibbonBar::OnTabDoubleClicked(int index)
{
    if (index >= 0)
        setMinimized(!isMinimized());
}

void RibbonBar::OnPageRemoved(int index)
{
    m_pTabs->removeTab(index);
}

} // namespace Qtitan

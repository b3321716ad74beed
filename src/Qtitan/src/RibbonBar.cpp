#include "Qtitan/RibbonBar.h"

#include "Caption.h"
#include "Qtitan/RibbonPage.h"
#include "RibbonColors.h"
#include "RibbonKeyTips.h"
#include "RibbonTabBar.h"

#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace Qtitan
{

RibbonBar::RibbonBar(QWidget* pParent)
    : QWidget(pParent), m_pTabs(new RibbonTabBar(this)), m_pPages(new QStackedWidget(this))
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 1);
    pLayout->setSpacing(0);
    pLayout->addWidget(m_pTabs);
    pLayout->addWidget(m_pPages);
    m_pPages->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_pTabs, &QTabBar::currentChanged, this, &RibbonBar::OnCurrentTabChanged);
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
    return m_pPages->isHidden();
}

void RibbonBar::setMinimized(bool minimized)
{
    m_pPages->setVisible(!minimized);
    m_pTabs->setJoinedToPage(!minimized);
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

#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QStackedWidget;

namespace Qtitan
{

class RibbonPage;
class RibbonTabBar;

/// A row of page tabs with the current page below it, as high as its content and as wide as it is
/// made. Colours come from the palette and follow it.
///
/// Keys, while the ribbon's window has the focus: pressing and releasing Alt alone, or F10, shows
/// key tips over the tabs and then over the controls of the chosen page; Alt and a digit selects
/// a page. The key of a control clicks a button, box or radio button, of a button with a menu its
/// main part, and gives the focus to anything else; Down and F4 open the menu of the button that
/// has the focus. Application shortcuts come first, and any other key goes its way untouched.
class QTITAN_EXPORT RibbonBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentPageIndex READ currentPageIndex WRITE setCurrentPageIndex NOTIFY
                   currentPageChanged)
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized)

public:
    explicit RibbonBar(QWidget* pParent = nullptr);
    ~RibbonBar() override;

    /// Adds a page at the end and returns it; the ribbon owns it. The first page becomes the
    /// current one. An '&' in the title marks the letter of the tab's key tip and is not shown.
    /// Deleting a page removes its tab.
    RibbonPage* addPage(const QString& title);

    int pageCount() const;

    /// The page at an index from 0, or null when there is none.
    RibbonPage* page(int index) const;

    /// The index of the current page, -1 while there is no page.
    int currentPageIndex() const;

    /// Makes a page the current one; an index that does not exist changes nothing.
    void setCurrentPageIndex(int index);

    /// Whether only the tabs are shown.
    bool isMinimized() const;

    /// Hides or shows everything below the tabs. A double-click on a tab does the same.
    void setMinimized(bool minimized);

    /// The tab of a page in this widget's coordinates; empty when there is no such page.
    QRect tabRect(int index) const;

signals:
    /// The current page is another one, or has another index; -1 when the last page went.
    void currentPageChanged(int index);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    void OnCurrentTabChanged(int index);
    void OnTabDoubleClicked(int index);
    void OnPageRemoved(int index);

    RibbonTabBar* m_pTabs;
    QStackedWidget* m_pPages;
};

} // namespace Qtitan

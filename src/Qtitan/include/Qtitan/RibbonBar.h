#pragma once

#include "Qtitan/QtitanExport.h"

#include <QWidget>

class QHBoxLayout;
class QStackedWidget;
class QToolButton;

namespace Qtitan
{

class RibbonOpening;
class RibbonPage;
class RibbonTabBar;

/// The dynamic property with the key tip of a control, a letter or a digit from 1. Controls without
/// one get digits, then letters, that are free, in their order.
constexpr char KeyTipProperty[] = "KeyTip";

/// A row of page tabs with the current page below it; as high as its content, at any width. Colours
/// come from the palette and follow its changes.
///
/// Keys, while the ribbon's window has the focus: pressing and releasing Alt alone, or F10, shows
/// key tips over the tabs and then over the controls of the chosen page; Alt with a digit selects a
/// page. The key tip of a button, check box or radio button clicks it (a split button: its main
/// part); that of any other control gives it the focus. Down and F4 open the menu of the focused
/// button. Application shortcuts take precedence; all other keys pass through.
class QTITAN_EXPORT RibbonBar : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentPageIndex READ currentPageIndex WRITE setCurrentPageIndex NOTIFY
                   currentPageChanged)
    Q_PROPERTY(bool minimized READ isMinimized WRITE setMinimized)

public:
    /// A ribbon without pages.
    explicit RibbonBar(QWidget* pParent = nullptr);
    ~RibbonBar() override;

    /// Adds a page at the end and returns it; the ribbon owns it. The first page becomes the
    /// current one. An '&' in the title marks the letter of the tab's key tip and is not shown.
    /// Deleting a page removes its tab.
    RibbonPage* addPage(const QString& title);

    /// How many pages there are; each has a tab.
    int pageCount() const;

    /// The page at an index from 0; null if there is none.
    RibbonPage* page(int index) const;

    /// The index of the current page, -1 while there is no page.
    int currentPageIndex() const;

    /// Makes a page the current one; an invalid index changes nothing.
    void setCurrentPageIndex(int index);

    /// Whether only the tabs are shown.
    bool isMinimized() const;

    /// Hides or shows everything below the tabs. A double-click on a tab does the same.
    void setMinimized(bool minimized);

    /// Shows the current page of a minimised ribbon until one of its buttons is clicked, or the
    /// user presses Escape or turns to something else; a click elsewhere in the window only closes
    /// it. A click on a tab does the same; another one on that tab closes the page. Does nothing if
    /// the ribbon is not minimised.
    void openPage();

    /// Closes the page that openPage has opened; does nothing if there is none.
    void closePage();

    /// Adds a button at the end of the row of tabs, where it is seen even if the ribbon is
    /// minimised. The ribbon becomes its parent; it may be deleted at any time.
    void addTabRowButton(QToolButton* pButton);

    /// The tab of a page in this widget's coordinates; empty if there is no such page.
    QRect tabRect(int index) const;

signals:
    /// Another page is current, or the current one has another index; -1 after the last page was
    /// removed.
    void currentPageChanged(int index);

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

private:
    void OnCurrentTabChanged(int index);
    void OnTabDoubleClicked(int index);
    void OnPageRemoved(int index);

    void OnTabClicked(int index);
    void showPages();

    RibbonTabBar* m_pTabs;
    QHBoxLayout* m_pTabRow;
    QStackedWidget* m_pPages;
    bool m_isMinimized = false;
    bool m_isDoubleClick = false; ///< While a tab handles one.
    RibbonOpening* m_pOpening;
};

} // namespace Qtitan

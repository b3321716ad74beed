#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <vector>

namespace Qtitan
{

class RibbonBar;
class RibbonPage;

/// A key tip and its target: a tab, or a widget on the page.
struct KeyTip
{
    QString keys;
    QString fixed; ///< The key that it has whatever the others have.
    QChar wish;
    int tab = -1;
    QPointer<QWidget> pTarget;
    QPoint centre;
};

using KeyTipList = std::vector<KeyTip>;

/// The key tips of all tabs; centres are in the bar's coordinates.
KeyTipList keyTipsOfTabs(const RibbonBar& bar);

/// The key tips of a page's visible and enabled controls: buttons and widgets that accept the
/// focus. Controls scrolled out of the page have none, but its scroll buttons do.
KeyTipList keyTipsOfPage(const RibbonBar& bar, const RibbonPage& page);

} // namespace Qtitan

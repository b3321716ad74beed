#pragma once

#include <QList>

class QWidget;

namespace Qtitan
{

class RibbonPage;

/// The controls of a page as a reader meets them, shown or not: group by group, in a group column
/// by column, in a column row by row, in a row from left to right. Then come the page's own
/// buttons. A control is a button or whatever takes the focus with Tab.
QList<QWidget*> controlsInOrder(const RibbonPage& page);

/// Makes Tab go from the tabs through the controls of a page in that order, whenever each of them
/// was placed.
void orderFocus(const RibbonPage& page);

} // namespace Qtitan

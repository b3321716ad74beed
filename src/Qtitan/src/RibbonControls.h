#pragma once

#include <QList>

class QWidget;

namespace Qtitan
{

class RibbonPage;

/// The controls of a page in reading order, visible or not: by group, then by column, then by row,
/// then from left to right; last the page's own buttons. A control is a button or any widget that
/// accepts the focus by Tab.
QList<QWidget*> controlsInOrder(const RibbonPage& page);

/// Makes Tab go from the tabs through the controls of a page in that order, regardless of the order
/// in which they were added.
void orderFocus(const RibbonPage& page);

} // namespace Qtitan

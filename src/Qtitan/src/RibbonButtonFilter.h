#pragma once

class QEvent;
class QToolButton;

namespace Qtitan
{

enum class RibbonButtonForm;

/// Handles the events of a tool button that the ribbon handles in its place: the button is painted
/// as part of the ribbon, and Down, Alt+Down and F4 open its menu, if it has one, as they open the
/// list of a combo box. Returns true if the event needs no further handling; the button may be
/// destroyed by then, since an open menu runs an event loop.
bool filterRibbonButton(QToolButton& button, RibbonButtonForm form, const QEvent& event);

} // namespace Qtitan

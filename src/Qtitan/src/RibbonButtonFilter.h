#pragma once

class QEvent;
class QToolButton;

namespace Qtitan
{

enum class RibbonButtonForm;

/// Takes the events of a placed tool button that the ribbon answers in its stead: it is painted as
/// part of the ribbon, and Down, Alt+Down and F4 open its menu, if it has one, as they open the
/// list of a combo box. True when the event needs no further treatment; the button may be gone
/// then, since an open menu runs an event loop.
bool filterRibbonButton(QToolButton& button, RibbonButtonForm form, const QEvent& event);

} // namespace Qtitan

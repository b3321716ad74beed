#pragma once

class QToolButton;

namespace Qtitan
{

enum class RibbonButtonForm;

/// Draws a tool button as part of a ribbon, in its own paint event: flat, with states in the
/// accent colour, icon and text close together as its form says. A button with a menu of its own
/// beside its action shows two parts, the right one with an arrow. It takes the place of the
/// button's own drawing, so that the button needs neither a style nor a style sheet from the ribbon
/// and goes on inheriting palette and font.
void paintRibbonButton(QToolButton& button, RibbonButtonForm form);

} // namespace Qtitan

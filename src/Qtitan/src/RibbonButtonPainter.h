#pragma once

class QToolButton;

namespace Qtitan
{

enum class RibbonButtonForm;

/// Paints a tool button as part of a ribbon, in the button's own paint event: flat, with states in
/// the accent colour, icon and text close together according to its form. A split button shows two
/// parts, the right one with an arrow. This replaces the button's own painting, so that it needs
/// neither a style nor a style sheet from the ribbon and still inherits palette and font.
void paintRibbonButton(QToolButton& button, RibbonButtonForm form);

} // namespace Qtitan

#pragma once

#include <QRect>
#include <QSize>
#include <QStyleOptionToolButton>

#include <vector>

class QToolButton;

namespace Qtitan
{

enum class RibbonButtonForm;

/// What a tool button in a ribbon shows, and where, in its own coordinates.
struct RibbonButtonLayout
{
    RibbonButtonLayout(const QToolButton& button, RibbonButtonForm form);

    /// The state and the content of the whole button.
    QStyleOptionToolButton option;
    /// The part that opens the menu; empty if the whole button does, or nothing does.
    QRect menuPart;
    /// The arrow that indicates a menu; empty without a menu.
    QRect arrow;
    /// Icon and caption, for the style to draw one after the other.
    std::vector<QStyleOptionToolButton> labels;
};

/// The size at which a button shows all of its content.
QSize ribbonButtonSize(const QToolButton& button, RibbonButtonForm form);

} // namespace Qtitan

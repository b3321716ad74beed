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
    /// The part that opens the menu; empty where the whole button does, or nothing.
    QRect menuPart;
    /// The arrow that tells of a menu; empty without a menu.
    QRect arrow;
    /// Icon and caption: what the style is to draw one after the other.
    std::vector<QStyleOptionToolButton> labels;
};

/// The size in which a button shows all of its content.
QSize ribbonButtonSize(const QToolButton& button, RibbonButtonForm form);

} // namespace Qtitan

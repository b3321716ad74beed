#pragma once

#include "Model/Pen.h"

#include <QPalette>
#include <QPen>

#include <optional>

class Sketch;
struct Layer;

/// The width on screen of a line, in pixels: whole ones, because others look blurred.
double WidthOnScreen(const LineWidth& width);

/// The pens with which the entities of a drawing are painted on the screen.
///
/// Neighbours usually look alike, so the last answer is kept: with it, painting many entities costs
/// as much as if all had the same pen. Used during one painting, while the drawing does not change.
class ScreenPens final
{
public:
    /// The palette's text colour stands for the default colour of layers; other colours are changed
    /// as far as needed to be told from its Base. The sketch is not owned and outlives the pens.
    ScreenPens(const Sketch& sketch, const QPalette& palette);

    /// How entities with that pen are painted; null if their layer is hidden. Valid until the next
    /// call.
    const QPen* Find(const Pen& pen);

private:
    QPen Make(const Pen& pen, const Layer& layer) const;

    const Sketch& m_sketch;
    const QPalette m_palette;

    /// The pen that was asked for last, and the answer.
    std::optional<Pen> m_last;
    std::optional<QPen> m_found;
};

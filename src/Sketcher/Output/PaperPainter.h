#pragma once

#include "Model/ShapeMeasure.h"

#include <QSizeF>

#include <functional>
#include <optional>

class QPainter;
struct SketchContent;

/// Called now and then with the share of the work that is done, from 0 to 1. Returns false to stop
/// the work.
using OutputProgress = std::function<bool(double)>;

/// Resolutions of devices are in inches.
constexpr double MillimetresPerInch = 25.4;

/// How a drawing lies on a sheet of paper.
struct PaperPlacement
{
    /// Millimetres on paper per millimetre of the drawing.
    double scale = 1.0;

    /// The point of the drawing at the paper's top left corner.
    vesk::Vector3d topLeft = vesk::Vector3d::Zero();

    /// In millimetres.
    QSizeF paper;

    /// At that scale, on a sheet that is larger than the bounds by a margin (in millimetres) on
    /// each side, rounded up to a whole number of units of that many millimetres.
    static PaperPlacement Around(const ShapeBounds& bounds, double scale, double margin,
                                 double unit);

    /// At that scale, with the middle of the bounds in the middle of the sheet.
    static PaperPlacement Centred(const ShapeBounds& bounds, double scale, const QSizeF& paper);
};

/// The bounds of all entities on visible layers, without the widths of their lines; nothing if
/// there are none.
std::optional<ShapeBounds> VisibleBounds(const SketchContent& content);

/// Paints what is visible of a drawing on a sheet whose top left corner is the painter's origin and
/// whose millimetres are its units.
///
/// Lines have their widths on paper at any scale; the default colour is black. What is beyond the
/// sheet is left out. Returns false if it was stopped.
bool PaintOnPaper(QPainter& painter, const SketchContent& content, const PaperPlacement& placement,
                  const OutputProgress& progress);

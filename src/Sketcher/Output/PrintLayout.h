#pragma once

#include "Output/PaperPainter.h"

#include <QString>

#include <optional>

/// The margin, in millimetres, that a fitted drawing keeps from the edges of the paper.
constexpr double FitMargin = 10.0;

/// Reads a scale as drawings state it: "1:50", "2:1", "1/50" or "0.5", in millimetres on paper per
/// millimetre of the drawing. Nothing if the text is none, or not between 1:1000000 and 1000000:1.
std::optional<double> ReadScale(const QString& text);

/// The greatest scale at which the bounds fit on paper (in millimetres) with its margin. At most
/// 1000000:1, for a single point.
double FitScale(const ShapeBounds& bounds, const QSizeF& paper);

/// True if the bounds fit on paper at that scale, without a margin.
bool FitsPaper(const ShapeBounds& bounds, double scale, const QSizeF& paper);

/// A scale as drawings state it: "1:50", "2.5:1".
QString ScaleText(double scale);

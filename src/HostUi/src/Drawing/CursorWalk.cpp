#include "Drawing/CursorWalk.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPalette>

#include <cmath>
#include <utility>

namespace vesk
{
namespace
{

/// A multiple of the step, rounded once if the step is a whole part of 1: three tenths are 0.3.
double Multiple(double count, double step)
{
    constexpr double Nearly = 1e-9;
    const double parts = std::round(1.0 / step);
    const bool isPart = step < 1.0 && std::abs(parts * step - 1.0) < Nearly;
    // A sum with zero is never -0.
    return (isPart ? count / parts : count * step) + 0.0;
}

/// The next multiple in the direction of a sign; without one the coordinate stays. One that is
/// nearly a multiple counts as it.
double NextCoordinate(double from, double sign, double step)
{
    constexpr double Nearly = 1e-6;
    if (sign == 0.0)
        return from;
    return Multiple(sign * (std::floor(sign * from / step + Nearly) + 1.0), step);
}

double NearestMultiple(double from, double step)
{
    return Multiple(std::round(from / step), step);
}

}

std::optional<Vector3d> WayOf(const QKeyEvent& event)
{
    switch (event.key())
    {
    case Qt::Key_Left:
        return Vector3d(-1.0, 0.0, 0.0);
    case Qt::Key_Right:
        return Vector3d(1.0, 0.0, 0.0);
    case Qt::Key_Up:
        return Vector3d(0.0, 1.0, 0.0);
    case Qt::Key_Down:
        return Vector3d(0.0, -1.0, 0.0);
    default:
        return std::nullopt;
    }
}

Vector3d NextGridPoint(const Vector3d& from, const Vector3d& way, double step)
{
    return {NextCoordinate(from.x(), way.x(), step), NextCoordinate(from.y(), way.y(), step), 0.0};
}

Vector3d OnGrid(const Vector3d& from, const Vector3d& way, double step)
{
    return {way.x() == 0.0 ? NearestMultiple(from.x(), step) : from.x(),
            way.y() == 0.0 ? NearestMultiple(from.y(), step) : from.y(), 0.0};
}

void PaintWalkedCursor(QPainter& painter, const QPointF& pixel, const QPalette& palette)
{
    constexpr double Arm = 14.0;
    painter.save();
    for (const auto& [colour, width] : {std::pair(palette.color(QPalette::Base), 4.0),
                                        std::pair(palette.color(QPalette::Text), 2.0)})
    {
        painter.setPen(QPen(colour, width));
        painter.drawLine(pixel - QPointF(Arm, 0.0), pixel + QPointF(Arm, 0.0));
        painter.drawLine(pixel - QPointF(0.0, Arm), pixel + QPointF(0.0, Arm));
    }
    painter.restore();
}

}

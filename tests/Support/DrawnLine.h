#pragma once

#include <QString>
#include <QVector>

#include <array>
#include <cstddef>

namespace vesk
{

/// A line of a drawing, as stored in its model file.
struct DrawnLine
{
    std::array<double, 3> start{};
    std::array<double, 3> end{};
    QString style;
    QString colour;

    /// From start to end along an axis: 0 is x.
    double GetWay(std::size_t axis) const { return end[axis] - start[axis]; }
    double GetLength() const;

    /// Counter-clockwise from x, in degrees, above -180 up to 180.
    double GetAngle() const;
};

/// The lines of a model file, in file order; empty if it cannot be read.
QVector<DrawnLine> ReadLines(const QString& modelFile);

/// The difference between two angles, in degrees, ignoring full rotations.
double AngleBetween(double left, double right);

}

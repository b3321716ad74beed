#pragma once

#include <QString>
#include <QVector>

#include <array>
#include <cstddef>

/// A line of a model file.
struct DrawnLine
{
    std::array<double, 3> start;
    std::array<double, 3> end;

    /// From start to end along an axis: 0 is x.
    double Way(std::size_t axis) const { return end[axis] - start[axis]; }
    double Length() const;

    /// In degrees, above -180 up to 180.
    double Angle() const;
};

/// The lines of a model file; empty when it cannot be read.
QVector<DrawnLine> ReadModel(const QString& path);

/// The whole file.
QByteArray ReadFile(const QString& path);

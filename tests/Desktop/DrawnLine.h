#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace vesk
{

/// A line of a drawing, as its model file holds it.
struct DrawnLine
{
    double start[3] = {};
    double end[3] = {};
    QString style;
    QString colour;

    double GetLength() const;

    /// Counter-clockwise from x, in degrees, above -180 up to 180.
    double GetAngle() const;
};

/// The lines of a model file, in its order.
QVector<DrawnLine> ReadLines(const QString& modelFile);

/// The bytes of a file, empty when it cannot be read.
QByteArray ReadBytes(const QString& file);

/// How far two angles are apart, in degrees, turns left out.
double AngleBetween(double left, double right);

}

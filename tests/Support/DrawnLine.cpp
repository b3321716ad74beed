#include "Support/DrawnLine.h"

#include "Support/FileBytes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

#include <cmath>

namespace vesk
{

namespace
{

std::array<double, 3> ReadPoint(const QJsonValue& json)
{
    const QJsonArray point = json.toArray();
    return {point.at(0).toDouble(), point.at(1).toDouble(), point.at(2).toDouble()};
}

}

double DrawnLine::GetLength() const
{
    return std::hypot(GetWay(0), GetWay(1), GetWay(2));
}

double DrawnLine::GetAngle() const
{
    return qRadiansToDegrees(std::atan2(GetWay(1), GetWay(0)));
}

QVector<DrawnLine> ReadLines(const QString& modelFile)
{
    QVector<DrawnLine> lines;
    const QJsonObject model = QJsonDocument::fromJson(ReadBytes(modelFile)).object();
    for (const QJsonValue entity : model["entities"].toArray())
    {
        if (entity["type"].toString() != "line")
            continue;
        lines.push_back({ReadPoint(entity["start"]), ReadPoint(entity["end"]),
                         entity["style"].toString(), entity["colour"].toString()});
    }
    return lines;
}

double AngleBetween(double left, double right)
{
    return std::abs(std::remainder(left - right, 360.0));
}

}

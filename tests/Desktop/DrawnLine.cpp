#include "Desktop/DrawnLine.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtMath>

#include <cmath>

namespace vesk
{

namespace
{

void ReadPoint(const QJsonValue& json, double (&point)[3])
{
    for (int i = 0; i < 3; ++i)
        point[i] = json.toArray().at(i).toDouble();
}

}

double DrawnLine::GetLength() const
{
    return std::hypot(end[0] - start[0], end[1] - start[1], end[2] - start[2]);
}

double DrawnLine::GetAngle() const
{
    return qRadiansToDegrees(std::atan2(end[1] - start[1], end[0] - start[0]));
}

QVector<DrawnLine> ReadLines(const QString& modelFile)
{
    QVector<DrawnLine> lines;
    const QJsonObject model = QJsonDocument::fromJson(ReadBytes(modelFile)).object();
    for (const QJsonValue entity : model["entities"].toArray())
    {
        if (entity["type"].toString() != "line")
            continue;
        DrawnLine line;
        ReadPoint(entity["start"], line.start);
        ReadPoint(entity["end"], line.end);
        line.style = entity["style"].toString();
        line.colour = entity["colour"].toString();
        lines << line;
    }
    return lines;
}

QByteArray ReadBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double AngleBetween(double left, double right)
{
    return std::abs(std::remainder(left - right, 360.0));
}

}

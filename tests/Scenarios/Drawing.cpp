#include "Drawing.h"

#include <nlohmann/json.hpp>

#include <QFile>

#include <cmath>

double DrawnLine::Length() const
{
    return std::hypot(Way(0), Way(1), Way(2));
}

double DrawnLine::Angle() const
{
    return std::atan2(Way(1), Way(0)) * 180.0 / std::acos(-1.0);
}

QVector<DrawnLine> ReadModel(const QString& path)
{
    const nlohmann::json model =
        nlohmann::json::parse(ReadFile(path).toStdString(), nullptr, false);
    QVector<DrawnLine> lines;
    if (model.is_discarded())
        return lines;
    for (const nlohmann::json& entity : model["entities"])
        lines.push_back({entity["start"], entity["end"]});
    return lines;
}

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#include "Output/NamedDxfUnit.h"

#include <algorithm>

const QVector<NamedDxfUnit>& NamedDxfUnits()
{
    static const QVector<NamedDxfUnit> s_units = {
        {QStringLiteral("mm"), QStringLiteral("毫米")},
        {QStringLiteral("cm"), QStringLiteral("厘米")},
        {QStringLiteral("m"), QStringLiteral("米")},
        {QStringLiteral("in"), QStringLiteral("英寸")},
        {QStringLiteral("ft"), QStringLiteral("英尺")},
    };
    return s_units;
}

bool IsDxfUnit(const QString& name)
{
    const QVector<NamedDxfUnit>& units = NamedDxfUnits();
    return std::any_of(units.begin(), units.end(),
                       [&name](const NamedDxfUnit& unit) { return unit.name == name; });
}

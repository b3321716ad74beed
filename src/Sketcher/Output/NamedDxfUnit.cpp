#include "Output/NamedDxfUnit.h"

#include "Model/UiText.h"

#include <algorithm>

const QVector<NamedDxfUnit>& NamedDxfUnits()
{
    static const QVector<NamedDxfUnit> s_units = {
        {QStringLiteral("mm"), "毫米"_source}, {QStringLiteral("cm"), "厘米"_source},
        {QStringLiteral("m"), "米"_source},    {QStringLiteral("in"), "英寸"_source},
        {QStringLiteral("ft"), "英尺"_source},
    };
    return s_units;
}

bool IsDxfUnit(const QString& name)
{
    const QVector<NamedDxfUnit>& units = NamedDxfUnits();
    return std::any_of(units.begin(), units.end(),
                       [&name](const NamedDxfUnit& unit) { return unit.name == name; });
}

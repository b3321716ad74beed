#include "View/EntityText.h"

#include "Model/ShapeKind.h"
#include "Model/ShapeProperty.h"
#include "Model/SketchContent.h"
#include "Model/UiText.h"

#include "Dimension/LengthUnit.h"
#include "Dimension/TemporaryDimensionStyle.h"
#include "HostUi/NumberText.h"
#include "HostUi/QtText.h"

#include <QStringList>

using namespace vesk;

namespace
{

/// The properties that do not depend on the position.
constexpr const wchar_t* MainProperties[] = {L"length", L"angle", L"radius", L"width", L"height"};

QString DescribeProperty(const ShapeProperty& property, double value)
{
    const TemporaryDimensionStyle style;
    const QString caption = ToQString(Tr(property.caption));
    if (property.isAngle)
        return QStringLiteral("%1 %2°").arg(caption,
                                            ToLocalText(value, style.GetSecondValueDecimals()));
    return QStringLiteral("%1 %2 %3")
        .arg(caption, ToLocalText(style.ToShown(value), style.GetFirstValueDecimals()),
             ToQString(LengthUnit::GetCurrent().GetSymbol()));
}

}

QString DescribeEntity(const Entity& entity)
{
    QStringList dimensions;
    for (const wchar_t* name : MainProperties)
    {
        if (const ShapeProperty* pProperty = FindProperty(entity.shape, name))
            dimensions << DescribeProperty(*pProperty, pProperty->get(entity.shape));
    }
    return "%1 #%2：%3"_tr.arg(ToQString(Tr(KindOf(entity.shape).caption)))
        .arg(entity.id)
        .arg(dimensions.join("，"_tr));
}

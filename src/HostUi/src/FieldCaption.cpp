#include "HostUi/FieldCaption.h"

namespace vesk
{

QString FieldCaption(InputState field)
{
    switch (field)
    {
    case InputState::IS_Length:
        return QStringLiteral("长度");
    case InputState::IS_Angle:
        return QStringLiteral("角度");
    case InputState::IS_Radius:
        return QStringLiteral("半径");
    case InputState::IS_CentralAngle:
        return QStringLiteral("圆心角");
    case InputState::IS_Width:
        return QStringLiteral("宽度");
    case InputState::IS_Height:
        return QStringLiteral("高度");
    default:
        return QString();
    }
}

}

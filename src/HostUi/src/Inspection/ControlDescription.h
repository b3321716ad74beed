#pragma once

#include <nlohmann/json.hpp>

class QObject;
class QRect;
class QWidget;

namespace vesk
{

/// The position of a part of a widget on screen, as [x, y, width, height] in global device pixels.
nlohmann::ordered_json DescribeRect(const QWidget& widget, const QRect& part);

/// What the user sees of a control or a menu entry.
nlohmann::ordered_json DescribeControl(QObject& object);

}

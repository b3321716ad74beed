#pragma once

#include "Model/Shape.h"

class QPainter;
class QPen;
class QRectF;

namespace vesk
{
class IModelView;
}

/// Paints the part of a shape's outline that is visible in a rectangle of pixels.
void PaintShape(QPainter& painter, const QPen& pen, const Shape& shape,
                const vesk::IModelView& modelView, const QRectF& visible);

#pragma once

#include "Model/Snapper.h"

class QPainter;
class QPointF;
class QString;

/// The name of a snap, as the user knows it.
QString SnapCaption(Snapper::Kind kind);

/// Paints the mark of a snap, with its name, at a pixel position.
void PaintSnapMarker(QPainter& painter, Snapper::Kind kind, const QPointF& position);

#pragma once

#include "Model/Snapper.h"

class QPainter;
class QPalette;
class QPointF;
class QString;

/// The name of a snap as shown to the user.
QString SnapCaption(Snapper::Kind kind);

/// Paints the mark and name of a snap at a pixel position, on the Base of the palette.
void PaintSnapMarker(QPainter& painter, Snapper::Kind kind, const QPointF& position,
                     const QPalette& palette);

#pragma once

#include <QIcon>

class QColor;

/// An icon filled with a colour, framed so that it can be seen on any background.
QIcon MakeColourSwatch(const QColor& colour);

#pragma once

#include <QList>
#include <QRect>

class QDockWidget;

namespace vesk
{

/// True when the user can get hold of a floating pane: enough of the title's width in all its
/// height is on a screen, and so is the close button where there is one.
bool IsInReach(const QDockWidget& pane);

/// Of several screens the one that shows most of a place or, when none does, whose centre is
/// nearest to the place's; the place itself when there are no screens.
QRect FindNearestScreen(const QList<QRect>& screens, const QRect& place);

/// Where a floating pane is wholly on the screen that it is on, or nearest to: its frame, made
/// smaller where the screen is.
QRect PlaceInReach(const QDockWidget& pane);

}

#pragma once

#include <QList>
#include <QRect>

class QDockWidget;

namespace vesk
{

/// True if a floating pane is within the user's reach: enough of the title's width, at its full
/// height, is on a screen, and so is the close button if there is one.
bool IsInReach(const QDockWidget& pane);

/// Of several screens the one that shows most of a rectangle or, if none does, the one whose centre
/// is nearest to the rectangle's; the rectangle itself if there are no screens.
QRect FindNearestScreen(const QList<QRect>& screens, const QRect& place);

/// The frame of a floating pane, moved completely onto the screen that it is on or nearest to, and
/// reduced to the screen's size if necessary.
QRect PlaceInReach(const QDockWidget& pane);

}

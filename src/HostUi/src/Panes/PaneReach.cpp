#include "Panes/PaneReach.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace vesk
{
namespace
{

/// How much of a title's width must be on a screen, in pixels.
constexpr int LeastTitleWidth = 64;

/// The height that counts as the title of a pane without one.
constexpr int StripHeight = 32;

/// The parts by which the user moves and closes a floating pane, in global pixels.
struct Handle
{
    QRect title;
    QRect closeButton; ///< Empty if there is none.
};

/// For a pane whose title the window system draws: above the pane, with the close button at its
/// end.
Handle HandleInFrame(const QDockWidget& pane)
{
    const QRect inner = pane.geometry();
    const QRect frame = pane.frameGeometry();
    // The frame is unknown until the pane is shown.
    const int known = inner.top() - frame.top();
    const int height =
        known > 0 ? known : pane.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &pane);
    const QRect title(frame.left(), inner.top() - height, frame.width(), height);
    if (!pane.features().testFlag(QDockWidget::DockWidgetClosable))
        return {title, {}};
    const bool isMirrored = pane.layoutDirection() == Qt::RightToLeft;
    const int left = isMirrored ? title.left() : title.right() - height + 1;
    return {title, {left, title.top(), height, height}};
}

/// For a pane with a title of its own: down to its content.
Handle HandleInside(const QDockWidget& pane)
{
    pane.layout()->activate();
    const QRect whole = pane.geometry();
    const QWidget* pContent = pane.widget();
    const auto* pButton = pane.findChild<QAbstractButton*>(
        QStringLiteral("qt_dockwidget_closebutton"), Qt::FindDirectChildrenOnly);
    const bool hasButton = pButton != nullptr && !pButton->isHidden();
    int height = hasButton ? pButton->geometry().bottom() + 1 : 0;
    // A pane whose title has no height is to show none, however wide a frame the style draws.
    if (const QWidget* pOwnTitle = pane.titleBarWidget())
        height = pOwnTitle->height() > 0 ? pOwnTitle->geometry().bottom() + 1 : 0;
    else if (pContent != nullptr && pContent->y() > 0)
        height = pContent->y();
    const int titleHeight = height > 0 ? height : std::min(StripHeight, whole.height());
    return {QRect(whole.topLeft(), QSize(whole.width(), titleHeight)),
            hasButton ? pButton->geometry().translated(whole.topLeft()) : QRect()};
}

Handle HandleOf(const QDockWidget& pane)
{
    return pane.windowFlags().testFlag(Qt::WindowTitleHint) ? HandleInFrame(pane)
                                                            : HandleInside(pane);
}

/// What panes may cover of each screen.
QList<QRect> Screens()
{
    QList<QRect> screens;
    for (const QScreen* pScreen : QGuiApplication::screens())
        screens.append(pScreen->availableGeometry());
    return screens;
}

template <class Condition>
bool IsSoOnAScreen(Condition condition)
{
    const QList<QRect> screens = Screens();
    return std::any_of(screens.begin(), screens.end(), condition);
}

/// The distance of a rectangle from a screen; if they overlap, minus the common area.
qint64 DistanceFrom(const QRect& screen, const QRect& place)
{
    const QRect seen = screen & place;
    if (!seen.isEmpty())
        return -qint64(seen.width()) * seen.height();
    return (screen.center() - place.center()).manhattanLength();
}

}

QRect FindNearestScreen(const QList<QRect>& screens, const QRect& place)
{
    const auto nearest = std::min_element(
        screens.begin(), screens.end(), [&place](const QRect& one, const QRect& other) {
            return DistanceFrom(one, place) < DistanceFrom(other, place);
        });
    return nearest != screens.end() ? *nearest : place;
}

bool IsInReach(const QDockWidget& pane)
{
    const Handle handle = HandleOf(pane);
    const QRect& title = handle.title;
    const bool canBeHeld = IsSoOnAScreen([&title](const QRect& screen) {
        const QRect seen = screen & title;
        return seen.width() >= std::min(LeastTitleWidth, title.width()) &&
               seen.height() == title.height();
    });
    const QRect& button = handle.closeButton;
    return canBeHeld && (button.isEmpty() || IsSoOnAScreen([&button](const QRect& screen) {
                             return screen.contains(button);
                         }));
}

QRect PlaceInReach(const QDockWidget& pane)
{
    QRect place = pane.frameGeometry() | HandleOf(pane).title;
    const QRect screen = FindNearestScreen(Screens(), place);
    place.setSize(place.size().boundedTo(screen.size()));
    place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() - place.height() + 1));
    return place;
}

}

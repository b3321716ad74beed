#include "NoteLayout.h"

#include <algorithm>

namespace vesk
{
namespace
{

constexpr int Gap = 4;

/// Room for the cross of the cursor.
constexpr int CursorReach = 14;

}

NoteLayout::NoteLayout(const QSize& view, const QRect& editor, const std::optional<QPoint>& cursor)
    : m_view(QPoint(0, 0), view), m_editor(editor), m_taken{editor}
{
    if (cursor.has_value())
        m_taken.emplace_back(*cursor - QPoint(CursorReach, CursorReach),
                             *cursor + QPoint(CursorReach, CursorReach));
}

QRect NoteLayout::PlaceBelow(const QSize& size)
{
    return Place(QRect(QPoint(m_editor.left(), m_editor.bottom() + 1 + Gap), size));
}

QRect NoteLayout::PlaceBeside(const QSize& size)
{
    const int top = m_editor.top() + (m_editor.height() - size.height()) / 2;
    return Place(QRect(QPoint(m_editor.right() + 1 + Gap, top), size));
}

QRect NoteLayout::Place(const QRect& wanted)
{
    const QSize size = wanted.size().boundedTo(m_view.size());
    const std::vector<int> lefts = FindStops(wanted.left(), size.width(), m_view.width(), true);
    const std::vector<int> tops = FindStops(wanted.top(), size.height(), m_view.height(), false);
    std::optional<QRect> nearest;
    const auto distance = [&wanted](const QRect& rect) {
        return (rect.topLeft() - wanted.topLeft()).manhattanLength();
    };
    for (const int left : lefts)
    {
        for (const int top : tops)
        {
            const QRect rect(QPoint(left, top), size);
            if (IsFree(rect) && (!nearest || distance(rect) < distance(*nearest)))
                nearest = rect;
        }
    }
    const QRect place = nearest.value_or(QRect(QPoint(lefts.front(), tops.front()), size));
    m_taken.push_back(place);
    return place;
}

/// The wanted position inside the view, and those at which the note touches something: the nearest
/// free place is at such positions.
std::vector<int> NoteLayout::FindStops(int wanted, int length, int viewLength, bool isAcross) const
{
    std::vector<int> stops{qBound(0, wanted, viewLength - length)};
    for (const QRect& taken : m_taken)
    {
        const int begin = isAcross ? taken.left() : taken.top();
        const int end = isAcross ? taken.right() : taken.bottom();
        stops.push_back(begin - Gap - length);
        stops.push_back(end + 1 + Gap);
    }
    return stops;
}

bool NoteLayout::IsFree(const QRect& rect) const
{
    return m_view.contains(rect) &&
           std::none_of(m_taken.begin(), m_taken.end(),
                        [&rect](const QRect& taken) { return taken.intersects(rect); });
}

}

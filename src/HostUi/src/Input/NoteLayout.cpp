#include "Input/NoteLayout.h"

#include <algorithm>

namespace vesk
{
namespace
{

constexpr int Gap = 4;

/// Space for the cross of the cursor.
constexpr int CursorReach = 14;

enum class Side
{
    Left,
    Top,
};

/// A coordinate, and all those at which something of that length adjoins an occupied rectangle.
std::vector<int> FindStops(int position, int length, const std::vector<QRect>& taken, Side side)
{
    std::vector<int> stops{position};
    for (const QRect& rect : taken)
    {
        const int begin = side == Side::Left ? rect.left() : rect.top();
        const int end = side == Side::Left ? rect.right() : rect.bottom();
        stops.push_back(begin - Gap - length);
        stops.push_back(end + 1 + Gap);
    }
    return stops;
}

bool IsFree(const QRect& rect, const std::vector<QRect>& taken)
{
    return std::none_of(taken.begin(), taken.end(),
                        [&rect](const QRect& other) { return other.intersects(rect); });
}

}

NoteLayout::NoteLayout(const EditorScene& scene)
    : m_view(QPoint(0, 0), scene.view), m_editor(scene.editor), m_taken{scene.editor},
      m_texts(scene.texts)
{
    if (scene.cursor.has_value())
        m_taken.emplace_back(*scene.cursor - QPoint(CursorReach, CursorReach),
                             *scene.cursor + QPoint(CursorReach, CursorReach));
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
    const QRect note(wanted.topLeft(), wanted.size().boundedTo(m_view.size()));
    Rects all = m_taken;
    all.insert(all.end(), m_texts.begin(), m_texts.end());
    std::optional<QRect> place = FindNearest(note, all);
    if (!place.has_value())
        place = FindNearest(note, m_taken);
    m_taken.push_back(place.value_or(QRect(Clamp(note), note.size())));
    return m_taken.back();
}

/// The nearest free position is the preferred one, clamped to the view, or adjoins something.
std::optional<QRect> NoteLayout::FindNearest(const QRect& wanted, const Rects& taken) const
{
    const QPoint clamped = Clamp(wanted);
    const QRect first(clamped, wanted.size());
    if (m_view.contains(first) && IsFree(first, taken))
        return first;
    const std::vector<int> lefts = FindStops(clamped.x(), wanted.width(), taken, Side::Left);
    const std::vector<int> tops = FindStops(clamped.y(), wanted.height(), taken, Side::Top);
    std::optional<QRect> nearest;
    const auto distance = [&wanted](const QRect& rect) {
        return (rect.topLeft() - wanted.topLeft()).manhattanLength();
    };
    for (const int left : lefts)
    {
        for (const int top : tops)
        {
            const QRect rect(QPoint(left, top), wanted.size());
            // Whether it is free takes longest to find out.
            const bool isNearer = !nearest || distance(rect) < distance(*nearest);
            if (isNearer && m_view.contains(rect) && IsFree(rect, taken))
                nearest = rect;
        }
    }
    return nearest;
}

QPoint NoteLayout::Clamp(const QRect& wanted) const
{
    return {qBound(0, wanted.left(), m_view.width() - wanted.width()),
            qBound(0, wanted.top(), m_view.height() - wanted.height())};
}

}

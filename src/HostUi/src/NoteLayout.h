#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>
#include <vector>

namespace vesk
{

/// Where something may stand that belongs to the editor: the nearest free place to the one that is
/// wanted, inside the view, off the editor, off the cursor and off what was placed before.
class NoteLayout
{
public:
    /// All in the view's pixels. The cursor may be elsewhere.
    NoteLayout(const QSize& view, const QRect& editor, const std::optional<QPoint>& cursor);

    /// Finds the place of a note of that size. Where there is no room, it is inside the view as far
    /// as it can be.
    QRect PlaceBelow(const QSize& size);
    QRect PlaceBeside(const QSize& size);

private:
    QRect Place(const QRect& wanted);
    std::vector<int> FindStops(int wanted, int length, int viewLength, bool isAcross) const;
    bool IsFree(const QRect& rect) const;

    QRect m_view;
    QRect m_editor;

    /// What the notes keep off.
    std::vector<QRect> m_taken;
};

}

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>
#include <vector>

namespace vesk
{

/// What a view shows about an editor, in the view's pixels.
struct EditorScene
{
    QSize view;
    QRect editor;
    std::optional<QPoint> cursor; ///< Nothing while it is elsewhere.
    std::vector<QRect> texts;     ///< Of the dimensions.
};

/// Where something may stand that belongs to the editor: the nearest free place to the one that is
/// wanted, inside the view, off the editor, off the cursor and off what was placed before. Where
/// there is room, off the dimensions' texts too.
class NoteLayout
{
public:
    explicit NoteLayout(const EditorScene& scene);

    /// Finds the place of a note of that size. Where there is no room, it is inside the view as far
    /// as it can be.
    QRect PlaceBelow(const QSize& size);
    QRect PlaceBeside(const QSize& size);

private:
    using Rects = std::vector<QRect>;

    QRect Place(const QRect& wanted);
    std::optional<QRect> FindNearest(const QRect& wanted, const Rects& taken) const;
    QPoint Clamp(const QRect& wanted) const;

    QRect m_view;
    QRect m_editor;

    /// What the notes keep off, and what they would rather not cover.
    Rects m_taken;
    Rects m_texts;
};

}

#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include <optional>
#include <vector>

namespace vesk
{

/// What a view shows around an editor, in the view's pixels.
struct EditorScene
{
    QSize view;
    QRect editor;
    std::optional<QPoint> cursor; ///< Nothing while it is elsewhere.
    std::vector<QRect> texts;     ///< Of the dimensions.

    friend bool operator==(const EditorScene& left, const EditorScene& right)
    {
        return left.view == right.view && left.editor == right.editor &&
               left.cursor == right.cursor && left.texts == right.texts;
    }
};

/// Positions notes that belong to the editor: as near as possible to the preferred position, inside
/// the view, clear of the editor, the cursor and earlier notes. If there is room, clear of the
/// dimensions' texts too.
class NoteLayout
{
public:
    explicit NoteLayout(const EditorScene& scene);

    /// Positions a note of that size. If there is no room, it is kept inside the view as far as
    /// possible.
    QRect PlaceBelow(const QSize& size);
    QRect PlaceBeside(const QSize& size);

private:
    using Rects = std::vector<QRect>;

    QRect Place(const QRect& wanted);
    std::optional<QRect> FindNearest(const QRect& wanted, const Rects& taken) const;
    QPoint Clamp(const QRect& wanted) const;

    QRect m_view;
    QRect m_editor;

    /// What the notes must not cover, and what they should not cover if there is room.
    Rects m_taken;
    Rects m_texts;
};

}

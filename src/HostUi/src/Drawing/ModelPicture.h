#pragma once

#include <QPixmap>
#include <QRectF>

#include <cstddef>
#include <deque>
#include <functional>

class QTransform;

namespace vesk
{

/// The picture of a model, painted in slices between which the window lives.
///
/// While only the model changes, the last finished picture is shown until the next one is; without
/// one, what has been painted so far is. A picture that is under way when the model changes is
/// finished nevertheless, and painted once more: with changes that come faster than it is painted
/// none would ever be seen.
///
/// When the model is seen from elsewhere, what is shown is moved there, and the gaps at its edges
/// are filled before the next picture is begun. That one is the first to be exact again: one that
/// was under way when the model moved is given up.
///
/// What the model has before its top is kept apart, if painting it takes long: when only the top
/// changes, the next picture begins with it.
class ModelPicture final
{
public:
    /// Paints a part of what the model has in an area, in pixels, from a position on, and returns
    /// the position after it; the same one if nothing is left. Positions begin with 0.
    using PaintPart =
        std::function<std::size_t(QPainter& painter, const QRectF& area, std::size_t begin)>;

    /// Nothing of it is of use any more: the model appears in other colours.
    void Drop();

    /// The position at which the top of the model begins; 0, as at first, if all belongs to it.
    void SetTop(std::size_t position) { m_top = position; }

    /// The model is another one.
    void Renew();

    /// The same, but all before its top is unchanged.
    void RenewTop();

    /// The model has more after the last position; all before is unchanged.
    void Extend() { m_isFinished = false; }

    /// The model is seen from elsewhere: what was at a pixel is now where `move` maps it to.
    /// `ground` has the picture's new size and its background. Begun before.
    void Move(const QTransform& move, const QPixmap& ground);

    bool IsFinished() const { return m_isFinished; }

    /// True if the last finished picture took one slice: so small a model is painted rather than
    /// moved.
    bool IsSmall() const { return m_isSmall; }

    /// False if the next slice is the first one.
    bool IsBegun() const { return !m_next.isNull(); }

    /// Begins the picture with a ground in its size and background.
    void Begin(const QPixmap& ground);

    /// Paints parts for a bounded time. Begun and not finished before.
    void PaintSlice(const PaintPart& paintPart);

    /// True if there are places at which nothing is shown.
    bool HasGaps() const { return !m_gaps.empty(); }

    /// Fills gaps for a bounded time, the oldest first.
    void FillGaps(const PaintPart& paintPart);

    /// What is to be shown; null if nothing was painted yet.
    const QPixmap& GetShown() const { return m_former.isNull() ? m_next : m_former; }

    /// True if slices change what is shown only when they finish the picture.
    bool IsBehind() const { return !m_former.isNull() && !HasGaps(); }

private:
    /// A part of m_former, in pixels, that shows the model only up to a position.
    struct Gap
    {
        QRectF area;
        std::size_t position;
    };

    void MoveGaps(const QTransform& move, const QRectF& view);
    void KeepBelow();

    QPixmap m_former; ///< Shown instead of m_next; null if there is none for what that is to show.
    std::deque<Gap> m_gaps; ///< The oldest first.
    QPixmap m_next;
    std::size_t m_position = 0; ///< Of what is painted next into m_next.
    int m_sliceCount = 0;       ///< Of m_next.
    std::size_t m_top = 0;
    QPixmap m_below; ///< The model before its top; null if that is not known or not worth it.
    bool m_isBelowOutdated = false; ///< Since m_next was begun.
    bool m_isFinished = false;      ///< m_next shows everything.
    bool m_isOutdated = false;      ///< The model changed after m_next was begun.
    bool m_isSmall = true;
};

}

#pragma once

#include <QPixmap>

#include <cstddef>
#include <functional>

namespace vesk
{

/// The picture of a model, painted in slices between which the window lives.
///
/// While only the model changes, the last finished picture is shown until the next one is; without
/// one, what has been painted so far is. A picture that is under way when the model changes is
/// finished nevertheless, and painted once more: with changes that come faster than it is painted
/// none would ever be seen.
class ModelPicture final
{
public:
    /// Paints a part of the model from a position on and returns the position after it; the same
    /// one if nothing is left. Positions begin with 0.
    using PaintPart = std::function<std::size_t(QPainter& painter, std::size_t begin)>;

    /// Nothing of it is of use any more: the model appears at other places or in other colours.
    void Drop();

    /// The model is another one.
    void Renew();

    /// The model has more after the last position; all before is unchanged.
    void Extend() { m_isFinished = false; }

    bool IsFinished() const { return m_isFinished; }

    /// False if the next slice is the first one.
    bool IsBegun() const { return !m_next.isNull(); }

    /// Begins the picture with a ground in its size and background.
    void Begin(const QPixmap& ground) { m_next = ground; }

    /// Paints parts for a bounded time. Begun and not finished before.
    void PaintSlice(const PaintPart& paintPart);

    /// What is to be shown; null if nothing was painted yet.
    const QPixmap& GetShown() const { return m_finished.isNull() ? m_next : m_finished; }

private:
    QPixmap m_finished; ///< Null if there is none for what m_next is to show.
    QPixmap m_next;
    std::size_t m_position = 0; ///< Of what is painted next into m_next.
    bool m_isFinished = false;  ///< m_next shows everything.
    bool m_isOutdated = false;  ///< The model changed after m_next was begun.
};

}

#include "Drawing/ModelPicture.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QRegion>
#include <QTransform>
#include <QtMath>

#include <utility>

namespace vesk
{

namespace
{

/// How long the window may have to wait.
class SliceLimit final
{
public:
    explicit SliceLimit(qint64 mostMs) : m_mostMs(mostMs) { m_sinceBegin.start(); }

    /// Counts a part; false if that is one too many.
    bool Allows()
    {
        constexpr int MostParts = 20;
        return m_partCount++ < MostParts && m_sinceBegin.elapsed() < m_mostMs;
    }

private:
    const qint64 m_mostMs;
    QElapsedTimer m_sinceBegin;
    int m_partCount = 0;
};

/// The area of a pixmap, as a painter on it counts.
QRectF AreaOf(const QPixmap& pixmap)
{
    return {QPointF(), QSizeF(pixmap.size()) / pixmap.devicePixelRatioF()};
}

bool IsShift(const QTransform& move)
{
    return move.type() <= QTransform::TxTranslate;
}

/// The whole pixels that touch an area.
QRectF PixelsOf(const QRectF& area)
{
    return QRectF(area.toAlignedRect());
}

/// The whole pixels that lie in an area.
QRect PixelsWithin(const QRectF& area)
{
    const QPoint topLeft(qCeil(area.left()), qCeil(area.top()));
    const QPoint bottomRight(qFloor(area.right()) - 1, qFloor(area.bottom()) - 1);
    return {topLeft, bottomRight};
}

}

void ModelPicture::Drop()
{
    const bool isSmall = m_isSmall;
    const std::size_t top = m_top;
    *this = ModelPicture();
    m_isSmall = isSmall;
    m_top = top;
}

void ModelPicture::Renew()
{
    m_below = QPixmap();
    m_isBelowOutdated = true;
    RenewTop();
}

void ModelPicture::RenewTop()
{
    if (!IsBegun())
        return;
    m_isOutdated = !m_isFinished;
    if (m_isOutdated)
        return;
    m_former = std::exchange(m_next, QPixmap());
    m_isFinished = false;
}

void ModelPicture::Move(const QTransform& move, const QPixmap& ground)
{
    // A picture that is not whole is one with a gap everywhere.
    if (m_former.isNull() && !m_isFinished)
        m_gaps.push_front({AreaOf(m_next), m_position});
    QPixmap moved = ground;
    {
        QPainter painter(&moved);
        painter.setRenderHint(QPainter::SmoothPixmapTransform, !IsShift(move));
        painter.setTransform(move);
        painter.drawPixmap(0, 0, GetShown());
    }
    MoveGaps(move, AreaOf(ground));
    m_former = moved;
    m_next = QPixmap();
    m_below = QPixmap();
    m_isFinished = false;
    m_isOutdated = false;
}

void ModelPicture::Begin(const QPixmap& ground)
{
    const bool isBelowKept = !m_below.isNull();
    m_next = isBelowKept ? m_below : ground;
    m_position = isBelowKept ? m_top : 0;
    // What is kept took a slice at least.
    m_sliceCount = isBelowKept ? 1 : 0;
    m_isBelowOutdated = false;
}

void ModelPicture::PaintSlice(const PaintPart& paintPart)
{
    ++m_sliceCount;
    {
        QPainter painter(&m_next);
        painter.setRenderHint(QPainter::Antialiasing);
        SliceLimit limit(10);
        while (!m_isFinished && limit.Allows())
        {
            const std::size_t begin =
                std::exchange(m_position, paintPart(painter, AreaOf(m_next), m_position));
            m_isFinished = m_position == begin;
            if (m_position == m_top && !m_isFinished)
                KeepBelow();
        }
    }
    if (!m_isFinished)
        return;
    m_former = QPixmap();
    m_gaps.clear();
    m_isSmall = m_sliceCount == 1;
    if (std::exchange(m_isOutdated, false))
        RenewTop();
}

/// A copy costs less than a slice.
void ModelPicture::KeepBelow()
{
    if (m_sliceCount > 1 && !m_isBelowOutdated)
        m_below = m_next.copy();
}

void ModelPicture::FillGaps(const PaintPart& paintPart)
{
    QPainter painter(&m_former);
    painter.setRenderHint(QPainter::Antialiasing);
    // Less: the frame has also moved the picture.
    SliceLimit limit(6);
    while (HasGaps() && limit.Allows())
    {
        Gap& gap = m_gaps.front();
        painter.setClipRect(gap.area);
        const std::size_t begin =
            std::exchange(gap.position, paintPart(painter, gap.area, gap.position));
        if (gap.position == begin)
            m_gaps.pop_front();
    }
}

/// Positions stay: what a gap still lacks is the same at another place.
void ModelPicture::MoveGaps(const QTransform& move, const QRectF& view)
{
    std::deque<Gap> moved;
    for (const Gap& gap : m_gaps)
    {
        const QRectF area = PixelsOf(move.mapRect(gap.area)) & view;
        if (!area.isEmpty())
            moved.push_back({area, gap.position});
    }
    const QRegion uncovered =
        QRegion(view.toAlignedRect()) - PixelsWithin(move.mapRect(AreaOf(GetShown())));
    for (const QRect& area : uncovered)
        moved.push_back({QRectF(area), 0});
    m_gaps = std::move(moved);
}

}

#pragma once

#include "Drawing/ModelPicture.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QRectF>
#include <QTransform>

#include <cstddef>
#include <vector>

namespace vesk::test
{

/// A model of rows of pixels, one part each, and its picture.
struct RowsFixture
{
    /// Many more than one slice has.
    static constexpr std::size_t Many = 300;

    static QPixmap Ground()
    {
        QPixmap ground(1, static_cast<int>(Many));
        ground.fill(Qt::white);
        return ground;
    }

    std::size_t PaintPart(QPainter& painter, const QRectF& area, std::size_t begin)
    {
        if (begin >= rowCount)
            return begin;
        areas.push_back(area);
        painter.fillRect(0, static_cast<int>(begin) + shift, 1, 1, colour);
        ++paintedCount;
        return begin + 1;
    }

    void PaintSlice()
    {
        if (!picture.IsBegun())
            picture.Begin(Ground());
        picture.PaintSlice([this](QPainter& painter, const QRectF& area, std::size_t begin) {
            return PaintPart(painter, area, begin);
        });
    }

    void FillGaps()
    {
        picture.FillGaps([this](QPainter& painter, const QRectF& area, std::size_t begin) {
            return PaintPart(painter, area, begin);
        });
    }

    void FillAllGaps()
    {
        while (picture.HasGaps())
            FillGaps();
    }

    /// The model is seen so many rows higher.
    void MoveDown(int rows)
    {
        shift += rows;
        picture.Move(QTransform::fromTranslate(0, rows), Ground());
    }

    void PaintAll()
    {
        while (!picture.IsFinished())
            PaintSlice();
    }

    /// How many rows are shown in a colour.
    int CountShown(const QColor& shown) const
    {
        const QImage image = picture.GetShown().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            count += image.pixelColor(0, y) == shown ? 1 : 0;
        return count;
    }

    std::size_t rowCount = Many;
    QColor colour = Qt::red;
    int shift = 0;
    std::size_t paintedCount = 0;
    std::vector<QRectF> areas; ///< Of the painted parts.
    ModelPicture picture;
};

}

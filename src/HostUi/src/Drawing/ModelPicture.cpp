#include "Drawing/ModelPicture.h"

#include <QElapsedTimer>
#include <QPainter>

#include <utility>

namespace vesk
{

void ModelPicture::Drop()
{
    *this = ModelPicture();
}

void ModelPicture::Renew()
{
    if (!IsBegun())
        return;
    m_isOutdated = !m_isFinished;
    if (m_isOutdated)
        return;
    m_finished = std::exchange(m_next, QPixmap());
    m_position = 0;
    m_isFinished = false;
}

void ModelPicture::PaintSlice(const PaintPart& paintPart)
{
    constexpr qint64 MostMs = 15;
    constexpr int MostParts = 20;
    QElapsedTimer sinceBegin;
    sinceBegin.start();
    {
        QPainter painter(&m_next);
        painter.setRenderHint(QPainter::Antialiasing);
        for (int i = 0; i < MostParts && !m_isFinished && sinceBegin.elapsed() < MostMs; ++i)
        {
            const std::size_t begin = std::exchange(m_position, paintPart(painter, m_position));
            m_isFinished = m_position == begin;
        }
    }
    if (!m_isFinished)
        return;
    m_finished = QPixmap();
    if (std::exchange(m_isOutdated, false))
        Renew();
}

}

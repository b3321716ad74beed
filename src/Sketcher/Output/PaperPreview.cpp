#include "Output/PaperPreview.h"

#include "Model/UiText.h"

#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QResizeEvent>

#include <algorithm>

PaperPreview::PaperPreview(const SketchContent& content) : m_content(content)
{
    constexpr int LeastSide = 160;
    setAlignment(Qt::AlignCenter);
    setMinimumSize(LeastSide, LeastSide);
}

void PaperPreview::Show(const PaperPlacement& placement)
{
    m_placement = placement;
    Draw();
}

/// Does not follow the picture, which follows the size.
QSize PaperPreview::sizeHint() const
{
    constexpr int Side = 420;
    return {Side, Side};
}

void PaperPreview::resizeEvent(QResizeEvent* pEvent)
{
    QLabel::resizeEvent(pEvent);
    Draw();
}

/// A large drawing is shown in part, so that the dialog answers at once.
void PaperPreview::Draw()
{
    constexpr qint64 LongestMs = 100;
    const QSizeF& paper = m_placement.paper;
    if (paper.isEmpty())
        return;
    const double pixels = std::min(width() / paper.width(), height() / paper.height());
    QImage image((paper * pixels * devicePixelRatioF()).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(devicePixelRatioF());
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels, pixels);
    QElapsedTimer time;
    time.start();
    const bool isWhole = PaintOnPaper(painter, m_content, m_placement,
                                      [&time](double) { return time.elapsed() < LongestMs; });
    // White paper must be seen in a light window, too.
    painter.resetTransform();
    painter.setPen(QPen(Qt::gray, 0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(QPointF(), paper * pixels).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.end();
    setPixmap(QPixmap::fromImage(image));
    setToolTip(isWhole ? QString() : "图纸很大，预览只画出一部分；打印是完整的"_tr);
}

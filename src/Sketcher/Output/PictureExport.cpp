#include "Output/PictureExport.h"

#include "Model/SketchContent.h"

#include "Foundation/FileRewriting.h"
#include "HostUi/QtText.h"

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>

namespace
{

/// In millimetres.
constexpr double PictureMargin = 5.0;

/// Paints on a device with that many of its units per millimetre.
bool PaintOnDevice(QPaintDevice& device, double unitsPerMillimetre, const SketchContent& content,
                   const PaperPlacement& placement, const OutputProgress& progress)
{
    QPainter painter(&device);
    if (unitsPerMillimetre != 1.0)
        painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    painter.setRenderHint(QPainter::Antialiasing);
    return PaintOnPaper(painter, content, placement, progress);
}

/// The title in XML: QSvgGenerator writes it as it is.
QString TitleInXml(const std::wstring& name)
{
    QString title = vesk::ToQString(name);
    for (QChar& c : title)
    {
        if (c.category() == QChar::Other_Control || c.isNonCharacter()) // XML has no such ones.
            c = QLatin1Char(' ');
    }
    return title.toHtmlEscaped();
}

bool IsWithin(const QSizeF& size, double greatest)
{
    return size.width() <= greatest && size.height() <= greatest;
}

}

OutputFault WriteOutput(const OutputBytes& made, const QString& path)
{
    if (made.fault != OutputFault::None)
        return made.fault;
    const auto size = static_cast<std::size_t>(made.bytes.size());
    return vesk::RewriteFile(path.toStdString(), {made.bytes.constData(), size})
               ? OutputFault::None
               : OutputFault::CannotWrite;
}

OutputBytes MakeSvg(const SketchContent& content, const OutputProgress& progress)
{
    constexpr int UnitsPerInch = 254;
    constexpr double Greatest = 1e7;
    const std::optional<ShapeBounds> bounds = VisibleBounds(content);
    if (!bounds.has_value())
        return {{}, OutputFault::NothingVisible};
    const auto placement = PaperPlacement::Around(*bounds, 1.0, PictureMargin, 1.0);
    if (!IsWithin(placement.paper, Greatest))
        return {{}, OutputFault::TooLarge};

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(TitleInXml(content.name));
    // The size in the file is the number of units divided by the resolution.
    generator.setResolution(UnitsPerInch);
    generator.setSize((placement.paper * (UnitsPerInch / MillimetresPerInch)).toSize());
    generator.setViewBox(QRectF(QPointF(0.0, 0.0), placement.paper));
    if (!PaintOnDevice(generator, 1.0, content, placement, progress))
        return {{}, OutputFault::Stopped};
    return {buffer.data()};
}

OutputBytes MakePdf(const SketchContent& content, const OutputProgress& progress)
{
    constexpr double PointsPerInch = 72.0;
    constexpr double MillimetresPerPoint = MillimetresPerInch / PointsPerInch;
    constexpr double Greatest = 14400.0 * MillimetresPerPoint;
    const std::optional<ShapeBounds> bounds = VisibleBounds(content);
    if (!bounds.has_value())
        return {{}, OutputFault::NothingVisible};
    // The page has whole points in the file.
    const auto placement = PaperPlacement::Around(*bounds, 1.0, PictureMargin, MillimetresPerPoint);
    if (!IsWithin(placement.paper, Greatest))
        return {{}, OutputFault::TooLarge};

    const auto points = [](double length) {
        return static_cast<int>(std::lround(length / MillimetresPerPoint));
    };
    const QSize page(points(placement.paper.width()), points(placement.paper.height()));
    return MakePdfPage(content, placement,
                       QPageLayout(QPageSize(page, QString(), QPageSize::ExactMatch),
                                   QPageLayout::Portrait, QMarginsF()),
                       progress);
}

OutputBytes MakePdfPage(const SketchContent& content, const PaperPlacement& placement,
                        const QPageLayout& layout, const OutputProgress& progress)
{
    constexpr int Resolution = 1200;
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setTitle(vesk::ToQString(content.name));
        writer.setResolution(Resolution);
        writer.setPageLayout(layout);
        if (!PaintOnDevice(writer, Resolution / MillimetresPerInch, content, placement, progress))
            return {{}, OutputFault::Stopped};
    }
    return {buffer.data()};
}

OutputBytes MakePng(const SketchContent& content, const OutputProgress& progress)
{
    constexpr double PixelsPerMillimetre = 300.0 / MillimetresPerInch;
    constexpr double GreatestSide = 6000.0 / PixelsPerMillimetre - 2.0 * PictureMargin;
    const std::optional<ShapeBounds> bounds = VisibleBounds(content);
    if (!bounds.has_value())
        return {{}, OutputFault::NothingVisible};
    const vesk::Vector3d size = bounds->high - bounds->low;
    const double side = std::max(size.x(), size.y());
    const double scale = side > GreatestSide ? GreatestSide / side : 1.0;
    const auto placement =
        PaperPlacement::Around(*bounds, scale, PictureMargin, 1.0 / PixelsPerMillimetre);

    QImage image((placement.paper * PixelsPerMillimetre).toSize(), QImage::Format_RGB32);
    if (image.isNull())
        return {{}, OutputFault::OutOfMemory};
    image.fill(Qt::white);
    if (!PaintOnDevice(image, PixelsPerMillimetre, content, placement, progress))
        return {{}, OutputFault::Stopped};
    const auto pixelsPerMetre = static_cast<int>(std::lround(PixelsPerMillimetre * 1000.0));
    image.setDotsPerMeterX(pixelsPerMetre);
    image.setDotsPerMeterY(pixelsPerMetre);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG"))
        return {{}, OutputFault::OutOfMemory};
    return {buffer.data()};
}

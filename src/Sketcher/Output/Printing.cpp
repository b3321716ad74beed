#include "Output/Printing.h"

#include "Output/PictureExport.h"
#include "Output/PrintDialog.h"

#include "Foundation/FileRewriting.h"
#include "HostUi/QtText.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

#include <cstddef>

namespace
{

QPageLayout LayoutOf(const PrintJob& job)
{
    return {job.page, job.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()};
}

OutputFault PrintToFile(const SketchContent& content, const PrintJob& job, const QString& path,
                        const OutputProgress& progress)
{
    const OutputBytes made = MakePdfPage(content, job.placement, LayoutOf(job), progress);
    if (made.fault != OutputFault::None)
        return made.fault;
    const bool isWritten = vesk::RewriteFile(
        path.toStdString(), {made.bytes.constData(), static_cast<std::size_t>(made.bytes.size())});
    return isWritten ? OutputFault::None : OutputFault::CannotWrite;
}

}

OutputFault PrintDrawing(const SketchContent& content, const PrintJob& job, const QString& pdfPath,
                         const OutputProgress& progress)
{
    constexpr double MillimetresPerInch = 25.4;
    if (job.printer.isEmpty())
        return PrintToFile(content, job, pdfPath, progress);
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(job.printer);
    printer.setDocName(vesk::ToQString(content.name));
    printer.setFullPage(true);
    printer.setPageLayout(LayoutOf(job));
    if (!printer.isValid())
        return OutputFault::CannotWrite;
    QPainter painter(&printer);
    const double unitsPerMillimetre = printer.resolution() / MillimetresPerInch;
    painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    if (PaintOnPaper(painter, content, job.placement, progress))
        return OutputFault::None;
    // Before the painter ends, which would send the page.
    printer.abort();
    return OutputFault::Stopped;
}

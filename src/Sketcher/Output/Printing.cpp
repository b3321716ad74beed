#include "Output/Printing.h"

#include "Output/PictureExport.h"
#include "Output/PrintDialog.h"

#include "HostUi/QtText.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

namespace
{

QPageLayout LayoutOf(const PrintJob& job)
{
    return {job.page, job.isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait,
            QMarginsF()};
}

OutputFault PrintToPrinter(const SketchContent& content, const PrintJob& job,
                           const OutputProgress& progress)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPrinterName(job.printer);
    printer.setDocName(vesk::ToQString(content.name));
    printer.setFullPage(true);
    printer.setPageLayout(LayoutOf(job));
    if (!printer.isValid())
        return OutputFault::CannotWrite;
    QPainter painter(&printer);
    if (!painter.isActive())
        return OutputFault::CannotWrite;
    const double unitsPerMillimetre = printer.resolution() / MillimetresPerInch;
    painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    if (PaintOnPaper(painter, content, job.placement, progress))
        return OutputFault::None;
    // Before the painter ends, which would send the page.
    printer.abort();
    return OutputFault::Stopped;
}

}

OutputFault PrintDrawing(const SketchContent& content, const PrintJob& job, const QString& pdfPath,
                         const OutputProgress& progress)
{
    return UnlessOutOfMemory([&] {
        return job.printer.isEmpty()
                   ? WriteOutput(MakePdfPage(content, job.placement, LayoutOf(job), progress),
                                 pdfPath)
                   : PrintToPrinter(content, job, progress);
    });
}

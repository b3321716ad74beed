#include "Output/DrawingSource.h"

#include "Output/DxfImport.h"

#include "Model/DocumentFile.h"
#include "Model/FileContent.h"

#include <cstddef>
#include <utility>

namespace
{

OutputFault ReadDrawingFile(const QString& path, DrawingSource& source)
{
    const auto [bytes, fault] = FileContent::Of(path);
    if (fault != FileContent::Fault::None)
        return OutputFault::CannotRead;
    DocumentReading reading =
        DocumentFile::FromText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    source.error = std::move(reading.error);
    source.content = std::move(reading.content);
    return OutputFault::None;
}

OutputFault ReadDxfFile(const QString& path, const QString& dxfUnit, DrawingSource& source)
{
    DxfImport read = ImportDxf(path, dxfUnit, [](double) { return true; });
    source.content = std::move(read.content);
    return read.fault;
}

}

DrawingSource ReadDrawing(const QString& path, const QString& dxfUnit)
{
    DrawingSource source;
    const OutputFault fault = UnlessOutOfMemory([&] {
        return IsDxfFile(path) ? ReadDxfFile(path, dxfUnit, source) : ReadDrawingFile(path, source);
    });
    if (fault != OutputFault::None)
        source.error = DescribeOutputFault(fault);
    return source;
}

bool IsDxfFile(const QString& path)
{
    return path.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

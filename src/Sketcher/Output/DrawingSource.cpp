#include "Output/DrawingSource.h"

#include "Output/DxfImport.h"

#include "Model/DocumentFile.h"

#include <QFile>
#include <QStringList>

#include <cstddef>
#include <string_view>
#include <utility>

namespace
{

/// Why a DXF file was not read.
std::string DescribeFailure(const DxfImport& failed)
{
    if (failed.fault != OutputFault::None)
        return DescribeOutputFault(failed.fault);
    switch (failed.code)
    {
    case DxfToolCode::NoUnit:
        return "the file names no unit; use --dxf-unit";
    case DxfToolCode::TooLarge:
        return "too many entities, or not enough memory";
    default:
        return "not a text DXF file, or damaged";
    }
}

}

DrawingSource ReadDrawing(const QString& path, const QString& dxfUnit)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, DescribeOutputFault(OutputFault::CannotRead)};
    QByteArray bytes = file.readAll();
    if (IsDxfFile(path))
    {
        const DxfImport read = ImportDxf(bytes, dxfUnit, [](double) { return true; });
        if (read.document.isEmpty())
            return {{}, DescribeFailure(read)};
        bytes = read.document;
    }
    DocumentReading reading = DocumentFile::FromText(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
    if (reading.outcome != DocumentReading::Outcome::Whole)
        return {{}, reading.error};
    return {std::move(reading.content), {}};
}

bool IsDxfFile(const QString& path)
{
    return path.endsWith(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

bool IsDxfUnit(const QString& name)
{
    return QStringList({"mm", "cm", "m", "in", "ft"}).contains(name);
}

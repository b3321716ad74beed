#include "Output/DrawingExport.h"

#include "Output/DxfProcess.h"

#include "Foundation/FileRewriting.h"
#include "HostUi/QtText.h"

#include <QFileInfo>

#include <algorithm>
#include <cstddef>
#include <new>

namespace
{

OutputBytes MakeBytes(const SketchContent& content, const ExportFormat& format,
                      const OutputProgress& progress)
{
    try
    {
        return format.make(content, progress);
    }
    catch (const std::bad_alloc&)
    {
        return {{}, OutputFault::OutOfMemory};
    }
}

}

const std::vector<ExportFormat>& ExportFormats()
{
    static const std::vector<ExportFormat> s_formats = {
        {L"svg", L"SVG 矢量图", &MakeSvg},
        {L"pdf", L"PDF 文档", &MakePdf},
        {L"png", L"PNG 图片", &MakePng},
        {L"dxf", L"DXF 图形", &MakeDxf},
    };
    return s_formats;
}

const ExportFormat* FindExportFormat(const std::wstring& name)
{
    const std::vector<ExportFormat>& formats = ExportFormats();
    const auto found =
        std::find_if(formats.begin(), formats.end(),
                     [&name](const ExportFormat& format) { return format.name == name; });
    return found != formats.end() ? &*found : nullptr;
}

const ExportFormat* ExportFormatOf(const QString& path)
{
    return FindExportFormat(vesk::ToWide(QFileInfo(path).suffix().toLower()));
}

OutputFault ExportDrawing(const SketchContent& content, const ExportFormat& format,
                          const QString& path, const OutputProgress& progress)
{
    const OutputBytes made = MakeBytes(content, format, progress);
    if (made.fault != OutputFault::None)
        return made.fault;
    // Painting is over; the file must not be replaced after the user has stopped the work.
    if (!progress(1.0))
        return OutputFault::Stopped;
    const bool isWritten = vesk::RewriteFile(
        path.toStdString(), {made.bytes.constData(), static_cast<std::size_t>(made.bytes.size())});
    return isWritten ? OutputFault::None : OutputFault::CannotWrite;
}

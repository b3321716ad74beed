#include "Output/DrawingExport.h"

#include "Model/UiText.h"
#include "Output/DxfProcess.h"

#include "HostUi/QtText.h"

#include <QFileInfo>

#include <algorithm>

namespace
{

OutputFault Export(const SketchContent& content, const ExportFormat& format, const QString& path,
                   const OutputProgress& progress)
{
    const OutputBytes made = format.make(content, progress);
    // Painting is over; the file must not be replaced after the user has stopped the work.
    const bool isStopped = made.fault == OutputFault::None && !progress(1.0);
    return isStopped ? OutputFault::Stopped : WriteOutput(made, path);
}

}

const std::vector<ExportFormat>& ExportFormats()
{
    static const std::vector<ExportFormat> s_formats = {
        {L"svg", L"SVG 矢量图"_source, &MakeSvg},
        {L"pdf", L"PDF 文档"_source, &MakePdf},
        {L"png", L"PNG 图片"_source, &MakePng},
        {L"dxf", L"DXF 图形"_source, &MakeDxf},
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
    return UnlessOutOfMemory([&] { return Export(content, format, path, progress); });
}

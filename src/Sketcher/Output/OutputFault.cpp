#include "Output/OutputFault.h"

#include "Model/UiText.h"

#include "HostUi/PlainMessageBox.h"

namespace
{

struct FaultTexts
{
    OutputFault fault;
    const char* caption;
    const char* description;
};

constexpr FaultTexts OutputFaultTexts[] = {
    {OutputFault::None, "", ""},
    {OutputFault::Stopped, "已取消"_source, "stopped"},
    {OutputFault::NothingVisible, "图纸中没有可见的图元"_source,
     "the drawing has no visible entities"},
    {OutputFault::TooLarge, "图纸太大，此格式无法按 1:1 输出"_source,
     "the drawing is too large for this format at true scale"},
    {OutputFault::OutOfMemory, "内存不足"_source, "not enough memory"},
    {OutputFault::CannotRead, "无法读取文件"_source, "the file cannot be read"},
    {OutputFault::CannotWrite, "无法写入文件"_source, "the file cannot be written"},
    {OutputFault::NoDxfTool, "找不到 vesk-dxf 程序"_source,
     "the program vesk-dxf cannot be started"},
    {OutputFault::DxfToolFailed, "vesk-dxf 程序出错"_source, "the program vesk-dxf failed"},
    {OutputFault::DxfTooLarge, "图元过多或内存不足"_source,
     "too many entities, or not enough memory"},
    {OutputFault::NotDxf, "不是文本格式的 DXF 文件，或已损坏"_source,
     "not a text DXF file, or damaged"},
    {OutputFault::NoDxfUnit, "文件没有单位"_source, "the file names no unit; use --dxf-unit"},
};

const FaultTexts& TextsOf(OutputFault fault)
{
    return OutputFaultTexts[static_cast<int>(fault)];
}

}

QString CaptionOf(OutputFault fault)
{
    return *TextsOf(fault).caption == 0 ? QString() : Tr(TextsOf(fault).caption);
}

std::string DescribeOutputFault(OutputFault fault)
{
    return TextsOf(fault).description;
}

void ShowOutputFault(QWidget& window, const QString& text, const QString& reason)
{
    if (qEnvironmentVariable("VESK_UNATTENDED") == QLatin1String("1"))
        return;
    auto* pBox = vesk::MakePlainMessageBox(&window, QMessageBox::Warning,
                                           QStringLiteral("Sketcher"), text, reason);
    pBox->setStandardButtons(QMessageBox::Ok);
    pBox->setObjectName(QStringLiteral("OutputFault"));
    pBox->setAttribute(Qt::WA_DeleteOnClose);
    pBox->setWindowModality(Qt::NonModal);
    pBox->show();
}

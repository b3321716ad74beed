#include "Output/DxfImport.h"

#include <nlohmann/json.hpp>

#include <string>

namespace
{

struct RemarkText
{
    const char* key;
    const char* caption;
};

/// The reasons for leaving an entity out, and what may have been replaced by the nearest.
constexpr RemarkText RemarkTexts[] = {
    {"unsupported", "不支持"},
    {"paper space", "在图纸空间"},
    {"not in the drawing plane", "不在绘图平面内"},
    {"too small or too large", "过小或过大"},
    {"mesh or spline", "网格或样条"},
    {"colour", "颜色"},
    {"layer colour", "图层颜色"},
    {"line type", "线型"},
    {"line weight", "线宽"},
    {"height", "高度（已投影到绘图平面）"},
};

QString RemarkCaption(const std::string& key)
{
    for (const RemarkText& text : RemarkTexts)
    {
        if (key == text.key)
            return QString::fromUtf8(text.caption);
    }
    return QString::fromStdString(key);
}

void ReadMessage(const nlohmann::json& message, DxfReportText& report)
{
    const std::string kind = message.value("kind", "");
    const int count = message.value("count", 0);
    if (kind == "imported")
        report.importedCount += count;
    else if (kind == "skipped")
        report.remarks << QStringLiteral("未导入 %1 个 %2：%3")
                              .arg(count)
                              .arg(QString::fromStdString(message.value("type", "")),
                                   RemarkCaption(message.value("reason", "")));
    else if (kind == "approximated")
        report.remarks << QStringLiteral("%1 处%2取最接近的值")
                              .arg(count)
                              .arg(RemarkCaption(message.value("what", "")));
    else if (kind == "truncated")
        report.remarks << QStringLiteral("文件不完整，只读到中断处");
}

}

DxfReportText ReadDxfReport(const QByteArray& messages)
{
    DxfReportText report;
    for (const QByteArray& line : messages.split('\n'))
    {
        const nlohmann::json message =
            nlohmann::json::parse(line.begin(), line.end(), nullptr, false);
        if (message.is_object())
            ReadMessage(message, report);
    }
    return report;
}

DxfImport ImportDxf(const QByteArray& bytes, const QString& unit, const OutputProgress& progress)
{
    QStringList arguments = {QStringLiteral("import")};
    if (!unit.isEmpty())
        arguments << QStringLiteral("--unit") << unit;
    const DxfRun run = RunDxfProcess(arguments, bytes, progress);
    return {run.fault, run.code, run.code == DxfToolCode::Done ? run.output : QByteArray(),
            ReadDxfReport(run.messages)};
}

QString CaptionOf(const DxfImport& failed)
{
    if (failed.fault != OutputFault::None)
        return CaptionOf(failed.fault);
    switch (failed.code)
    {
    case DxfToolCode::Unusable:
        return QStringLiteral("不是文本格式的 DXF 文件，或已损坏");
    case DxfToolCode::TooLarge:
        return QStringLiteral("图元过多或内存不足");
    case DxfToolCode::NoUnit:
        return QStringLiteral("文件没有单位");
    default:
        return CaptionOf(OutputFault::DxfToolFailed);
    }
}

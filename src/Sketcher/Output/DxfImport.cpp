#include "Output/DxfImport.h"

#include "Model/DocumentFile.h"
#include "Model/FileContent.h"
#include "Model/UiText.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <string>
#include <utility>

namespace
{

struct RemarkText
{
    const char* key;
    const char* caption;
};

/// The reasons for leaving an entity out, and what may have been replaced by the nearest.
constexpr RemarkText RemarkTexts[] = {
    {"unsupported", "不支持"_source},
    {"paper space", "在图纸空间"_source},
    {"not in the drawing plane", "不在绘图平面内"_source},
    {"too small or too large", "过小或过大"_source},
    {"mesh or spline", "网格或样条"_source},
    {"colour", "颜色"_source},
    {"layer colour", "图层颜色"_source},
    {"line type", "线型"_source},
    {"line weight", "线宽"_source},
    {"height", "高度（已投影到绘图平面）"_source},
};

QString RemarkCaption(const std::string& key)
{
    for (const RemarkText& text : RemarkTexts)
    {
        if (key == text.key)
            return Tr(text.caption);
    }
    return QString::fromStdString(key);
}

/// The text of that name; empty if there is none.
std::string TextIn(const nlohmann::json& message, const char* name)
{
    const auto found = message.find(name);
    return found != message.end() && found->is_string() ? found->get<std::string>() : std::string();
}

int CountIn(const nlohmann::json& message)
{
    const auto found = message.find("count");
    return found != message.end() && found->is_number_integer() ? found->get<int>() : 0;
}

/// The type of an entity, which comes from the file.
QString ShownType(const std::string& type)
{
    constexpr int Longest = 40;
    const QString text = QString::fromStdString(type);
    return text.size() > Longest ? text.left(Longest) + QStringLiteral("…") : text;
}

void ReadMessage(const nlohmann::json& message, DxfReportText& report)
{
    const std::string kind = TextIn(message, "kind");
    const int count = CountIn(message);
    if (kind == "imported")
        report.importedCount += count;
    else if (kind == "skipped")
        report.remarks << Tr("未导入 %n 个 %1：%2"_source, count)
                              .arg(ShownType(TextIn(message, "type")),
                                   RemarkCaption(TextIn(message, "reason")));
    else if (kind == "approximated")
        report.remarks
            << Tr("%n 处%1取最接近的值"_source, count).arg(RemarkCaption(TextIn(message, "what")));
    else if (kind == "truncated")
        report.remarks << "文件不完整，只读到中断处"_tr;
}

/// Reads what vesk-dxf has written, whatever that is.
OutputFault TakeDocument(const QByteArray& bytes, DxfImport& result)
{
    DocumentReading reading =
        DocumentFile::FromText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (reading.outcome != DocumentReading::Outcome::Whole)
        return OutputFault::DxfToolFailed;
    result.content = std::move(reading.content);
    result.document = bytes;
    return OutputFault::None;
}

OutputFault Import(const QString& path, const QString& unit, const OutputProgress& progress,
                   DxfImport& result)
{
    const auto [bytes, fault] = FileContent::Of(path);
    if (fault != FileContent::Fault::None)
        return OutputFault::CannotRead;
    QStringList arguments = {QStringLiteral("import")};
    if (!unit.isEmpty())
        arguments << QStringLiteral("--unit") << unit;
    const DxfRun run = RunDxfProcess(arguments, bytes, progress);
    result.report = ReadDxfReport(run.messages);
    return run.fault == OutputFault::None ? TakeDocument(run.output, result) : run.fault;
}

}

DxfReportText ReadDxfReport(const QByteArray& messages)
{
    DxfReportText report;
    for (const QByteArray& line : messages.split('\n'))
    {
        ReadMessage(nlohmann::json::parse(line.begin(), line.end(), nullptr, false), report);
    }
    return report;
}

DxfImport ImportDxf(const QString& path, const QString& unit, const OutputProgress& progress)
{
    DxfImport result;
    result.fault = UnlessOutOfMemory([&] { return Import(path, unit, progress, result); });
    return result;
}

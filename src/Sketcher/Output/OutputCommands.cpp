#include "Output/OutputCommands.h"

#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Output/DrawingExport.h"
#include "Output/ExportDialog.h"
#include "Output/Printing.h"

#include "Command/ActionManager.h"
#include "HostUi/MainWindow.h"
#include "HostUi/QtText.h"
#include "Journal/CommandParameters.h"

#include <QFileInfo>
#include <QPointer>

#include <utility>

using namespace vesk;

namespace
{

constexpr wchar_t FormatParameter[] = L"format";
constexpr wchar_t DigestParameter[] = L"digest";

/// The text of that name; empty if there is none.
std::wstring TextOf(const CommandParameters& parameters, const wchar_t* name)
{
    const CommandParameterValue* pValue = parameters.Find(name);
    const auto* pText = pValue != nullptr ? std::get_if<std::wstring>(&pValue->Get()) : nullptr;
    return pText != nullptr ? *pText : std::wstring();
}

CommandParameterValue DigestOf(const Sketch& sketch)
{
    const std::string digest = sketch.GetDigest();
    return CommandParameterValue(std::wstring(digest.begin(), digest.end()));
}

}

OutputCommands::OutputCommands(const Workspace& workspace, MainWindow& window, OutputRunner runner)
    : m_workspace(workspace), m_window(window), m_runner(std::move(runner))
{}

std::vector<CommandEntry> OutputCommands::MakeCommands()
{
    const auto hasEntities = [this] { return !m_workspace.sketch.GetEntities().empty(); };
    return {
        CommandEntry::Dialog(L"Sketcher.Export", L"导出"_source, [this] { AskForExport(); })
            .WithIcon(L"export")
            .WithToolTip(L"导出：将图纸写成 SVG、PDF、PNG 或 DXF 文件"_source)
            .InGroup(L"输出"_source)
            .OnStartPage()
            .EnabledWhile(hasEntities),
        CommandEntry::Dialog(L"Sketcher.Print", L"打印"_source, [this] { AskForPrint(); })
            .WithIcon(L"print")
            .WithToolTip(L"打印：选择比例、纸张和打印机，并预览"_source)
            .WithKeys(L"Ctrl+P")
            .InGroup(L"输出"_source)
            .OnStartPage()
            .EnabledWhile(hasEntities),
        CommandEntry::WithParameters(PrintId, L"打印图纸"_source,
                                     [this](const CommandParameters&) { PrintTarget(); })
            .PossibleWith(
                [this](const CommandParameters& parameters) { return IsDrawing(parameters); }),
        CommandEntry::WithParameters(ExportId, L"导出图纸"_source,
                                     [this](const CommandParameters&) { WriteTarget(); })
            .PossibleWith(
                [this](const CommandParameters& parameters) { return IsExport(parameters); }),
    };
}

void OutputCommands::Export(const QString& path)
{
    const ExportFormat* pFormat = ExportFormatOf(path);
    if (pFormat == nullptr)
    {
        m_window.ShowNotice("无法导出 %1：不支持此格式"_tr.arg(path));
        return;
    }
    m_target = path;
    CommandParameters parameters;
    parameters.Add(FormatParameter, CommandParameterValue(pFormat->name));
    parameters.Add(DigestParameter, DigestOf(m_workspace.sketch));
    ActionManager::RunCommand(ExportId, parameters);
}

bool OutputCommands::IsDrawing(const CommandParameters& parameters) const
{
    const CommandParameterValue* pDigest = parameters.Find(DigestParameter);
    return pDigest != nullptr && *pDigest == DigestOf(m_workspace.sketch);
}

bool OutputCommands::IsExport(const CommandParameters& parameters) const
{
    return IsDrawing(parameters) &&
           FindExportFormat(TextOf(parameters, FormatParameter)) != nullptr;
}

/// A name without an ending: beside the drawing's file or, if it has none, the drawing's own name.
QString OutputCommands::Suggest() const
{
    const QString fileName = m_fileName ? m_fileName() : QString();
    return fileName.isEmpty() ? ToQString(m_workspace.sketch.GetShownName()) : fileName;
}

void OutputCommands::AskForExport()
{
    const QString path = AskForExportPath(m_window, Suggest());
    if (!path.isEmpty() && m_window.isVisible())
        Export(path);
}

/// Exports to the target; in a replay there is none.
void OutputCommands::WriteTarget()
{
    const QString path = std::exchange(m_target, QString());
    const ExportFormat* pFormat = ExportFormatOf(path);
    if (pFormat == nullptr)
        return;
    OutputFault fault = OutputFault::None;
    m_runner([content = m_workspace.sketch.GetContent(), pFormat, path,
              &fault](const OutputProgress& progress) {
        fault = ExportDrawing(content, *pFormat, path, progress);
    });
    const QString name = QFileInfo(path).fileName();
    ShowResult(fault, "已导出 %1"_tr.arg(name), "未导出 %1"_tr.arg(name));
}

void OutputCommands::AskForPrint()
{
    const SketchContent& content = m_workspace.sketch.GetContent();
    if (!VisibleBounds(content).has_value())
    {
        m_window.ShowNotice(CaptionOf(OutputFault::NothingVisible));
        return;
    }
    // On the heap: the dialog is destroyed with the window if the program ends meanwhile.
    const QPointer<PrintDialog> pDialog = new PrintDialog(content, &m_window);
    const bool isAccepted = pDialog->exec() == QDialog::Accepted;
    if (pDialog == nullptr)
        return;
    const std::optional<PrintJob> job = pDialog->GetJob();
    delete pDialog;
    if (isAccepted && job.has_value() && m_window.isVisible())
        Print(*job);
}

void OutputCommands::Print(const PrintJob& job)
{
    m_target.clear();
    if (job.printer.isEmpty())
        m_target = AskForPdfPath(m_window, Suggest());
    if ((job.printer.isEmpty() && m_target.isEmpty()) || !m_window.isVisible())
        return;
    m_job = job;
    CommandParameters parameters;
    parameters.Add(DigestParameter, DigestOf(m_workspace.sketch));
    ActionManager::RunCommand(PrintId, parameters);
}

/// Prints the job; in a replay there is none.
void OutputCommands::PrintTarget()
{
    const std::optional<PrintJob> job = std::exchange(m_job, std::nullopt);
    const QString path = std::exchange(m_target, QString());
    if (!job.has_value())
        return;
    OutputFault fault = OutputFault::None;
    m_runner([content = m_workspace.sketch.GetContent(), &job, path,
              &fault](const OutputProgress& progress) {
        fault = PrintDrawing(content, *job, path, progress);
    });
    const QString done =
        path.isEmpty() ? "已打印"_tr : "已打印到 %1"_tr.arg(QFileInfo(path).fileName());
    ShowResult(fault, done, "未打印"_tr);
}

void OutputCommands::ShowResult(OutputFault fault, const QString& done, const QString& failed)
{
    m_window.ShowNotice(fault == OutputFault::None ? done
                                                   : "%1：%2"_tr.arg(failed, CaptionOf(fault)));
    if (fault != OutputFault::None && fault != OutputFault::Stopped)
        ShowOutputFault(m_window, failed, CaptionOf(fault));
}

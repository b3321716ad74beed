#pragma once

#include "Output/OutputFault.h"
#include "Output/PaperPainter.h"
#include "Output/PrintDialog.h"
#include "Ribbon/CommandEntry.h"

#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

struct Workspace;

namespace vesk
{
class CommandParameters;
class MainWindow;
}

/// Runs work while the window lives; the work calls its argument now and then with the share that
/// is done.
using OutputRunner = std::function<void(const std::function<void(const OutputProgress&)>& work)>;

/// The commands that put the drawing out: to files of other programs, and to paper.
///
/// The journal records what was put out by the drawing's digest, not where to. A replay checks the
/// digest and writes nothing.
class OutputCommands final
{
public:
    static constexpr wchar_t ExportId[] = L"Sketcher.ExportDrawing";
    static constexpr wchar_t PrintId[] = L"Sketcher.PrintDrawing";

    /// The arguments are not owned and outlive the commands.
    OutputCommands(const Workspace& workspace, vesk::MainWindow& window, OutputRunner runner);

    std::vector<CommandEntry> MakeCommands();

    /// Sets what names the drawing's file, with its folder but without an ending; empty while there
    /// is none. Exported and printed files are suggested beside it.
    void SetNaming(std::function<QString()> fileName) { m_fileName = std::move(fileName); }

    /// Records that the drawing is exported to a file, whose suffix is the format, and does it.
    /// What goes wrong is shown in the window.
    void Export(const QString& path);

private:
    bool IsDrawing(const vesk::CommandParameters& parameters) const;
    bool IsExport(const vesk::CommandParameters& parameters) const;
    QString Suggest() const;
    void AskForExport();
    void AskForPrint();
    void WriteTarget();
    void Print(const PrintJob& job);
    void PrintTarget();
    void ShowResult(OutputFault fault, const QString& done, const QString& failed);

    const Workspace& m_workspace;
    vesk::MainWindow& m_window;
    const OutputRunner m_runner;
    std::function<QString()> m_fileName;

    /// Where to, while the command runs that was recorded for it. Empty in a replay.
    QString m_target;

    /// What to print, likewise; a PDF file is written to the target.
    std::optional<PrintJob> m_job;
};

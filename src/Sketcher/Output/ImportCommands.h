#pragma once

#include "Model/DocumentFile.h"
#include "Model/SketchInsertion.h"
#include "Output/OutputCommands.h"

#include <QString>

#include <optional>

struct DxfImport;

/// The commands that add drawings of other programs to the drawing.
///
/// What was imported is kept as a drawing file beside the journal, which refers to it by its
/// digest, so that a replay needs neither the other program's file nor vesk-dxf.
class ImportCommands final
{
public:
    static constexpr wchar_t ContentId[] = L"Sketcher.ImportContent";

    /// The arguments are not owned and outlive the commands.
    ImportCommands(Workspace& workspace, vesk::MainWindow& window, OutputRunner runner);

    std::vector<CommandEntry> MakeCommands();

    /// Adds a DXF file to the drawing in one undo step, and shows what was left out. The unit
    /// ("mm", "cm", "m", "in", "ft") counts if the file names none; if it is empty, the user is
    /// asked.
    void Import(const QString& path, QString unit = {});

private:
    /// A drawing that is to be added, and the digest of its file.
    struct Pending
    {
        std::optional<QString> digest; ///< Nothing if it could not be kept.
        SketchContent content;
        SketchInsertion insertion; ///< Of the content, worked out while it was read.
    };

    void AskForImport();
    bool IsGone() const;
    std::optional<DxfImport> Read(const QString& path, QString unit);
    bool RecordPending();
    bool CanInsert(const vesk::CommandParameters& parameters);
    void Insert(const vesk::CommandParameters& parameters);
    static std::optional<SketchContent> Find(const vesk::CommandParameters& parameters);
    void ShowReport(const QString& name, const DxfImport& read);

    Workspace& m_workspace;
    vesk::MainWindow& m_window;
    const OutputRunner m_runner;

    /// While the command runs that was recorded for it.
    std::optional<Pending> m_pending;
};

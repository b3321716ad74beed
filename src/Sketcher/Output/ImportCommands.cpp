#include "Output/ImportCommands.h"

#include "Model/KeptContent.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"
#include "Output/DxfImport.h"
#include "Output/ImportDialogs.h"

#include "Command/ActionManager.h"
#include "HostUi/MainWindow.h"
#include "HostUi/QtText.h"
#include "Journal/CommandParameters.h"

#include <QFileInfo>

#include <string_view>
#include <utility>

using namespace vesk;

namespace
{

constexpr wchar_t ContentParameter[] = L"content";
constexpr const wchar_t* ImportStep = L"导入"_source;

DocumentReading ReadDocument(const QByteArray& bytes)
{
    return DocumentFile::FromText(
        std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

QString ContentDigestOf(const CommandParameters& parameters)
{
    const CommandParameterValue* pValue = parameters.Find(ContentParameter);
    const auto* pText = pValue != nullptr ? std::get_if<std::wstring>(&pValue->Get()) : nullptr;
    return pText != nullptr ? ToQString(*pText) : QString();
}

}

ImportCommands::ImportCommands(Workspace& workspace, MainWindow& window, OutputRunner runner)
    : m_workspace(workspace), m_window(window), m_runner(std::move(runner))
{}

std::vector<CommandEntry> ImportCommands::MakeCommands()
{
    return {
        CommandEntry::Dialog(L"Sketcher.Import", L"导入"_source, [this] { AskForImport(); })
            .WithIcon(L"import")
            .WithToolTip(L"导入：将 DXF 文件的图元加入图纸"_source)
            .InGroup(L"输出"_source)
            .OnStartPage(),
        CommandEntry::WithParameters(
            ContentId, L"导入图元"_source,
            [this](const CommandParameters& parameters) { Insert(parameters); })
            .PossibleWith(
                [this](const CommandParameters& parameters) { return CanInsert(parameters); }),
    };
}

void ImportCommands::Import(const QString& path, QString unit)
{
    const QString name = QFileInfo(path).fileName();
    const std::optional<DxfImport> read = Read(path, std::move(unit));
    if (!read.has_value() || IsGone())
        return;
    if (read->document.isEmpty())
    {
        m_window.ShowNotice("未导入 %1：%2"_tr.arg(name, CaptionOf(read->fault)));
        if (read->fault != OutputFault::Stopped)
            ShowOutputFault(m_window, "未导入 %1"_tr.arg(name), CaptionOf(read->fault));
        return;
    }
    if (m_pending->content.entities.empty() || RecordPending())
        ShowReport(name, *read);
    m_pending.reset();
}

void ImportCommands::AskForImport()
{
    const QString path = AskForImportPath(m_window);
    if (!path.isEmpty() && !IsGone())
        Import(path);
}

/// True once the window was closed while an event loop ran.
bool ImportCommands::IsGone() const
{
    return !m_window.isVisible();
}

/// Reads the file while the window lives, and what was made of it. Returns nothing if the user does
/// not say the unit, or the program ends meanwhile.
std::optional<DxfImport> ImportCommands::Read(const QString& path, QString unit)
{
    DxfImport read;
    const InsertionPlace place = m_workspace.sketch.GetInsertionPlace();
    const auto work = [&](const OutputProgress& progress) {
        read = ImportDxf(path, unit, progress);
        m_pending = Pending{std::nullopt, std::move(read.content), {}};
        if (m_pending->content.entities.empty())
            return;
        m_pending->digest = KeptContent::Get().Keep(read.document);
        m_pending->insertion = MakeInsertion(m_pending->content, place);
    };
    m_runner(work);
    if (read.fault != OutputFault::NoDxfUnit || IsGone())
        return read;
    unit = AskForDxfUnit(m_window, QFileInfo(path).fileName());
    if (unit.isEmpty() || IsGone())
        return std::nullopt;
    m_runner(work);
    return read;
}

/// Records what was read and adds it. Returns false if the journal cannot keep it.
bool ImportCommands::RecordPending()
{
    if (!m_pending->digest.has_value())
    {
        m_window.ShowNotice("未导入：日志旁无法保存导入的内容"_tr);
        return false;
    }
    CommandParameters parameters;
    parameters.Add(ContentParameter, CommandParameterValue(ToWide(*m_pending->digest)));
    ActionManager::RunCommand(ContentId, parameters);
    return true;
}

/// Reads what the parameters name, for the command. Returns false if it is not kept.
bool ImportCommands::CanInsert(const CommandParameters& parameters)
{
    const InsertionPlace place = m_workspace.sketch.GetInsertionPlace();
    m_pending.reset();
    m_runner([&](const OutputProgress&) {
        std::optional<SketchContent> content = Find(parameters);
        if (!content.has_value())
            return;
        m_pending = Pending{ContentDigestOf(parameters), std::move(*content), {}};
        m_pending->insertion = MakeInsertion(m_pending->content, place);
    });
    return m_pending.has_value();
}

void ImportCommands::Insert(const CommandParameters& parameters)
{
    const bool isPending =
        m_pending.has_value() && m_pending->digest == ContentDigestOf(parameters);
    if (!isPending && !CanInsert(parameters))
        return;
    Sketch& sketch = m_workspace.sketch;
    Pending pending = std::move(*m_pending);
    m_pending.reset();
    // Worked out anew if the drawing has changed since.
    if (!sketch.Insert(std::move(pending.insertion), ImportStep).empty() ||
        !sketch.Insert(pending.content, ImportStep).empty())
        ActionManager::StepDone();
}

/// The drawing to which a record refers; nothing if it is not kept.
std::optional<SketchContent> ImportCommands::Find(const CommandParameters& parameters)
{
    const std::optional<QByteArray> bytes = KeptContent::Get().Find(ContentDigestOf(parameters));
    if (!bytes.has_value())
        return std::nullopt;
    DocumentReading document = ReadDocument(*bytes);
    if (document.outcome != DocumentReading::Outcome::Whole || document.content.entities.empty())
        return std::nullopt;
    return std::move(document.content);
}

void ImportCommands::ShowReport(const QString& name, const DxfImport& read)
{
    m_window.ShowNotice(
        "%1：%2"_tr.arg(name, Tr("已导入 %n 个图元"_source, read.report.importedCount)));
    if (!read.report.remarks.isEmpty())
        ShowImportReport(m_window, name, read.report);
}

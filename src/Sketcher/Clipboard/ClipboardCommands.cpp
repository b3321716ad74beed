#include "Clipboard/ClipboardCommands.h"

#include "Clipboard/BusyCursor.h"
#include "Clipboard/ClipboardContent.h"
#include "Clipboard/ContentEdit.h"
#include "Model/DocumentFile.h"
#include "Model/Grid.h"
#include "Model/KeptContent.h"
#include "Model/UiText.h"
#include "Model/Workspace.h"

#include "Command/ActionManager.h"
#include "HostUi/QtText.h"
#include "Replay/JournalReplayer.h"
#include "View/IUiDocumentViewManager.h"
#include "View/UiViewUtility.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QString>

#include <optional>
#include <utility>

using namespace vesk;

namespace
{

/// More would keep the program busy for minutes.
constexpr int MostBytes = 64 * 1024 * 1024;

/// From these on it takes long enough to notice.
constexpr int ManyBytes = 512 * 1024;
constexpr std::size_t ManyEntities = 5000;

/// How far what would cover its like is moved aside: well visible at the current scale.
double FindStep()
{
    constexpr int LeastPixels = 2;
    const double world = UiViewUtility::ComputeWorldWidthFromPixel(
        UiDocumentViewManager::FindCurrentView(), LeastPixels);
    return GridStep(world > 0.0 ? world : 1.0);
}

QString DescribeFault(DocumentReading::Outcome outcome)
{
    return outcome == DocumentReading::Outcome::Newer ? "剪贴板中的图元来自更新的版本，未粘贴"_tr
                                                      : "剪贴板中的图元已损坏，未粘贴"_tr;
}

void RunPasting(const ContentPasting& pasting)
{
    ActionManager::RunCommand(ContentPasting::CommandId, pasting.ToParameters());
}

CommandEntry MakePastingCommand(Workspace& workspace)
{
    return CommandEntry::WithParameters(ContentPasting::CommandId, L"粘贴内容"_source,
                                        [&workspace](const CommandParameters& parameters) {
                                            const auto pasting = ContentPasting::From(parameters);
                                            if (pasting.has_value() && pasting->Apply(workspace))
                                                ActionManager::StepDone();
                                        })
        .PossibleWith([](const CommandParameters& parameters) {
            const auto pasting = ContentPasting::From(parameters);
            return pasting.has_value() && pasting->IsPossible();
        });
}

CommandEntry MakeDuplicationCommand(Workspace& workspace)
{
    return CommandEntry::WithParameters(
               SelectionDuplication::CommandId, L"按距离再制"_source,
               [&workspace](const CommandParameters& parameters) {
                   const auto duplication = SelectionDuplication::From(parameters);
                   if (duplication.has_value() && duplication->Apply(workspace))
                       ActionManager::StepDone();
               })
        .PossibleWith([&workspace](const CommandParameters& parameters) {
            const auto duplication = SelectionDuplication::From(parameters);
            return duplication.has_value() && duplication->IsPossible(workspace);
        });
}

}

ClipboardCommands::ClipboardCommands(Workspace& workspace, Notice notice)
    : m_workspace(workspace), m_notice(std::move(notice))
{}

void ClipboardCommands::SetPicture(DrawingMimeData::Picture picture)
{
    m_picture = std::move(picture);
}

std::vector<CommandEntry> ClipboardCommands::MakeCommands()
{
    const auto isAnySelected = [this] { return !m_workspace.selection.IsEmpty(); };
    std::vector<CommandEntry> entries = {
        CommandEntry::Plain(L"Sketcher.Cut", L"剪切"_source, [this] { Cut(); })
            .WithIcon(L"cut")
            .WithToolTip(L"将所选图元移到剪贴板"_source)
            .WithKeys(L"Ctrl+X")
            .EnabledWhile(isAnySelected),
        CommandEntry::Plain(L"Sketcher.Copy", L"复制"_source, [this] { Copy(); })
            .WithIcon(L"copy")
            .WithToolTip(L"将所选图元复制到剪贴板"_source)
            .WithKeys(L"Ctrl+C")
            .EnabledWhile(isAnySelected),
        CommandEntry::Plain(L"Sketcher.Paste", L"粘贴"_source, [this] { Paste(); })
            .WithIcon(L"paste")
            .WithToolTip(L"粘贴剪贴板中的图元"_source)
            .WithKeys(L"Ctrl+V"),
        CommandEntry::Plain(L"Sketcher.Duplicate", L"再制"_source, [this] { Duplicate(); })
            .WithIcon(L"duplicate")
            .WithToolTip(L"在旁边再画一份所选图元"_source)
            .WithKeys(L"Ctrl+D")
            .NotWhileTyping()
            .EnabledWhile(isAnySelected),
        MakePastingCommand(m_workspace),
        MakeDuplicationCommand(m_workspace),
    };
    for (std::size_t i = 0; i < 4; ++i)
        entries[i].InGroup(L"剪贴板"_source).OnStartPage();
    return entries;
}

void ClipboardCommands::Copy() const
{
    if (JournalReplayer::IsReplaying())
        return;
    auto* pData = new DrawingMimeData(ContentOf(m_workspace.sketch, m_workspace.selection.GetIds()),
                                      m_picture);
    QGuiApplication::clipboard()->setMimeData(pData); // It takes ownership.
}

void ClipboardCommands::Cut()
{
    Copy();
    if (m_workspace.sketch.Erase(m_workspace.selection.GetIds(), L"剪切"_source))
        ActionManager::StepDone();
}

void ClipboardCommands::Paste() const
{
    if (JournalReplayer::IsReplaying())
        return;
    const QMimeData* pData = QGuiApplication::clipboard()->mimeData();
    const QString type = QLatin1String(DrawingMimeData::DrawingType);
    if (pData != nullptr && pData->hasFormat(type))
        PasteBytes(pData->data(type));
    else
        m_notice("剪贴板中没有图元"_tr);
}

void ClipboardCommands::PasteBytes(const QByteArray& bytes) const
{
    if (bytes.size() > MostBytes)
        return m_notice("剪贴板中的图元太多，未粘贴"_tr);
    const BusyCursor busy(bytes.size() > ManyBytes);
    const DocumentReading reading =
        DocumentFile::FromText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    if (reading.outcome != DocumentReading::Outcome::Whole)
        return m_notice(DescribeFault(reading.outcome));
    if (reading.content.entities.empty())
        return m_notice("剪贴板中没有图元"_tr);
    const std::optional<QString> digest = KeptContent::Get().Keep(bytes);
    if (!digest.has_value())
        return m_notice("剪贴板中的图元无法存于日志旁，未粘贴"_tr);
    const Vector3d way = FindFreeWay(m_workspace.sketch, reading.content, FindStep(), 0);
    RunPasting({ToWide(*digest), way});
}

/// The distance depends on the scale of the view, so the journal has it.
void ClipboardCommands::Duplicate() const
{
    if (JournalReplayer::IsReplaying())
        return;
    const SketchContent selected = ContentOf(m_workspace.sketch, m_workspace.selection.GetIds());
    const BusyCursor busy(selected.entities.size() > ManyEntities);
    const Vector3d way = FindFreeWay(m_workspace.sketch, selected, FindStep(), 1);
    ActionManager::RunCommand(SelectionDuplication::CommandId,
                              SelectionDuplication{way}.ToParameters());
}

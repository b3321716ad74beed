#include "Documents/DocumentCommands.h"

#include "Documents/Documents.h"
#include "Model/UiText.h"

#include "Command/IAction.h"

using namespace vesk;

namespace
{

constexpr wchar_t RecentId[] = L"Sketcher.Recent";

/// A command that replaces the drawing: a running action ends first.
CommandEntry MakeReplacing(const std::wstring& id, const std::wstring& caption,
                           const std::function<void()>& function)
{
    return CommandEntry::Interactive(id, caption, [function]() -> OwnerPtr<IAction> {
        function();
        return nullptr;
    });
}

std::vector<CommandEntry> MakeButtons(Documents& documents)
{
    std::vector<CommandEntry> entries = {
        MakeReplacing(L"Sketcher.New", L"新建"_source, [&documents] { documents.New(); })
            .WithIcon(L"new")
            .WithToolTip(L"新建空白图纸"_source)
            .WithKeys(L"Ctrl+N"),
        MakeReplacing(L"Sketcher.Open", L"打开"_source, [&documents] { documents.Open(); })
            .WithIcon(L"open")
            .WithToolTip(L"打开图纸文件"_source)
            .WithKeys(L"Ctrl+O"),
        CommandEntry::Plain(
            RecentId, L"最近"_source,
            [&documents] { documents.ShowRecent(QString::fromWCharArray(RecentId)); })
            .WithIcon(L"recent")
            .WithToolTip(L"打开最近用过的图纸文件"_source),
        CommandEntry::Plain(L"Sketcher.Save", L"保存"_source, [&documents] { documents.Save(); })
            .WithIcon(L"save")
            .WithToolTip(L"保存图纸"_source)
            .WithKeys(L"Ctrl+S"),
        CommandEntry::Plain(L"Sketcher.SaveAs", L"另存为"_source,
                            [&documents] { documents.SaveAs(); })
            .WithIcon(L"save-as")
            .WithToolTip(L"将图纸保存为另一个文件"_source)
            .WithKeys(L"Ctrl+Shift+S"),
        MakeReplacing(L"Sketcher.Close", L"关闭"_source, [&documents] { documents.New(); })
            .WithIcon(L"close")
            .WithToolTip(L"关闭图纸"_source)
            .WithKeys(L"Ctrl+W"),
    };
    for (CommandEntry& entry : entries)
        entry.InGroup(L"文件"_source).OnStartPage();
    return entries;
}

}

std::vector<CommandEntry> MakeDocumentCommands(Documents& documents)
{
    std::vector<CommandEntry> entries = MakeButtons(documents);
    entries.push_back(CommandEntry::WithParameters(
        Documents::NewId, L"空白图纸"_source,
        [&documents](const CommandParameters&) { documents.DoNew(); }));
    entries.push_back(
        CommandEntry::WithParameters(
            Documents::OpenId, L"打开内容"_source,
            [&documents](const CommandParameters& parameters) { documents.DoOpen(parameters); })
            .PossibleWith([&documents](const CommandParameters& parameters) {
                return documents.CanOpen(parameters);
            }));
    entries.push_back(
        CommandEntry::WithParameters(
            Documents::SaveId, L"保存内容"_source,
            [&documents](const CommandParameters& parameters) { documents.DoSave(parameters); })
            .PossibleWith([&documents](const CommandParameters& parameters) {
                return documents.CanSave(parameters);
            }));
    return entries;
}

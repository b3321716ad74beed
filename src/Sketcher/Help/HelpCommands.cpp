#include "Help/HelpCommands.h"

#include "Help/AboutPage.h"
#include "Help/HelpPage.h"
#include "Help/TextWindow.h"
#include "Model/UiText.h"

#include <QString>

#include <functional>

namespace
{

/// Shows the window of that name, a new one unless it is open; it does not block the others.
void ShowText(const QString& name, const TextWindow::Told& title, const TextWindow::Told& html,
              const QSize& size, QWidget& parent)
{
    auto* pText = parent.findChild<TextWindow*>(name);
    if (pText == nullptr)
    {
        pText = new TextWindow(title, html, size, &parent);
        pText->setObjectName(name);
    }
    pText->show();
    pText->raise();
    pText->activateWindow();
}

CommandEntry MakeHelpCommand(const std::function<void()>& open)
{
    return CommandEntry::Dialog(L"Sketcher.Help", L"帮助"_source, open)
        .WithIcon(L"help")
        .WithToolTip(L"按键，和可以键入的数值"_source)
        .WithKeys(L"F1")
        .InGroup(L"帮助"_source)
        .OnStartPage();
}

CommandEntry MakeAboutCommand(const std::function<void()>& open)
{
    return CommandEntry::Dialog(L"Sketcher.About", L"关于"_source, open)
        .WithIcon(L"about")
        .WithToolTip(L"版本和许可证"_source)
        .InGroup(L"帮助"_source)
        .OnStartPage();
}

}

std::vector<CommandEntry> MakeHelpCommands(const std::vector<CommandEntry>& commands,
                                           QWidget& window)
{
    std::vector<CommandEntry> listed = commands;
    listed.push_back(MakeHelpCommand({}));
    const auto help = [&window, listed] {
        ShowText(
            QStringLiteral("Help"), [] { return "帮助"_tr; },
            [listed] { return MakeHelpPage(listed); }, QSize(620, 640), window);
    };
    const auto about = [&window] {
        ShowText(
            QStringLiteral("About"), [] { return "关于 Sketcher"_tr; }, &MakeAboutPage,
            QSize(560, 400), window);
    };
    return {MakeHelpCommand(help), MakeAboutCommand(about)};
}

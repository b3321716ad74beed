// What the items of a combo box and of a menu cost beyond the Qt calls that anybody would write.
// The texts are wide, as they are in the host.

#include "Harness/Question.h"

#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/IControl.h"
#include "Control/VeskIControlFactory.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"

#include <QAction>
#include <QComboBox>
#include <QIcon>
#include <QMenu>
#include <QToolButton>

#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int ItemCount = 10000;
constexpr int EntryCount = 1000;

std::vector<std::wstring> MakeTexts()
{
    std::vector<std::wstring> texts;
    for (int i = 0; i < ItemCount; ++i)
        texts.push_back(L"item " + std::to_wstring(i));
    return texts;
}

QStringList ToStrings(const std::vector<std::wstring>& texts)
{
    QStringList strings;
    for (const std::wstring& text : texts)
        strings += QString::fromStdWString(text);
    return strings;
}

/// The box of the library, driven through its definition.
struct OurBox
{
    explicit OurBox(const std::vector<std::wstring>& texts)
    {
        auto opDefinition = MakeOwner<ComboBoxDefinition>(L"Box");
        pDefinition = opDefinition.Get();
        for (const std::wstring& text : texts)
            opDefinition->AddItem(text);
        opBox = MakeOwner<QtComboBox>(std::move(opDefinition), nullptr);
    }

    ComboBoxDefinition* pDefinition;
    OwnerPtr<QtComboBox> opBox;
};

using OurWork = void (*)(ComboBoxDefinition& definition, const std::vector<std::wstring>& texts);
using PlainWork = void (*)(QComboBox& box, const std::vector<std::wstring>& texts);

Question& AskAboutBox(const std::string& name, bool isFull, OurWork ours, PlainWork plain)
{
    const std::vector<std::wstring> texts = MakeTexts();
    return Ask("P12 combo box of 10,000: " + name)
        .Ours([=](Stopwatch& stopwatch) {
            OurBox box(isFull ? texts : std::vector<std::wstring>());
            stopwatch.Time([&] { ours(*box.pDefinition, texts); });
        })
        .Limit([=](Stopwatch& stopwatch) {
            QComboBox box;
            if (isFull)
                box.addItems(ToStrings(texts));
            stopwatch.Time([&] { plain(box, texts); });
        })
        .TimeAtMost(1.05);
}

void AskAboutConstruction()
{
    const std::vector<std::wstring> texts = MakeTexts();
    Ask("P12 combo box of 10,000: constructed")
        .Ours([=](Stopwatch& stopwatch) {
            auto opDefinition = MakeOwner<ComboBoxDefinition>(L"Box");
            for (const std::wstring& text : texts)
                opDefinition->AddItem(text);
            OwnerPtr<QtComboBox> opBox;
            stopwatch.Time(
                [&] { opBox = MakeOwner<QtComboBox>(std::move(opDefinition), nullptr); });
        })
        .Limit([=](Stopwatch& stopwatch) {
            std::unique_ptr<QComboBox> pBox;
            stopwatch.Time([&] {
                pBox = std::make_unique<QComboBox>();
                pBox->addItems(ToStrings(texts));
                pBox->setProperty("IsDefinition", true);
                pBox->setObjectName("Box");
            });
        })
        .TimeAtMost(1.05);
}

void AskAboutBoxes()
{
    AskAboutConstruction();
    AskAboutBox(
        "all added", false,
        [](ComboBoxDefinition& definition, const std::vector<std::wstring>& texts) {
            for (const std::wstring& text : texts)
                definition.AddItem(text);
        },
        [](QComboBox& box, const std::vector<std::wstring>& texts) {
            for (const std::wstring& text : texts)
                box.addItem(QString::fromStdWString(text));
        });
    AskAboutBox(
        "all inserted at 0", false,
        [](ComboBoxDefinition& definition, const std::vector<std::wstring>& texts) {
            for (const std::wstring& text : texts)
                definition.InsertItem(0, text);
        },
        [](QComboBox& box, const std::vector<std::wstring>& texts) {
            for (const std::wstring& text : texts)
                box.insertItem(0, QString::fromStdWString(text));
        });
    AskAboutBox(
        "first deleted until empty", true,
        [](ComboBoxDefinition& definition, const std::vector<std::wstring>& texts) {
            for (std::size_t i = 0; i < texts.size(); ++i)
                definition.DeleteItem(0);
        },
        [](QComboBox& box, const std::vector<std::wstring>& texts) {
            for (std::size_t i = 0; i < texts.size(); ++i)
                box.removeItem(0);
        });
    AskAboutBox(
        "cleared", true,
        [](ComboBoxDefinition& definition, const std::vector<std::wstring>&) {
            definition.ClearItems();
        },
        [](QComboBox& box, const std::vector<std::wstring>&) { box.clear(); });
}

OwnerPtr<ICommandButtonMenuDefinition> MakeMenuDefinition()
{
    auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu", L"Command");
    opDefinition->SetCaption(L"menu");
    for (int i = 0; i < EntryCount; ++i)
    {
        const std::wstring text = std::to_wstring(i);
        auto opItem = MakeOwner<CommandMenuItemDefinition>(L"Item." + text, L"Command." + text,
                                                           L"item " + text);
        opItem->SetTooltip(L"tip " + text);
        opDefinition->AddMenuItem(std::move(opItem));
    }
    return opDefinition;
}

struct PlainEntry
{
    std::wstring caption;
    std::wstring tip;
    std::wstring commandId;
};

std::vector<PlainEntry> MakePlainEntries()
{
    std::vector<PlainEntry> entries;
    for (int i = 0; i < EntryCount; ++i)
    {
        const std::wstring text = std::to_wstring(i);
        entries.push_back({L"item " + text, L"tip " + text, L"Command." + text});
    }
    return entries;
}

constexpr char MenuStyleSheet[] =
    "QMenu { background-color: white; border: 1px solid gray;icon-size: 32px;}"
    "                         "
    "QMenu::item {background-color: transparent;padding:2px 32px;margin:0px 1px;}"
    "                         "
    "QMenu::item:selected {background-color: #CCDAE7; border-width:1px;border-style:solid; "
    "border-color:#19649F;}";

/// The button with its menu, written by hand: an action is set up before the menu gets it, so that
/// the menu is not notified of each of its properties.
std::unique_ptr<QToolButton> MakePlainMenu(const std::vector<PlainEntry>& entries, int& chosen)
{
    auto pButton = std::make_unique<QToolButton>();
    auto* pAction = new QAction("menu", pButton.get());
    pAction->setProperty("IsDefinition", true);
    pAction->setCheckable(true);
    pButton->setDefaultAction(pAction);
    QObject::connect(pAction, &QAction::triggered, pButton.get(), [&chosen] { ++chosen; });
    pButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    pButton->setObjectName("Menu");
    pButton->setProperty("IsDefinition", true);
    auto* pMenu = new QMenu(pButton.get());
    pMenu->setProperty("IsDefinition", true);
    pMenu->setStyleSheet(MenuStyleSheet);
    pButton->setMenu(pMenu);
    pButton->setPopupMode(QToolButton::MenuButtonPopup);
    for (const PlainEntry& entry : entries)
    {
        auto* pEntry = new QAction(QString::fromStdWString(entry.caption), pMenu);
        pEntry->setProperty("IsDefinition", true);
        pEntry->setCheckable(true);
        pEntry->setToolTip(QString::fromStdWString(entry.tip));
        pEntry->setProperty("CommandId", QString::fromStdWString(entry.commandId));
        QObject::connect(pEntry, &QAction::triggered, pButton.get(), [&chosen] { ++chosen; });
        pMenu->addAction(pEntry);
    }
    return pButton;
}

void AskAboutMenus()
{
    const std::vector<PlainEntry> entries = MakePlainEntries();
    Ask("P12 menu of 1,000")
        .Ours([](Stopwatch& stopwatch) {
            OwnerPtr<ICommandButtonMenuDefinition> opDefinition = MakeMenuDefinition();
            OwnerPtr<IControl> opMenu;
            stopwatch.Time([&] {
                opMenu =
                    VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
            });
        })
        .Limit([entries](Stopwatch& stopwatch) {
            int chosen = 0;
            std::unique_ptr<QToolButton> pMenu;
            stopwatch.Time([&] { pMenu = MakePlainMenu(entries, chosen); });
        })
        .TimeAtMost(1.05);
}

}

void AskQuestions()
{
    AskAboutBoxes();
    AskAboutMenus();
}

// Whether a control takes about as much memory as a widget written by hand, with its data.

#include "Buttons.h"
#include "Harness/Question.h"

#include "Control/CommandButtonMenuDefinition.h"
#include "Control/LabelDefinition.h"
#include "Control/LineEditDefinition.h"
#include "Control/ProgressBarDefinition.h"
#include "Control/VeskIControlFactory.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QToolButton>

#include <memory>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int Count = 200;

// The texts are those of the host, so that both sides hold converted copies.
const std::wstring Caption(L"Length of the straight line");
const std::wstring Tip(L"From point to point");

std::wstring IdOf(int i)
{
    return L"Control." + std::to_wstring(i);
}

QString ToText(const std::wstring& wide)
{
    return QString::fromStdWString(wide);
}

/// A side that constructs many controls; what they show is there before.
template <class Prepare, class Make>
Side Making(Prepare prepare, Make make)
{
    return [prepare, make](Stopwatch& stopwatch) {
        std::vector<decltype(prepare(0))> prepared;
        for (int i = 0; i < Count; ++i)
            prepared.push_back(prepare(i));
        std::vector<decltype(make(std::move(prepared[0])))> made;
        made.reserve(Count);
        stopwatch.Time([&] {
            for (auto& each : prepared)
                made.push_back(make(std::move(each)));
        });
    };
}

/// The same for widgets written by hand.
template <class Make>
Side Making(Make make)
{
    return Making([](int i) { return IdOf(i); }, make);
}

template <class Definition>
OwnerPtr<Definition> WithTexts(OwnerPtr<Definition> opDefinition)
{
    opDefinition->SetCaption(Caption);
    opDefinition->SetTooltip(Tip);
    return opDefinition;
}

std::unique_ptr<QToolButton> MakePlainButton(int i)
{
    Data data = DataOf(i, QString());
    data.commandId.clear();
    return std::make_unique<PlainButton>(std::move(data), nullptr);
}

std::unique_ptr<QLabel> MakePlainLabel(const std::wstring& id)
{
    auto pLabel = std::make_unique<QLabel>();
    pLabel->setObjectName(ToText(id));
    pLabel->setText(ToText(Caption));
    pLabel->setToolTip(ToText(Tip));
    return pLabel;
}

std::unique_ptr<QLineEdit> MakePlainLineEdit(const std::wstring& id)
{
    auto pEdit = std::make_unique<QLineEdit>();
    pEdit->setObjectName(ToText(id));
    pEdit->setText("1234.5");
    // What is typed has to reach the data of the program.
    QLineEdit* pTyped = pEdit.get();
    QObject::connect(pTyped, &QLineEdit::textEdited, pTyped, [](const QString&) {});
    QObject::connect(pTyped, &QLineEdit::editingFinished, pTyped, [] {});
    return pEdit;
}

constexpr char MenuSheet[] =
    "QMenu { background-color: white; border: 1px solid gray;icon-size: 32px;}"
    "QMenu::item {background-color: transparent;padding:2px 32px;margin:0px 1px;}"
    "QMenu::item:selected {background-color: #CCDAE7; border-width:1px;border-style:solid; "
    "border-color:#19649F;}";

std::unique_ptr<QToolButton> MakePlainMenu(const std::wstring& id)
{
    auto pButton = std::make_unique<QToolButton>();
    pButton->setObjectName(ToText(id));
    auto* pAction = new QAction(ToText(Caption), pButton.get());
    pAction->setToolTip(ToText(Tip));
    pButton->setDefaultAction(pAction);
    auto* pMenu = new QMenu(pButton.get());
    pMenu->setStyleSheet(MenuSheet);
    for (int entry = 0; entry < 10; ++entry)
    {
        QAction* pEntry = pMenu->addAction(ToText(Caption + std::to_wstring(entry)));
        pEntry->setCheckable(true);
        pEntry->setData(ToText(IdOf(entry)));
    }
    pButton->setMenu(pMenu);
    pButton->setPopupMode(QToolButton::MenuButtonPopup);
    return pButton;
}

/// A parent with the sheet of all bars.
QWidget& Bars()
{
    static auto* const s_pBars = new QWidget();
    if (s_pBars->styleSheet().isEmpty())
        s_pBars->setStyleSheet("QProgressBar { border: 1px solid #adcdf2; text-align: center; }"
                               "QProgressBar::chunk { background-color: #6babf5; }");
    return *s_pBars;
}

std::unique_ptr<QProgressBar> MakePlainProgressBar(const std::wstring& id)
{
    auto pBar = std::make_unique<QProgressBar>(&Bars());
    pBar->setObjectName(ToText(id));
    pBar->setToolTip(ToText(Tip));
    pBar->setValue(50);
    pBar->setFixedSize(200, 18);
    return pBar;
}

OwnerPtr<CommandButtonMenuDefinition> MakeMenuDefinition(int i)
{
    auto opDefinition = WithTexts(MakeOwner<CommandButtonMenuDefinition>(IdOf(i), IdOf(i)));
    for (int entry = 0; entry < 10; ++entry)
        opDefinition->AddMenuItem(MakeOwner<CommandMenuItemDefinition>(
            IdOf(entry), IdOf(entry), Caption + std::to_wstring(entry)));
    return opDefinition;
}

OwnerPtr<LineEditDefinition> MakeLineEditDefinition(int i)
{
    auto opDefinition = MakeOwner<LineEditDefinition>(IdOf(i));
    opDefinition->SetText(L"1234.5");
    opDefinition->SetVisible(false);
    return opDefinition;
}

OwnerPtr<ProgressBarDefinition> MakeProgressBarDefinition(int i)
{
    auto opDefinition = WithTexts(MakeOwner<ProgressBarDefinition>(IdOf(i)));
    opDefinition->SetValue(50);
    opDefinition->SetWidth(200);
    return opDefinition;
}

}

void AskQuestions()
{
    VeskIControlFactory& factory = *VeskIControlFactory::Get();
    Ask("Memory of a button")
        .Ours(Making([](int i) { return MakeDefinition(i, QString()); },
                     [](auto opDefinition) {
                         return MakeOwner<QtButton>(std::move(opDefinition), nullptr);
                     }))
        .Limit(Making([](int i) { return i; }, &MakePlainButton))
        .BytesAtMost(1.2);
    Ask("Memory of a label")
        .Ours(Making([](int i) { return WithTexts(MakeOwner<LabelDefinition>(IdOf(i))); },
                     [&factory](auto opDefinition) {
                         return factory.CreateQtLabel(std::move(opDefinition));
                     }))
        .Limit(Making(&MakePlainLabel))
        .BytesAtMost(1.2);
    Ask("Memory of a line edit")
        .Ours(Making(&MakeLineEditDefinition,
                     [&factory](auto opDefinition) {
                         return factory.CreateQtLineEdit(std::move(opDefinition));
                     }))
        .Limit(Making(&MakePlainLineEdit))
        .BytesAtMost(1.2);
    Ask("Memory of a menu of ten")
        .Ours(Making(&MakeMenuDefinition,
                     [&factory](auto opDefinition) {
                         return factory.CreateQtCommandButtonMenu(std::move(opDefinition));
                     }))
        .Limit(Making(&MakePlainMenu))
        .BytesAtMost(1.2);
    Ask("Memory of a progress bar")
        .Ours(Making(&MakeProgressBarDefinition,
                     [&factory](auto opDefinition) {
                         return factory.CreateQtProgressBar(std::move(opDefinition));
                     }))
        .Limit(Making(&MakePlainProgressBar))
        .BytesAtMost(1.2);
}

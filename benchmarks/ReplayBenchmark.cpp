// Whether a click that was put off because a command was running is repeated for as little as
// posting its two mouse events by hand.

#include "Harness/Question.h"

#include "Command/Command.h"
#include "Command/IAction.h"
#include "Command/ICommandManager.h"
#include "HostCore.h"
#include "Journal/CommandParameters.h"
#include "VeskUiQtImpl/ProcessCommandUtil.h"

#include "Qtitan/RibbonButtonControl.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QToolButton>

#include <functional>

using namespace vesk;

namespace
{

constexpr int Clicks = 50;

/// A host with a command, and an action in a ribbon and one in a menu.
struct ReplayDesk
{
    ReplayDesk()
    {
        ICommandManager::Get()->AddCommand(MakeOwner<Command>(
            L"Outer", Command::Kind::Plain, [this](IUiView*, const CommandParameters&) {
                onOuter();
                return OwnerPtr<IAction>();
            }));
        slot.setWidget(new QToolButton);
        QObject::connect(slot.widget(), &QToolButton::clicked, &window, [this] { ++clicks; });
        menu.addAction(&menuAction);
        QObject::connect(&menuAction, &QAction::triggered, &window, [this] { ++clicks; });
        window.show();
        menu.popup({100, 100});
        Deliver();
    }

    static void Deliver() { QCoreApplication::sendPostedEvents(); }

    void RunOuter() { ProcessCommandUtil::ProcessRibbonBarCommand(L"Outer", {}, &sender); }

    HostCore core;
    QObject sender;
    QWidget window;
    Qtitan::RibbonButtonControl slot{&window};
    QAction ribbonAction{&slot};
    QMenu menu{&window};
    QAction menuAction{"Draw", &menu};
    std::function<void()> onOuter = [] {};
    int clicks = 0;
};

void PostByHand(QWidget& widget, const QPointF& position)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
        QCoreApplication::postEvent(&widget,
                                    new QMouseEvent(type, position, QCursor::pos(), Qt::LeftButton,
                                                    Qt::LeftButton, Qt::NoModifier));
}

using Work = std::function<void(ReplayDesk&)>;

/// Runs a command and what follows it again and again; a menu closes with each click.
void ClickOften(Stopwatch& stopwatch, ReplayDesk& desk, const Work& afterOuter)
{
    for (int i = 0; i < Clicks; ++i)
    {
        stopwatch.Time([&] {
            desk.RunOuter();
            afterOuter(desk);
            ReplayDesk::Deliver();
        });
        if (!desk.menu.isVisible())
            desk.menu.popup({100, 100});
    }
    if (desk.clicks != Clicks)
        qFatal("%d clicks instead of %d", desk.clicks, Clicks);
}

/// The action is chosen while the command runs.
Side ByTheLibrary(QAction ReplayDesk::*pAction)
{
    return [pAction](Stopwatch& stopwatch) {
        ReplayDesk desk;
        desk.onOuter = [&desk, pAction] {
            ProcessCommandUtil::ProcessRibbonBarCommand(L"Inner", {}, &(desk.*pAction));
        };
        ClickOften(stopwatch, desk, [](ReplayDesk&) {});
    };
}

Side ByHand(const Work& post)
{
    return [post](Stopwatch& stopwatch) {
        ReplayDesk desk;
        ClickOften(stopwatch, desk, post);
    };
}

}

void AskQuestions()
{
    Ask("P16 a click on a ribbon button is repeated")
        .Ours(ByTheLibrary(&ReplayDesk::ribbonAction))
        .Limit(ByHand([](ReplayDesk& desk) {
            PostByHand(*desk.slot.widget(), {1, 1});
        }))
        .TimeAtMost(1.02);
    Ask("P16 a click on a menu is repeated")
        .Ours(ByTheLibrary(&ReplayDesk::menuAction))
        .Limit(ByHand([](ReplayDesk& desk) {
            PostByHand(desk.menu, desk.menu.actionGeometry(&desk.menuAction).center());
        }))
        .TimeAtMost(1.02);
}

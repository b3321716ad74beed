#include "RandomUser.h"

#include "PaneDriver.h"
#include "RandomTables.h"
#include "ScriptedUser.h"

#include <QAbstractButton>

#include <algorithm>
#include <iterator>

using namespace RandomTables;

namespace
{

/// The button of a tool is checked exactly while the tool runs.
bool AreButtonsRight()
{
    return std::all_of(std::begin(Tools), std::end(Tools), [](const Tool& tool) {
        return ScriptedUser::FindButton(tool.id)->isChecked() == ScriptedUser::IsRunning(tool.id);
    });
}

}

RandomUser::RandomUser(unsigned seed, ScriptedUser& user, SittingWatch& watch)
    : m_random(seed), m_user(user), m_watch(watch)
{}

void RandomUser::Plan()
{
    const int count = 30 + Choose(31);
    ResizeWindow({1400, 1000});
    while (m_noted < count)
    {
        if (IsOneIn(5))
            BeginBurst();
        DoSomething();
        FidgetSometimes();
        EndBurst();
        m_user.Until(&AreButtonsRight);
    }
}

QStringList RandomUser::AllCommands()
{
    QStringList ids = {"Sketcher.Undo", "Sketcher.KeyStrip", "Sketcher.SetProperty"};
    for (const Tool& tool : Tools)
        ids << tool.id;
    for (const char* id : ZoomEntries)
        ids << id;
    for (const char* id : PaneCommands)
        ids << id;
    for (const QString& name : PaneDriver::Names())
        ids << PaneDriver::CommandOf(name);
    ids.removeDuplicates();
    return ids;
}

void RandomUser::DoSomething()
{
    switch (Choose(16))
    {
    case 0:
    case 1:
    case 2:
        return Turn();
    case 3:
        return Erase();
    case 4:
        return IsOneIn(2) ? Select() : SelectAll();
    case 5:
    case 6:
        return EditProperty();
    case 7:
        return Arrange();
    case 8:
        return ClickButton("Sketcher.Undo");
    default:
        return Draw();
    }
}

/// The points of shapes, each followed by typed values or a last point by a click.
void RandomUser::Draw()
{
    const int tool = Choose(DrawingTools);
    if (IsOneIn(2))
        Press("Escape", Qt::Key_Escape);
    BeginTool(tool);
    for (int i = 1 + Choose(2); i > 0; --i)
    {
        ClickPoints(Tools[tool].points);
        MoveMouse();
        EnterValues();
        if (IsOneIn(3))
            ClickView();
    }
}

void RandomUser::Turn()
{
    SelectAll();
    BeginTool(RotateTool);
    ClickPoints(Tools[RotateTool].points);
    MoveMouse();
    EnterValues();
}

void RandomUser::Erase()
{
    BeginTool(EraseTool);
    for (int i = Choose(4); i > 0; --i)
        m_clicked.empty() ? ClickView() : ClickAt(Pick(m_clicked));
    if (IsOneIn(2))
        Press("Escape", Qt::Key_Escape);
}

void RandomUser::Select()
{
    Press("Escape", Qt::Key_Escape);
    Press("Escape", Qt::Key_Escape);
    DragAnywhere();
}

/// With a selection box as large as the view.
void RandomUser::SelectAll()
{
    constexpr double Far = 10000.0;
    Press("Escape", Qt::Key_Escape);
    Press("Escape", Qt::Key_Escape);
    Press("Ctrl+0", Qt::Key_0, Qt::ControlModifier, Act::Zoom);
    DragBetween({-Far, -Far}, {Far, Far});
}

void RandomUser::EditProperty()
{
    IsOneIn(3) ? SelectAll() : ClickRow();
    for (int i = 1 + Choose(2); i > 0; --i)
    {
        EnterProperty(Pick(Values));
        Press("Return", Qt::Key_Return);
    }
}

void RandomUser::Arrange()
{
    if (IsOneIn(3))
        ClickButton(Pick(PaneCommands));
    else
        ChooseEntry("Sketcher.Panes", PaneDriver::CommandOf(Pick(PaneDriver::Names())));
}

void RandomUser::Fidget()
{
    switch (Choose(16))
    {
    case 0:
    case 1:
        return MoveMouse();
    case 2:
    case 3:
        return ClickView();
    case 4:
        return DragAnywhere();
    case 5:
    case 6:
        return Zoom();
    case 7:
        return ChooseEntry("Sketcher.Zoom", Pick(ZoomEntries));
    case 8:
        return BeginTool(Choose(static_cast<int>(std::size(Tools))));
    case 9:
        return ClickButton("Sketcher.Undo");
    case 10:
    case 11:
        return ChangeSetting();
    case 12:
    case 13:
        return PressAnyKey();
    case 14:
        return IsOneIn(3) ? CloseEditor() : Type(QString(QChar(Pick(Characters))));
    default:
        return TypeValue();
    }
}

void RandomUser::FidgetSometimes()
{
    if (IsOneIn(4))
        Fidget();
}

/// One or two values, as if with Tab between them.
void RandomUser::EnterValues()
{
    for (int i = 1 + Choose(2); i > 0; --i)
    {
        FidgetSometimes();
        TypeValue();
        PressCommittingKey();
    }
}

void RandomUser::ClickPoints(int count)
{
    for (int i = 0; i < count; ++i)
    {
        FidgetSometimes();
        ClickView();
    }
}

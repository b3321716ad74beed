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
    Plan(30 + Choose(31));
}

void RandomUser::Plan(int count)
{
    ResizeWindow({1400, 1000});
    while (m_noted < count)
    {
        if (IsOneIn(5))
            BeginBurst();
        DoSomething();
        FidgetSometimes();
        EndBurst();
        if (IsOneIn(10))
            ClearIfCrowded();
        m_user.Until(&AreButtonsRight);
    }
}

QStringList RandomUser::AllCommands()
{
    QStringList ids = {"Sketcher.Undo",         "Sketcher.Redo",      "Sketcher.KeyStrip",
                       "Sketcher.SetProperty",  "Sketcher.Delete",    "Sketcher.SelectAll",
                       "Sketcher.Copy",         "Sketcher.Cut",       "Sketcher.Paste",
                       "Sketcher.PasteContent", "Sketcher.Duplicate", "Sketcher.DuplicateBy",
                       "Sketcher.AddLayer",     "Sketcher.SetLayer",  "Sketcher.RemoveLayer"};
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
    switch (Choose(22))
    {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
        return Modify();
    case 5:
        return Erase();
    case 6:
        return IsOneIn(2) ? Select() : SelectAll();
    case 7:
    case 8:
        return EditProperty();
    case 9:
        return Arrange();
    case 10:
    case 11:
        return UndoAndRedo();
    case 12:
        return UseClipboard();
    case 13:
        return IsOneIn(4) ? NameDrawing() : UseLayers();
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

/// What adds to the drawing gets one entity: otherwise the drawing would double each time.
void RandomUser::Modify()
{
    const int tool = Pick(ModifyingTools);
    tool == RotateTool || tool == MoveTool ? SelectAll() : ClickRow();
    BeginTool(tool);
    ClickPoints(Tools[tool].points);
    MoveMouse();
    EnterValues();
    if (tool != RotateTool)
        Press("Escape", Qt::Key_Escape);
}

void RandomUser::UndoAndRedo()
{
    Press("Escape", Qt::Key_Escape);
    for (int i = 1 + Choose(4); i > 0; --i)
        ClickButton("Sketcher.Undo");
    for (int i = Choose(4); i > 0; --i)
        IsOneIn(2) ? ClickButton("Sketcher.Redo") : Press("Ctrl+Y", Qt::Key_Y, Qt::ControlModifier);
}

void RandomUser::UseClipboard()
{
    Press("Escape", Qt::Key_Escape);
    ClickRow();
    const KeyChoice choice = Pick(CopyingKeys);
    Press(choice.name, choice.key, choice.modifier);
    for (int i = Choose(3); i > 0; --i)
        Press("Ctrl+V", Qt::Key_V, Qt::ControlModifier);
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

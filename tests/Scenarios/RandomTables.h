#pragma once

#include "Panes/LayerModel.h"

#include <Qt>

/// What the user of a random sitting chooses from. Entries listed twice are chosen twice as often.
namespace RandomTables
{

struct Tool
{
    const char* id;
    Qt::Key key; ///< With Ctrl; Key_unknown for none.
    int points;  ///< Number of clicks before a value can be typed.
};

/// Drawing tools come first.
constexpr Tool Tools[] = {
    {"Sketcher.Line", Qt::Key_L, 1},         {"Sketcher.Rectangle", Qt::Key_R, 1},
    {"Sketcher.Circle", Qt::Key_I, 1},       {"Sketcher.Arc3Points", Qt::Key_3, 2},
    {"Sketcher.ArcCentre", Qt::Key_4, 2},    {"Sketcher.Rotate", Qt::Key_T, 2},
    {"Sketcher.Move", Qt::Key_M, 1},         {"Sketcher.CopyTo", Qt::Key_unknown, 1},
    {"Sketcher.Mirror", Qt::Key_unknown, 1}, {"Sketcher.Offset", Qt::Key_unknown, 1},
    {"Sketcher.Erase", Qt::Key_E, 0},
};
constexpr int DrawingTools = 5;
constexpr int EraseTool = 10;

/// Rotate and move change what is selected; the others add to it.
constexpr int RotateTool = 5;
constexpr int MoveTool = 6;
constexpr int CopyTool = 7;
constexpr int MirrorTool = 8;
constexpr int OffsetTool = 9;
constexpr int ModifyingTools[] = {RotateTool, RotateTool, RotateTool, RotateTool, RotateTool,
                                  MoveTool,   CopyTool,   MirrorTool, OffsetTool};

constexpr const char* ZoomEntries[] = {
    "Sketcher.ZoomAll",        "Sketcher.Zoom.In",         "Sketcher.Zoom.Out",
    "Sketcher.Zoom.Window",    "Sketcher.Zoom.Window",     "Sketcher.Zoom.Scale.25",
    "Sketcher.Zoom.Scale.50",  "Sketcher.Zoom.Scale.100",  "Sketcher.Zoom.Scale.200",
    "Sketcher.Zoom.Scale.400", "Sketcher.Zoom.Scale.1000",
};

constexpr const char* SettingButtons[] = {
    "Sketcher.Snap.End",          "Sketcher.Snap.Middle",
    "Sketcher.Snap.Centre",       "Sketcher.Snap.Grid",
    "Sketcher.Snap.Intersection", "Sketcher.Unit.mm",
    "Sketcher.Unit.cm",           "Sketcher.Unit.m",
    "Sketcher.Unit.inch",
};

constexpr const char* Pens[] = {"Sketcher.LineStyle", "Sketcher.LineColour", "Sketcher.LineWidth"};

constexpr const char* PaneCommands[] = {"Sketcher.HideAllPanes", "Sketcher.DefaultLayout"};

constexpr int LayerBoxes[] = {LayerModel::VisibleColumn, LayerModel::LockedColumn};

constexpr const char* LayerButtons[] = {"MakeLayerCurrent", "RemoveLayer", "RemoveLayer"};

constexpr const char* Values[] = {
    "50",    "12.5", ".7",   "90",    "-90",     "45",     "180",         "360",
    "0",     "100",  "1,5",  "2cm",   "1in",     "3'",     "30d",         "2*3",
    "1/3",   "10+5", "(4)",  "-0",    "1e-12",   "1e9",    "-.5",         "abc",
    "5mm",   "7 ",   "x",    "1 1/2", "0.1",     "250",    "-12.5",       "sqrt(2)",
    "-270",  "-",    "75",   "60",    "33.3333", "1e-6",   "200",         "123.4567890123",
    "10 cm", "5 mm", "30 d", "2 in",  "10' 6\"", "1/2 in", "7 cos(0d)*3", "40 x",
};

constexpr char Characters[] = {'0', '1', '2', '3', '4', '5', '6', '7', '8', '9',  '.',
                               ',', '-', '+', '(', ')', 'a', 'b', 'm', 'x', '\'', ' '};

struct KeyChoice
{
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifier modifier;
};

/// These keys commit a value, or lock it and show the next field.
constexpr KeyChoice CommittingKeys[] = {
    {"Return", Qt::Key_Return, Qt::NoModifier},
    {"Return", Qt::Key_Return, Qt::NoModifier},
    {"Return", Qt::Key_Return, Qt::NoModifier},
    {"Enter", Qt::Key_Enter, Qt::KeypadModifier},
    {"Enter", Qt::Key_Enter, Qt::KeypadModifier},
    {"Tab", Qt::Key_Tab, Qt::NoModifier},
    {"Tab", Qt::Key_Tab, Qt::NoModifier},
    {"Space", Qt::Key_Space, Qt::NoModifier},
    {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier},
};

constexpr KeyChoice OtherKeys[] = {
    {"Escape", Qt::Key_Escape, Qt::NoModifier},
    {"Escape", Qt::Key_Escape, Qt::NoModifier},
    {"Shift+Tab", Qt::Key_Backtab, Qt::ShiftModifier},
    {"Backspace", Qt::Key_Backspace, Qt::NoModifier},
    {"Backspace", Qt::Key_Backspace, Qt::NoModifier},
    {"Left", Qt::Key_Left, Qt::NoModifier},
    {"Delete", Qt::Key_Delete, Qt::NoModifier},
    {"Shift+comma", Qt::Key_Less, Qt::ShiftModifier},
    {"keypad 5", Qt::Key_5, Qt::KeypadModifier},
    {"keypad -", Qt::Key_Minus, Qt::KeypadModifier},
    {"Ctrl+A", Qt::Key_A, Qt::ControlModifier},
    {"Ctrl+Z", Qt::Key_Z, Qt::ControlModifier},
    {"Ctrl+Y", Qt::Key_Y, Qt::ControlModifier},
};

/// What a selection is put into the clipboard or copied with.
constexpr KeyChoice CopyingKeys[] = {
    {"Ctrl+C", Qt::Key_C, Qt::ControlModifier},
    {"Ctrl+X", Qt::Key_X, Qt::ControlModifier},
    {"Ctrl+D", Qt::Key_D, Qt::ControlModifier},
    {"Delete", Qt::Key_Delete, Qt::NoModifier},
};

}

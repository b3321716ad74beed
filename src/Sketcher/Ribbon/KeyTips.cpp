#include "Ribbon/KeyTips.h"

#include "Qtitan/RibbonBar.h"
#include "Qtitan/RibbonPage.h"

#include <QVariant>
#include <QWidget>

namespace
{

using Tips = std::vector<std::pair<const char*, const char*>>;

void Assign(const Tips& tips, const QWidget& page)
{
    for (const auto& [id, keys] : tips)
    {
        for (QWidget* pControl : page.findChildren<QWidget*>(QLatin1String(id)))
            pControl->setProperty(Qtitan::KeyTipProperty, QLatin1String(keys));
    }
}

}

const Tips& KeyTipsOfDrawingPage()
{
    static const Tips s_tips = {{"Sketcher.Line", "L"},
                                {"Sketcher.Rectangle", "R"},
                                {"Sketcher.Circle", "C"},
                                {"Sketcher.Arc3Points", "3"},
                                {"Sketcher.ArcCentre", "4"},
                                {"Sketcher.Undo", "Z"},
                                {"Sketcher.Redo", "Y"},
                                {"Sketcher.Erase", "E"},
                                {"Sketcher.Rotate", "T"},
                                {"Sketcher.Move", "M"},
                                {"Sketcher.CopyTo", "K"},
                                {"Sketcher.Mirror", "I"},
                                {"Sketcher.Offset", "O"},
                                {"Sketcher.KeyStrip", "J"},
                                {"Sketcher.ZoomAll", "A"},
                                {"Sketcher.Zoom", "Q"},
                                {"Sketcher.HideAllPanes", "H"},
                                {"Sketcher.DefaultLayout", "F"},
                                {"Sketcher.Panes", "P"},
                                {"Sketcher.LineStyle", "S"},
                                {"Sketcher.LineColour", "G"},
                                {"Sketcher.LineWidth", "W"},
                                {"Sketcher.Layer", "B"},
                                {"Sketcher.Snap.End", "5"},
                                {"Sketcher.Snap.Middle", "6"},
                                {"Sketcher.Snap.Centre", "7"},
                                {"Sketcher.Snap.Intersection", "8"},
                                {"Sketcher.Snap.Grid", "9"},
                                {"Sketcher.Unit.mm", "1"},
                                {"Sketcher.Unit.cm", "2"},
                                {"Sketcher.Unit.m", "U"},
                                {"Sketcher.Unit.inch", "N"},
                                {"Sketcher.DrawingName", "X"}};
    return s_tips;
}

const Tips& KeyTipsOfStartPage()
{
    static const Tips s_tips = {
        {"Sketcher.New", "N"},       {"Sketcher.Open", "O"},      {"Sketcher.Recent", "R"},
        {"Sketcher.Save", "S"},      {"Sketcher.SaveAs", "A"},    {"Sketcher.Close", "W"},
        {"Sketcher.Import", "I"},    {"Sketcher.Export", "E"},    {"Sketcher.Print", "P"},
        {"Sketcher.Cut", "X"},       {"Sketcher.Copy", "C"},      {"Sketcher.Paste", "V"},
        {"Sketcher.Duplicate", "D"}, {"Sketcher.SelectAll", "L"}, {"Sketcher.Delete", "K"},
        {"Sketcher.Settings", "T"},  {"Sketcher.Help", "H"},      {"Sketcher.About", "B"}};
    return s_tips;
}

void AssignKeyTips(const Qtitan::RibbonBar& ribbon)
{
    if (ribbon.pageCount() != 2)
        return;
    Assign(KeyTipsOfStartPage(), *ribbon.page(0));
    Assign(KeyTipsOfDrawingPage(), *ribbon.page(1));
}

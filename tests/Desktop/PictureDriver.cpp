// Takes pictures of what the program shows, in one language, with real keys and clicks on a display
// of its own. usage: desktop_pictures LANGUAGE FOLDER

#include "Desktop/Photographer.h"
#include "Support/XServer.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace vesk
{
namespace
{

/// A tool, and the points that are clicked for its further prompts.
struct Tool
{
    const char* command;
    QVector<QPointF> points;
    bool needsSelection = false;
};

const QVector<Tool>& Tools()
{
    static const QVector<Tool> s_tools = {
        {"Sketcher.Line", {{-150, -80}}},
        {"Sketcher.Rectangle", {{-150, -80}}},
        {"Sketcher.Circle", {{-150, -80}}},
        {"Sketcher.Arc3Points", {{-150, -80}, {-100, -80}}},
        {"Sketcher.ArcCentre", {{-150, -80}, {-120, -80}}},
        {"Sketcher.Erase", {}},
        {"Sketcher.Offset", {{0, -60}}},
        {"Sketcher.Move", {{-150, -80}}, true},
        {"Sketcher.CopyTo", {{-150, -80}}, true},
        {"Sketcher.Rotate", {{-150, -80}, {-120, -80}}, true},
        {"Sketcher.Mirror", {{-150, -80}}, true},
    };
    return s_tools;
}

void DrawHole(Photographer& user, QPointF centre)
{
    user.Begin("Sketcher.Circle");
    user.ClickView(centre);
    user.MoveInView(centre + QPointF(30, 10));
    user.Type("12.5", {"Return"});
    user.Rest();
}

/// A plate of 200 x 120 with two holes.
void DrawPlate(Photographer& user)
{
    user.ChooseEntry("Sketcher.Zoom", "Sketcher.Zoom.In");
    user.Begin("Sketcher.Rectangle");
    user.ClickView({-100, -60});
    user.MoveInView({0, 0});
    user.Type("200", {"Tab"});
    user.Type("120", {"Return"});
    DrawHole(user, {-60, 0});
    DrawHole(user, {60, 0});
}

void TakeTyping(Photographer& user)
{
    user.Begin("Sketcher.Line");
    user.ClickView({-60, 20});
    user.MoveInView({40, 40});
    user.Type("2*60+5.5");
    user.Take("typing");
    user.Press({"Tab"});
    user.Type("30");
    user.Take("typing-angle");
    user.Rest();
    user.Begin("Sketcher.Line");
    user.ClickView({-60, 20});
    user.MoveInView({40, 40});
    user.Type("1,000", {"Return"});
    user.Take("refused");
    user.Rest();
}

void TakePrompts(Photographer& user)
{
    for (const Tool& tool : Tools())
    {
        user.Rest();
        if (tool.needsSelection)
        {
            user.Begin(tool.command);
            user.TakeStatusBar(QString("prompt-%1-without-selection").arg(tool.command));
            user.Rest();
            user.Press({"ctrl+a"});
        }
        user.Click(tool.command);
        user.TakeStatusBar(QString("prompt-%1-0").arg(tool.command));
        for (int i = 0; i < tool.points.size(); ++i)
        {
            user.ClickView(tool.points[i]);
            user.MoveInView(tool.points[i] + QPointF(60, 35));
            user.TakeStatusBar(QString("prompt-%1-%2").arg(tool.command).arg(i + 1));
            user.Take(QString("tool-%1-%2").arg(tool.command).arg(i + 1));
        }
        user.Rest();
    }
    user.Press({"ctrl+0"});
}

void TakeRibbon(Photographer& user)
{
    user.TakeRibbon("ribbon-drawing");
    user.Press({"F10"});
    user.Take("key-tips");
    user.Press({"1"});
    user.Take("key-tips-start");
    user.Press({"Escape", "Escape"});
    user.TakeRibbon("ribbon-start");
    user.Press({"F10", "2", "Escape", "Escape"});
}

void TakePanes(Photographer& user)
{
    user.Press({"ctrl+a"});
    user.Take("selection");
    for (const char* pane : {"Entities", "PropertyWidget", "Journal"})
        user.TakePane(pane, QString("pane-%1").arg(pane));
    user.ClickTab("Journal", 1);
    user.TakePane("Inspector", "pane-Inspector");
    user.ClickTab("Inspector", 0);
    user.Press({"Escape"});
    user.ClickView({-47.5, 0});
    user.TakePane("PropertyWidget", "pane-one-entity");
    user.Press({"ctrl+a"});
    user.OpenMenu("Sketcher.Panes", "Sketcher.Pane.Layers");
    user.Take("menu-panes");
    user.Press({"Escape"});
    user.OpenMenu("Sketcher.Zoom", "Sketcher.Zoom.Window");
    user.Take("menu-zoom");
    user.Press({"Escape"});
    user.RightClickView({-100, 0});
    user.Take("menu-context");
    user.Press({"Escape"});
}

/// Takes the dialog that has been opened, and closes it.
void TakeDialog(Photographer& user, const QString& name)
{
    user.WaitForDialog();
    user.TakeWindow(name);
    user.Press({"Escape"});
    user.WaitForMainWindow();
}

void TakeDialogs(Photographer& user)
{
    struct Dialog
    {
        const char* keys;
        const char* name;
    };
    for (const Dialog& dialog :
         {Dialog{"ctrl+comma", "dialog-settings"}, Dialog{"ctrl+o", "dialog-open"},
          Dialog{"ctrl+shift+s", "dialog-save"}, Dialog{"ctrl+p", "dialog-print"},
          Dialog{"F1", "dialog-help"}})
    {
        user.Press({dialog.keys});
        TakeDialog(user, dialog.name);
    }
    user.Press({"F10", "1", "Escape", "Escape"});
    for (const Dialog& dialog :
         {Dialog{"Sketcher.Export", "dialog-export"}, Dialog{"Sketcher.Import", "dialog-import"},
          Dialog{"Sketcher.About", "dialog-about"}})
    {
        user.Click(dialog.keys);
        TakeDialog(user, dialog.name);
    }
    user.Press({"F10", "2", "Escape", "Escape"});
}

/// Draws the plate, with pictures of all that is on the way, and saves it.
void TakeDrawing(Photographer& user, const QString& file)
{
    user.Start();
    user.Take("start");
    DrawPlate(user);
    user.Take("plate");
    TakeRibbon(user);
    TakeTyping(user);
    TakePanes(user);
    TakeDialogs(user);
    TakePrompts(user);
    user.Press({"ctrl+s"});
    user.WaitForDialog();
    user.Type(file, {"Return"});
    user.WaitForMainWindow();
    user.Take("saved");
    user.End();
}

/// A DXF section; group codes and values are separated by blanks.
QByteArray DxfSection(const QByteArray& name, const QByteArray& content)
{
    return QByteArray("0 SECTION 2 " + name + ' ' + content + " 0 ENDSEC ").replace(' ', '\n');
}

/// The plate, with its holes on a layer of their own.
QByteArray PlateWithLayers()
{
    const QByteArray layer("0 LAYER 70 0 6 CONTINUOUS 2 ");
    const QByteArray line("0 LINE 8 Plate 10 %1 20 %2 11 %3 21 %4 ");
    QByteArray lines;
    const int corners[5][2] = {{-100, -60}, {100, -60}, {100, 60}, {-100, 60}, {-100, -60}};
    for (int i = 0; i < 4; ++i)
        lines += QString(line)
                     .arg(corners[i][0])
                     .arg(corners[i][1])
                     .arg(corners[i + 1][0])
                     .arg(corners[i + 1][1])
                     .toLatin1();
    return DxfSection("HEADER", "9 $INSUNITS 70 4") +
           DxfSection("TABLES", "0 TABLE 2 LAYER 70 2 " + layer + "Plate 62 7 " + layer +
                                    "Holes 62 5 0 ENDTAB") +
           DxfSection("ENTITIES", lines + "0 CIRCLE 8 Holes 10 -60 20 0 40 12.5 "
                                          "0 CIRCLE 8 Holes 10 60 20 0 40 12.5") +
           "0\nEOF\n";
}

void WriteFile(Photographer& user, const QString& name, const QByteArray& content)
{
    QFile file(user.PathOf(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        user.Fail("writing " + name);
}

/// What the program says about files that it cannot open as they are.
void TakeFileMessages(Photographer& user, const QString& drawing)
{
    WriteFile(user, "damaged.vsk", "{\"format\":\"vesk-drawing\",\"version\":1,\n\"name\":12");
    WriteFile(user, "newer.vsk", "{\"format\":\"vesk-drawing\",\"version\":99}");
    WriteFile(user, "plan.dxf",
              DxfSection("ENTITIES", "0 LINE 8 0 10 0 20 0 11 100 21 50 "
                                     "0 TEXT 8 0 10 0 20 0 40 5 1 A") +
                  "0\nEOF\n");
    for (const char* name : {"damaged", "newer"})
    {
        user.StartPlain({user.PathOf(QString(name) + ".vsk")});
        TakeDialog(user, QString("message-") + name);
        user.End();
    }
    user.StartPlain({user.PathOf("plan.dxf")});
    user.WaitForDialog();
    user.TakeWindow("question-unit");
    user.Press({"Return"});
    user.Take("import-report");
    user.Kill();
    user.StartPlain({drawing});
    user.Press({"Escape"});
    DrawHole(user, {0, 0});
    user.Press({"ctrl+w"});
    TakeDialog(user, "question-unsaved");
}

void TakeLayers(Photographer& user)
{
    WriteFile(user, "plate.dxf", PlateWithLayers());
    user.Start({user.PathOf("plate.dxf")});
    user.ClickTab("Entities", 1);
    user.Take("layers");
    user.TakePane("Layers", "pane-Layers");
    user.ClickTab("Layers", 0);
    user.End();
}

/// Where pictures are taken, and in which language.
struct Studio
{
    const XServer& server;
    QString language;
    QString folder;
};

/// A second program opens the drawing that a first one has open.
bool TakeLock(const Studio& studio, const QString& drawing)
{
    Photographer second(studio.server, {studio.language, "light"}, studio.folder);
    second.StartPlain({drawing});
    second.WaitForDialog();
    second.TakeWindow("question-locked");
    second.Kill();
    return second.HasSucceeded();
}

bool TakeDrawings(const Studio& studio)
{
    Photographer user(studio.server, {studio.language, "light"}, studio.folder);
    const QString drawing = user.PathOf("plate.vsk");
    TakeDrawing(user, drawing);
    TakeLayers(user);
    TakeFileMessages(user, drawing);
    const bool isRight = user.HasSucceeded() && TakeLock(studio, drawing);
    user.Kill();
    return isRight;
}

/// What is offered after the program was killed.
bool TakeRecovery(const Studio& studio)
{
    Photographer user(studio.server, {studio.language, "light"}, studio.folder);
    user.StartPlain();
    DrawPlate(user);
    user.Kill();
    user.StartPlain();
    user.TakeRibbon("recovery");
    user.Kill();
    return user.HasSucceeded();
}

bool TakeWarning(const Studio& studio)
{
    Photographer user(studio.server, {studio.language, "light"}, studio.folder);
    user.Start({"--raise-warnings", "plain"});
    user.WaitForDialog();
    user.TakeWindow("warning");
    user.Kill();
    return user.HasSucceeded();
}

/// The plate in colours that are chosen in the settings.
bool TakeColours(const Studio& studio, const QString& colours, const QString& name)
{
    Photographer user(studio.server, {studio.language, colours}, studio.folder);
    user.Start();
    DrawPlate(user);
    user.Press({"ctrl+a"});
    user.Take(name);
    user.End();
    return user.HasSucceeded();
}

}

bool Run(const QString& language, const QString& folder)
{
    XServer server;
    if (!server.Start())
    {
        std::fprintf(stderr, "pictures: %s\n", qPrintable(server.GetError()));
        return false;
    }
    const Studio studio{server, language, folder};
    return TakeDrawings(studio) && TakeRecovery(studio) && TakeWarning(studio) &&
           TakeColours(studio, "dark", "dark") && TakeColours(studio, "contrast", "high-contrast");
}

}

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    if (argc != 3)
    {
        std::fprintf(stderr, "usage: desktop_pictures LANGUAGE FOLDER\n");
        return 2;
    }
    const QString language = QString::fromLocal8Bit(argv[1]);
    const bool isRight =
        vesk::Run(language == "zh" ? QString() : language, QString::fromLocal8Bit(argv[2]));
    return isRight ? 0 : 1;
}

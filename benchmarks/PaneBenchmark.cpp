// Whether a step in a large drawing costs what it changes, not what the drawing holds: drawing,
// journal, panes and ribbon together. The picture of the drawing is asked about elsewhere; only the
// question about colours contains it.

#include "Harness/Question.h"
#include "SampleDrawing.h"
#include "SketcherDesk.h"

#include "Model/DocumentFile.h"
#include "Panes/EntityPane.h"

#include "Journal/JournalRecord.h"

#include <QTreeView>

#include <map>
#include <numeric>
#include <string>
#include <utility>

using namespace vesk;

namespace
{

SketcherDesk& TheDesk()
{
    // Not destroyed: main destroys the application first.
    static auto* s_pDesk = new SketcherDesk;
    return *s_pDesk;
}

/// Shows a drawing of that many entities, which fills the view, with nothing selected.
SketcherDesk& DeskWith(long count)
{
    static long s_shown = 0;
    SketcherDesk& desk = TheDesk();
    if (std::exchange(s_shown, count) != count)
        desk.Show(MakeSampleDrawing(count));
    return desk;
}

std::vector<int> AllIds(long count)
{
    std::vector<int> ids(static_cast<std::size_t>(count));
    std::iota(ids.begin(), ids.end(), 1);
    return ids;
}

/// The second click of a line, and what follows from it.
Side LineOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        SketcherDesk::Run(L"Sketcher.Line");
        desk.Click({700, 400});
        desk.Move({800, 500});
        desk.Settle();
        stopwatch.Time([&] {
            desk.Click({800, 500});
            desk.RespondWithoutPicture();
        });
        ActionManager::Reset();
        desk.workspace.sketch.Undo();
        desk.Settle();
    };
}

Side UndoOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        desk.workspace.sketch.AddLine({700, 400, 0}, {800, 500, 0});
        desk.Settle();
        stopwatch.Time([&] {
            SketcherDesk::Run(L"Sketcher.Undo");
            desk.RespondWithoutPicture();
        });
        desk.Settle();
    };
}

Side SelectAllOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        stopwatch.Time([&] {
            SketcherDesk::Run(L"Sketcher.SelectAll");
            desk.RespondWithoutPicture();
        });
        desk.workspace.selection.Select({});
        desk.Settle();
    };
}

Side SelectAllInListOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        auto* pList = desk.window.findChild<QAbstractItemView*>("Entities");
        stopwatch.Time([&] {
            pList->selectAll();
            desk.RespondWithoutPicture();
        });
        desk.workspace.selection.Select({});
        desk.Settle();
    };
}

Side SelectNoneOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        desk.workspace.selection.Select(AllIds(count));
        desk.Settle();
        stopwatch.Time([&] {
            desk.workspace.selection.Select({});
            desk.RespondWithoutPicture();
        });
        desk.Settle();
    };
}

Side ColourOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        SketcherDesk& desk = DeskWith(count);
        desk.workspace.selection.Select(AllIds(count));
        desk.Settle();
        static int s_colour = 0;
        s_colour = 1 + s_colour % 2;
        const std::wstring& name = LineColours()[static_cast<std::size_t>(s_colour)].name;
        stopwatch.Time([&] {
            desk.workspace.properties.Set(PropertyRecord{L"selection", L"colour", name});
            desk.Respond();
        });
        desk.workspace.selection.Select({});
        desk.Settle();
    };
}

/// A drawing of that many entities and its list.
struct ListedDrawing
{
    explicit ListedDrawing(long count)
    {
        workspace.sketch.Restore(MakeSampleDrawing(count));
        list.resize(240, 700);
        list.show();
        Show();
    }

    void Show()
    {
        list.UpdateStatus();
        QCoreApplication::processEvents();
    }

    Workspace workspace;
    EntityPane list{workspace};
};

/// Lines are added and undone, each shown in the list; without the rest of the window.
void AddAndUndo(Stopwatch& stopwatch, long count)
{
    constexpr int Repetitions = 5;
    static std::map<long, ListedDrawing*> s_drawings;
    ListedDrawing*& pDrawing = s_drawings[count];
    if (pDrawing == nullptr)
        pDrawing = new ListedDrawing(count);
    TheDesk().Settle();
    stopwatch.Time([&] {
        for (int i = 0; i < Repetitions; ++i)
        {
            pDrawing->workspace.sketch.AddLine({0, 0, 0}, {1, 1, 0});
            pDrawing->Show();
            pDrawing->workspace.sketch.Undo();
            pDrawing->Show();
        }
    });
}

/// In the window, as it is when it was read from a file and something was picked.
void AskAboutMemory()
{
    constexpr long Count = 100000;
    constexpr long BytesPerEntity = 250;
    Ask("S8 memory of 100,000 entities in the window")
        .Ours([](Stopwatch& stopwatch) {
            static const std::string s_file = DocumentFile::ToText(MakeSampleDrawing(Count));
            SketcherDesk& desk = DeskWith(0);
            stopwatch.Time([&desk] {
                desk.Show(DocumentFile::FromText(s_file).content);
                desk.Click({800, 500});
                desk.Settle();
            });
            desk.Show({});
        })
        .KeptBytesAtMost(Count * BytesPerEntity)
        .Rounds(3)
        .WithoutInstructions();
}

void AskAboutSize(long count)
{
    const std::string entities = std::to_string(count) + " entities";
    const auto ask = [&entities](const std::string& name, Side side, double bar) {
        Ask(name + ", " + entities)
            .Ours(std::move(side))
            .MillisecondsAtMost(bar)
            .Rounds(15)
            .WithoutInstructions();
    };
    ask("S5 a line is added by a click", LineOf(count), 5);
    ask("S5 it is undone", UndoOf(count), 5);
    ask("S7 all are selected by the command", SelectAllOf(count), 30);
    ask("S7 all are selected in the list", SelectAllInListOf(count), 30);
    ask("S7 none are selected", SelectNoneOf(count), 30);
    ask("S4 all selected get another colour, up to the whole picture", ColourOf(count), 250);
}

}

void AskQuestions()
{
    AskAboutMemory();
    AskAboutSize(10000);
    AskAboutSize(100000);
    Ask("S5 a line is added and undone, listed, 1,000 to 1,000,000 entities")
        .GrowsAtMost(0.1, {1000, 10000, 100000, 1000000}, &AddAndUndo)
        .Rounds(11)
        .WithoutInstructions();
}

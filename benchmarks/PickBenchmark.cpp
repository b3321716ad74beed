// Whether the cursor finds what is under it in a large drawing as fast as in a small one.

#include "Harness/Question.h"
#include "SampleDrawing.h"
#include "SketcherDesk.h"

#include "Model/Picking.h"

#include <cmath>
#include <map>
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

/// Shows a drawing of that many entities, which fills the view.
void Show(long count)
{
    static long s_shown = 0;
    if (std::exchange(s_shown, count) != count)
        TheDesk().Show(MakeSampleDrawing(count));
}

QPointF Place(int step)
{
    return {400.0 + 37 * (step % 20), 300.0 + 23 * (step % 17)};
}

void SnapToAll()
{
    for (int kind = 0; kind < Snapper::KindCount; ++kind)
        TheDesk().workspace.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);
}

/// Moves the mouse while a line is drawn from somewhere else.
Side MovesOf(long count, bool withPainting)
{
    return [=](Stopwatch& stopwatch) {
        Show(count);
        SketcherDesk& desk = TheDesk();
        SnapToAll();
        SketcherDesk::Run(L"Sketcher.Line");
        desk.Click({200, 200});
        desk.Settle();
        desk.Move({210, 210});
        static int s_step = 0;
        stopwatch.Time([&] {
            desk.Move(Place(++s_step));
            if (withPainting)
                desk.Respond();
        });
        ActionManager::Reset();
        desk.Settle();
    };
}

/// Clicks that select what is there, apart from the picture in which it is shown selected.
Side PicksOf(long count)
{
    return [=](Stopwatch& stopwatch) {
        Show(count);
        SketcherDesk& desk = TheDesk();
        static int s_step = 0;
        const QPointF place = Place(++s_step);
        desk.Move(place);
        desk.Settle();
        stopwatch.Time([&] {
            desk.Click(place);
            desk.RespondWithoutPicture();
        });
        desk.workspace.selection.Select({});
        desk.Settle();
    };
}

/// A drawing of that many entities, of which the view shows a thousand.
Workspace& WorkspaceOf(long count)
{
    constexpr double Visible = 1000;
    static std::map<long, Workspace> s_workspaces;
    const auto [place, isNew] = s_workspaces.try_emplace(count);
    Workspace& workspace = place->second;
    if (!isNew)
        return workspace;
    const double sheetWidth = 1600.0 * std::sqrt(static_cast<double>(count) / Visible);
    workspace.sketch.Restore(MakeSampleDrawing(count, sheetWidth));
    for (int kind = 0; kind < Snapper::KindCount; ++kind)
        workspace.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);
    return workspace;
}

/// Only the search, without window and painting.
void Search(Stopwatch& stopwatch, long count)
{
    constexpr int Repetitions = 50;
    Show(10000);
    Workspace& workspace = WorkspaceOf(count);
    SketchView& view = TheDesk().window.GetView();
    stopwatch.Time([&] {
        for (int i = 0; i < Repetitions; ++i)
        {
            const Vector3d world = view.GetCamera().ScreenToWorld(Place(i).x(), Place(i).y());
            workspace.snapper.Catch(world, &view);
            PickEntity(workspace.sketch, world, &view);
        }
    });
}

/// The first search, which packs the index, after another drawing was opened.
Side FirstSearchOf(long count)
{
    return [count](Stopwatch& stopwatch) {
        static const SketchContent s_content = MakeSampleDrawing(count);
        Sketch sketch;
        sketch.Restore(s_content, Digest());
        stopwatch.Time([&] { sketch.FindIn(Area::Around({800, 500, 0}, 10)); });
    };
}

}

void AskQuestions()
{
    for (const long count : {10000, 100000})
    {
        const std::string entities = std::to_string(count) + " entities";
        Ask("S6 mouse move while a line is drawn, all snaps, " + entities)
            .Ours(MovesOf(count, false))
            .MillisecondsAtMost(1)
            .WithoutInstructions();
        Ask("S6 the same with what it makes the window do, " + entities)
            .Ours(MovesOf(count, true))
            .WithoutInstructions();
        Ask("S6 pick by click, " + entities)
            .Ours(PicksOf(count))
            .MillisecondsAtMost(3)
            .WithoutInstructions();
    }
    Ask("S9 mouse move while a line is drawn, all snaps, 1,000,000 entities")
        .Ours(MovesOf(1000000, false))
        .MillisecondsAtMost(2)
        .Rounds(11)
        .WithoutInstructions();
    Ask("S6 snap and pick, 1,000 visible of 1,000 to 1,000,000")
        .GrowsAtMost(0.1, {1000, 10000, 100000, 1000000}, &Search)
        .Rounds(11)
        .WithoutInstructions();
    Ask("S9 first search, 1,000,000 entities")
        .Ours(FirstSearchOf(1000000))
        .Rounds(11)
        .WithoutInstructions();
}

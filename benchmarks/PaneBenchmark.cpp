// Whether a drawing of ten thousand entities is selected and shown in the panes without noticeable
// delay, and the cursor moves smoothly over it.

#include "Model/Workspace.h"
#include "Panes/EntityPane.h"
#include "Panes/JournalPane.h"
#include "Panes/PropertyPane.h"
#include "View/SketchView.h"

#include "HostCore.h"
#include "HostUi/ControlHost.h"
#include "HostUi/ControlLibrary.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/UiApplication.h"

#include <nlohmann/json.hpp>

#include <QApplication>
#include <QElapsedTimer>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int EntityCount = 10000;
constexpr int Rounds = 7;

/// A delay that users do not notice.
constexpr double LimitMs = 50.0;

struct Step
{
    std::string name;
    std::function<void()> act;
    std::vector<double> times;

    double Best() const { return *std::min_element(times.begin(), times.end()); }
    double Worst() const { return *std::max_element(times.begin(), times.end()); }
};

double Milliseconds(const std::function<void()>& act)
{
    QElapsedTimer timer;
    timer.start();
    act();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// The view, and the three panes that show the entities, the selection and the journal.
struct Bench
{
    Bench()
    {
        for (int i = 0; i < EntityCount; ++i)
        {
            const double angle = 0.001 * i;
            all.push_back(workspace.sketch.AddLine({0, 0, 0}, {10 + angle, 1.0 * i, 0}));
        }
        for (QWidget* pPane : {static_cast<QWidget*>(&entities), static_cast<QWidget*>(&journal),
                               static_cast<QWidget*>(pProperties.get())})
        {
            pPane->resize(240, 700);
            pPane->show();
        }
        view.resize(1000, 700);
        view.show();
        view.ZoomAll();
        PaintView();
        pList = entities.findChild<QTreeView*>(QStringLiteral("Entities"));
        Refresh();
    }

    ~Bench() { controls.reset(); }

    void Refresh()
    {
        entities.UpdateStatus();
        journal.UpdateStatus();
        pProperties->UpdateStatus();
        for (QWidget* pWidget :
             {static_cast<QWidget*>(pList->viewport()), static_cast<QWidget*>(&journal),
              static_cast<QWidget*>(pProperties.get())})
            pWidget->repaint();
    }

    void Select(const std::vector<int>& ids)
    {
        workspace.selection.Select(ids);
        Refresh();
    }

    void SelectAllInList()
    {
        pList->selectAll();
        Refresh();
    }

    void Scroll()
    {
        pList->scrollToBottom();
        pList->viewport()->repaint();
        pList->scrollToTop();
        pList->viewport()->repaint();
    }

    void PaintView()
    {
        view.Redraw();
        view.grab();
    }

    HostCore host;
    UiApplication application;
    ControlLibrary library;
    Workspace workspace;
    DimensionInputController input;
    SketchView view{workspace, input, nullptr};
    EntityPane entities{workspace};
    JournalPane journal;
    std::optional<ControlHost> controls{std::in_place};
    std::unique_ptr<PropertyPane> pProperties =
        std::make_unique<PropertyPane>(workspace, *controls);
    QTreeView* pList = nullptr;
    std::vector<int> all;
};

std::vector<Step> MakeSteps(Bench& bench)
{
    return {
        {"move over the drawing", [&bench] { bench.PaintView(); }, {}},
        {"select all in the list", [&bench] { bench.SelectAllInList(); }, {}},
        {"scroll down and up", [&bench] { bench.Scroll(); }, {}},
        {"select nothing", [&bench] { bench.Select({}); }, {}},
        {"select all in the drawing", [&bench] { bench.Select(bench.all); }, {}},
        {"one more entity",
         [&bench] {
             bench.workspace.sketch.AddLine({0, 0, 0}, {1, 0, 0});
             bench.Refresh();
         },
         {}},
        {"undo",
         [&bench] {
             bench.workspace.sketch.Undo();
             bench.Refresh();
         },
         {}},
    };
}

int Report(const std::vector<Step>& steps, const std::string& path)
{
    nlohmann::ordered_json table;
    table["entities"] = EntityCount;
    table["rounds"] = Rounds;
    table["limitMs"] = LimitMs;
    bool isGood = true;
    std::printf("a drawing of %d entities, %d rounds\n%-28s %10s %10s\n", EntityCount, Rounds,
                "step", "best/ms", "worst/ms");
    for (const Step& step : steps)
    {
        std::printf("%-28s %10.3f %10.3f\n", step.name.c_str(), step.Best(), step.Worst());
        table["steps"].push_back(
            {{"step", step.name}, {"bestMs", step.Best()}, {"worstMs", step.Worst()}});
        isGood = isGood && step.Best() <= LimitMs;
    }
    std::printf("%s: the limit is %.0f ms\n", isGood ? "good" : "TOO SLOW", LimitMs);
    std::ofstream file(path);
    file << table.dump(1) << '\n';
    if (!file.flush())
        return 2;
    return isGood ? 0 : 1;
}

}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc != 2)
        return 2;
    Bench bench;
    std::vector<Step> steps = MakeSteps(bench);
    for (int round = 0; round < Rounds; ++round)
    {
        for (Step& step : steps)
            step.times.push_back(Milliseconds(step.act));
        bench.Select({});
        bench.PaintView();
    }
    return Report(steps, argv[1]);
}

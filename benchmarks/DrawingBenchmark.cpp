// Whether a large drawing follows the hand: what a frame of a pan or a zoom costs, and when the
// whole picture is there again.

#include "Harness/Question.h"
#include "SampleDrawing.h"

#include "Model/Workspace.h"
#include "View/SketchView.h"

#include "HostCore.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/UiApplication.h"

#include <QCoreApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPixmap>
#include <QWheelEvent>

#include <cmath>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int Width = 1600;
constexpr int Height = 1000;

/// A view of a drawing, and the hand that moves it.
class Bench
{
public:
    Bench()
    {
        view.resize(Width, Height);
        view.show();
        QCoreApplication::processEvents();
    }

    /// Shows a drawing of that many entities, about that many of which are visible.
    void Show(long count, long visible, bool areSelected)
    {
        constexpr double GreatestSize = 100.0;
        const double sheet = std::sqrt(static_cast<double>(count) / static_cast<double>(visible));
        if (m_count != count || m_visible != visible)
            workspace.sketch.Restore(MakeSampleDrawing(count, sheet * Width, GreatestSize));
        m_count = count;
        m_visible = visible;
        const Vector3d middle(sheet * Width / 2.0, sheet * Height / 2.0, 0.0);
        view.Fit(middle, middle);
        view.SetPixelsPerUnit(1.0);
        std::vector<int> ids;
        for (int id = 1; areSelected && id <= count; ++id)
            ids.push_back(id);
        workspace.selection.Select(ids);
        Finish();
    }

    /// Lets the hand rest until all is painted.
    void Finish()
    {
        while (!view.IsWhole())
            QCoreApplication::processEvents();
        QCoreApplication::processEvents();
    }

    /// One step of the hand, and what it makes the view do.
    void Pan()
    {
        SendMouse(QEvent::MouseButtonPress, {800, 500});
        SendMouse(QEvent::MouseMove, {m_isBack ? 780.0 : 820.0, m_isBack ? 490.0 : 510.0});
        SendMouse(QEvent::MouseButtonRelease, {800, 500});
        PaintFrame();
    }

    /// In and out by turns, so that about as much stays visible.
    void Zoom()
    {
        TurnBack();
        QWheelEvent event({700, 400}, {700, 400}, {}, {0, m_isBack ? -120 : 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &event);
        PaintFrame();
    }

    void TurnBack() { m_isBack = !m_isBack; }

    /// Whether a red line across the sheet is seen at a pixel.
    bool IsRedAt(const QPoint& pixel)
    {
        const QColor colour = view.grab(QRect(pixel, QSize(1, 1))).toImage().pixelColor(0, 0);
        return colour.red() > 2 * colour.green();
    }

    HostCore host;
    UiApplication application;
    Workspace workspace;
    DimensionInputController input;
    SketchView view{workspace, input, nullptr};

    void PaintFrame()
    {
        view.repaint();
        QCoreApplication::processEvents();
    }

private:
    void SendMouse(QEvent::Type type, const QPointF& place)
    {
        QMouseEvent event(type, place, view.mapToGlobal(place.toPoint()), Qt::MiddleButton,
                          Qt::MiddleButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &event);
    }

    long m_count = 0;
    long m_visible = 0;
    bool m_isBack = false;
};

/// Never destroyed: the application is gone before objects of static life are.
Bench& TheBench()
{
    static Bench& s_bench = *new Bench;
    return s_bench;
}

/// What the view shows.
struct Scene
{
    long count;
    long visible;
    bool areSelected = false;

    int GetRounds() const { return count > 100000 ? 5 : 11; }
};

/// The last of some frames in a row, each before the former is refined.
Side FrameOf(const Scene& scene, void (Bench::*step)())
{
    return [scene, step](Stopwatch& stopwatch) {
        constexpr int Before = 4;
        Bench& bench = TheBench();
        bench.Show(scene.count, scene.visible, scene.areSelected);
        for (int i = 0; i < Before; ++i)
            (bench.*step)();
        stopwatch.Time([&] { (bench.*step)(); });
        bench.TurnBack();
    };
}

/// From the last step of the hand to the whole picture.
Side RestOf(const Scene& scene, void (Bench::*step)())
{
    return [scene, step](Stopwatch& stopwatch) {
        Bench& bench = TheBench();
        bench.Show(scene.count, scene.visible, scene.areSelected);
        stopwatch.Time([&] {
            (bench.*step)();
            bench.Finish();
        });
        bench.TurnBack();
    };
}

/// From when a pan uncovers a strip of the drawing, to when that is painted while the pan goes on:
/// up to the entity that comes last, a line through the middle of the sheet.
Side UncoveringOf(const Scene& scene)
{
    return [scene](Stopwatch& stopwatch) {
        constexpr int Steps = 200;
        Bench& bench = TheBench();
        bench.Show(scene.count, scene.visible, scene.areSelected);
        bench.workspace.sketch.SetCurrentPen(&Pen::colour, 1);
        bench.workspace.sketch.AddLine({-Width, Height / 2.0, 0}, {2 * Width, Height / 2.0, 0});
        bench.Finish();
        QPoint strip(1, Height / 2);
        int count = 0;
        do
        {
            stopwatch.Time([&] { bench.Pan(); });
            strip += count == 0 ? QPoint(0, 10) : QPoint(20, 10);
        } while (!bench.IsRedAt(strip) && ++count < Steps);
        if (count == Steps)
            qFatal("what a pan uncovers is not painted");
        bench.workspace.sketch.Undo();
    };
}

/// All get another colour, up to the next frame: the picture is painted afterwards, in slices.
Side ColouringOf(const Scene& scene)
{
    return [scene](Stopwatch& stopwatch) {
        Bench& bench = TheBench();
        bench.Show(scene.count, scene.visible, scene.areSelected);
        static int s_colour = 0;
        s_colour = 1 + s_colour % 2;
        stopwatch.Time([&] {
            bench.workspace.sketch.SetPen(bench.workspace.selection.GetIds(), &Pen::colour,
                                          s_colour);
            bench.workspace.sketch.GetDigest();
            bench.PaintFrame();
        });
        bench.Finish();
    };
}

void AskAboutFrames(const std::string& name, const Scene& scene, double milliseconds)
{
    for (const auto& [step, pStep] : {std::pair("pan", &Bench::Pan), {"zoom", &Bench::Zoom}})
        Ask(name + ", frame of a " + step)
            .Ours(FrameOf(scene, pStep))
            .MillisecondsAtMost(milliseconds)
            .WithoutInstructions()
            .Rounds(scene.GetRounds());
}

void AskAboutRest(const std::string& name, const Scene& scene, double milliseconds)
{
    for (const auto& [step, pStep] : {std::pair("pan", &Bench::Pan), {"zoom", &Bench::Zoom}})
        Ask(name + ", whole picture after a " + step)
            .Ours(RestOf(scene, pStep))
            .MillisecondsAtMost(milliseconds)
            .WithoutInstructions()
            .Rounds(scene.GetRounds());
}

}

void AskQuestions()
{
    AskAboutFrames("S1 10,000 entities", {10000, 10000}, 16);
    AskAboutFrames("S1 100,000 entities", {100000, 100000}, 16);
    AskAboutRest("S1 10,000 entities", {10000, 10000}, 30);
    AskAboutRest("S1 100,000 entities", {100000, 100000}, 230);
    Ask("S1 100,000 entities, a strip that a pan uncovers is filled")
        .Ours(UncoveringOf({100000, 100000}))
        .MillisecondsAtMost(100)
        .WithoutInstructions()
        .Rounds(11);
    AskAboutFrames("S3 1,000 of 100,000 visible", {100000, 1000}, 6);
    AskAboutFrames("S3 50 of 100,000 visible", {100000, 50}, 3);
    AskAboutFrames("S4 100,000 entities, all selected", {100000, 100000, true}, 32);
    Ask("S4 100,000 entities, all selected, get another colour, up to the next frame")
        .Ours(ColouringOf({100000, 100000, true}))
        .MillisecondsAtMost(250)
        .WithoutInstructions()
        .Rounds(11);
    AskAboutFrames("S9 1,000,000 entities", {1000000, 1000000}, 33);
    AskAboutFrames("S9 50 of 1,000,000 visible", {1000000, 50}, 3);
    AskAboutRest("S9 1,000,000 entities", {1000000, 1000000}, 2500);
}

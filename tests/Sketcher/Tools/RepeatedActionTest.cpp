#include "Tools/ActionFixture.h"
#include "Tools/ArcCentreAction.h"
#include "Tools/ArcThreePointsAction.h"
#include "Tools/CircleAction.h"
#include "Tools/LineAction.h"
#include "Tools/MirrorAction.h"
#include "Tools/MoveAction.h"
#include "Tools/OffsetAction.h"
#include "Tools/RectangleAction.h"
#include "Tools/RotateAction.h"

#include <random>

using namespace vesk;

namespace
{

constexpr int Runs = 300;
constexpr int StepsOfARun = 40;

/// A user who acts at random.
class Restless
{
public:
    explicit Restless(unsigned seed) : m_random(seed) {}

    template <class Action>
    void Do(ActionFixture<Action>& f)
    {
        switch (Choose(6))
        {
        case 0:
        case 1:
            f.workspace.isDirectionHeld = Choose(4) == 0;
            return f.MoveTo(Place(), Place());
        case 2:
        case 3:
            return f.ClickAt(Place(), Place());
        case 4:
            return f.Type(Kind(), Value(), Choose(4) == 0);
        default:
            if (Choose(4) == 0)
                f.action.OnEscape();
        }
    }

private:
    int Choose(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }

    /// Often the same positions again, and often on a line.
    double Place() { return Choose(3) == 0 ? 10.0 * Choose(4) : Choose(100000) / 333.3 - 150.0; }

    double Value()
    {
        constexpr double Special[] = {0.0, 90.0, -90.0, 360.0, 1e-6, 1e9, 1e-12, 180.0, 45.0};
        return Choose(2) == 0 ? Special[Choose(9)] : Choose(100000) / 77.7 - 300.0;
    }

    ActionViewInput::Kind Kind()
    {
        constexpr ActionViewInput::Kind Kinds[] = {
            ActionViewInput::LengthEntered,         ActionViewInput::LengthCommitted,
            ActionViewInput::AngleEntered,          ActionViewInput::AngleCommitted,
            ActionViewInput::WidthEntered,          ActionViewInput::WidthCommitted,
            ActionViewInput::HeightEntered,         ActionViewInput::HeightCommitted,
            ActionViewInput::RadiusCommitted,       ActionViewInput::RadiusWithAngleCommitted,
            ActionViewInput::CentralAngleCommitted,
        };
        return Kinds[Choose(11)];
    }

    std::mt19937 m_random;
};

void DrawThree(Workspace& workspace)
{
    workspace.sketch.AddLine({0, 0, 0}, {40, 0, 0});
    workspace.sketch.Add(CircleShape{{50, 60, 0}, 1.0 / 3.0, {0, 0, 1}});
    workspace.sketch.AddLine({0, -80, 0}, {40, -80, 0});
}

/// How many runs changed the drawing; the test fails if a run cannot be replayed.
template <class Action, class Prepare>
std::size_t RunAll(const Prepare& prepare)
{
    std::size_t steps = 0;
    for (unsigned seed = 1; seed <= Runs; ++seed)
    {
        ActionFixture<Action> f;
        prepare(f.workspace);
        const std::string before = f.workspace.sketch.GetDigest();
        Restless user(seed);
        f.Begin();
        for (int i = 0; i < StepsOfARun && !f.action.IsFinished(); ++i)
        {
            user.Do(f);
            // What the action shows can be created at any time.
            f.action.CreateDimensionContext();
            f.action.CreateRubberBand();
        }
        steps += f.workspace.sketch.GetDigest() != before ? 1 : 0;
        const QByteArray name = QByteArray::number(seed);
        if (!f.IsRepeated(prepare))
            QTest::qFail(name.constData(), __FILE__, __LINE__);
    }
    return steps;
}

void PrepareNothing(Workspace&) {}

}

/// Whatever a user does, the journal reproduces the drawing bit for bit.
class RepeatedActionTest final : public QObject
{
    Q_OBJECT

private slots:
    void lines() { QVERIFY(RunAll<LineAction>(&PrepareNothing) > Runs / 2); }
    void rectangles() { QVERIFY(RunAll<RectangleAction>(&PrepareNothing) > Runs / 2); }
    void circles() { QVERIFY(RunAll<CircleAction>(&PrepareNothing) > Runs / 2); }
    void threePointArcs() { QVERIFY(RunAll<ArcThreePointsAction>(&PrepareNothing) > Runs / 2); }
    void centreArcs() { QVERIFY(RunAll<ArcCentreAction>(&PrepareNothing) > Runs / 2); }
    void turns() { QVERIFY(RunAll<RotateAction>(&DrawThree) > Runs / 2); }
    void moves() { QVERIFY(RunAll<MoveAction>(&DrawThree) > Runs / 2); }
    void copies() { QVERIFY(RunAll<CopyAction>(&DrawThree) > Runs / 2); }
    void mirrorImages() { QVERIFY(RunAll<MirrorAction>(&DrawThree) > Runs / 2); }
    void parallels() { QVERIFY(RunAll<OffsetAction>(&DrawThree) > Runs / 2); }
};

VESK_TESTS(RepeatedActionTest);
#include "RepeatedActionTest.moc"

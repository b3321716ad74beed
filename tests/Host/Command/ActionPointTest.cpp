#include "Host/Command/ActionFixture.h"

#include "Support/IdleAction.h"
#include "Support/TestValues.h"

#include <optional>

namespace vesk
{

namespace
{

/// What an action does with points given by their coordinates, and what it was given.
struct PointScript
{
    bool takesPoint = true;
    bool isUsable = true;
    bool endsWithIt = false;
    std::optional<Vector3d> point;
};

class PointTaker final : public test::IdleAction
{
public:
    explicit PointTaker(PointScript& script) : m_script(script) {}

    bool TakesPoint() const override { return m_script.takesPoint; }
    bool OnPoint(const Vector3d& world) override
    {
        m_script.point = world;
        return m_script.isUsable;
    }
    bool IsFinished() const override { return m_script.endsWithIt && m_script.point.has_value(); }

private:
    PointScript& m_script;
};

/// Repeats points from the journal, and overrides nothing else.
class PointRepeater final : public test::IdleAction
{
public:
    explicit PointRepeater(std::optional<Vector3d>& point) : m_point(point) {}

    bool ReplayPoint(const Vector3d& world, const std::optional<int>& entity) override
    {
        m_point = world;
        return !entity.has_value();
    }

private:
    std::optional<Vector3d>& m_point;
};

struct Fixture : ActionFixture
{
    explicit Fixture(const PointScript& given = {}) : script(given)
    {
        ICommandManager::Get()->AddCommand(
            MakeOwner<Command>(L"Point", Command::Kind::Interactive,
                               [this](IUiView*, const CommandParameters&) -> OwnerPtr<IAction> {
                                   return MakeOwner<PointTaker>(script);
                               }));
    }

    /// Gives the point 1, 2 while the action runs. Returns whether it was used.
    bool GivePoint()
    {
        bool isUsed = false;
        loop.Post([&] { isUsed = ActionManager::ProcessPoint(&view, {1, 2, 0}); });
        Choose("Point");
        return isUsed;
    }

    PointScript script;
};

}

/// Points that are given to an action by their coordinates.
class ActionPointTest final : public QObject
{
    Q_OBJECT

private slots:
    void pointReachesTheAction()
    {
        Fixture f;

        QVERIFY(f.GivePoint());

        QCOMPARE(*f.script.point, Vector3d(1, 2, 0));
    }

    void pointIsNotGivenWhereNoneIsTaken()
    {
        PointScript script;
        script.takesPoint = false;
        Fixture f(script);

        QVERIFY(!f.GivePoint());

        QVERIFY(!f.script.point.has_value());
    }

    void pointThatCannotBeUsedIsReported()
    {
        PointScript script;
        script.isUsable = false;
        Fixture f(script);

        QVERIFY(!f.GivePoint());
    }

    void lastPointEndsTheAction()
    {
        PointScript script;
        script.endsWithIt = true;
        Fixture f(script);

        QVERIFY(f.GivePoint());

        QVERIFY(ActionManager::GetRunningCommandId().empty());
    }

    void nobodyTakesAPointWithoutAnAction()
    {
        Fixture f;

        QVERIFY(!ActionManager::ProcessPoint(&f.view, Vector3d::Zero()));
    }

    void actionDoesWithAPointWhatAReplayDoes()
    {
        std::optional<Vector3d> point;
        PointRepeater action(point);

        QVERIFY(!action.TakesPoint());
        QVERIFY(action.OnPoint({3, 4, 0}));

        QCOMPARE(*point, Vector3d(3, 4, 0));
    }
};

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::ActionPointTest);
#include "ActionPointTest.moc"

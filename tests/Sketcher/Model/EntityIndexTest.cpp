#include "Model/EntityIndex.h"

#include "Model/Grid.h"
#include "Model/Picking.h"
#include "Model/PlainSearch.h"
#include "Model/RandomChanges.h"
#include "Model/SketchEntities.h"
#include "Support/TestValues.h"
#include "Support/TestView.h"

#include <string>

using vesk::Vector3d;

namespace
{

constexpr int DrawingCount = 50;

Ids IdsOf(const std::vector<const Entity*>& entities)
{
    Ids ids;
    for (const Entity* pEntity : entities)
        ids.push_back(pEntity->id);
    return ids;
}

/// A drawing that is changed at random, and a view of it at one unit per pixel.
struct Fixture
{
    explicit Fixture(unsigned seed) : changes(sketch, seed) {}

    /// A few changes, each followed by a search, so that the index has to follow each of them.
    void Change()
    {
        for (int i = 0; i < 6; ++i)
        {
            changes.Make();
            sketch.FindIn(Area::Around({50, 50, 0}, 5));
        }
    }

    Area AnyArea() { return Area::Between(changes.Point(), changes.Point()); }

    Sketch sketch;
    RandomChanges changes;
    PlainSearch plain{sketch};
    vesk::test::TestView view{1, nullptr};
    Snapper snapper{sketch};
};

bool IsIn(const Area& area, const Vector3d& point)
{
    return point.x() >= area.low.x() && point.x() <= area.high.x() && point.y() >= area.low.y() &&
           point.y() <= area.high.y();
}

/// Whether the bounds of the outline or the centre are in the area, if that is larger by so much.
bool MustBeFound(const Entity& entity, const Area& area, double more)
{
    const Vector3d edge(more, more, 0);
    const Area larger{area.low - edge, area.high + edge};
    const ShapeBounds bounds = BoundsOf(entity.shape);
    const std::optional<Vector3d> centre = CentreOf(entity.shape);
    const bool isOutlineApart =
        bounds.low.x() > larger.high.x() || bounds.high.x() < larger.low.x() ||
        bounds.low.y() > larger.high.y() || bounds.high.y() < larger.low.y();
    return !isOutlineApart || (centre.has_value() && IsIn(larger, *centre));
}

Ids InAreaByLookingAtAll(const Sketch& sketch, const Area& area, double more)
{
    Ids ids;
    for (const Entity& entity : sketch.GetEntities())
    {
        if (MustBeFound(entity, area, more))
            ids.push_back(entity.id);
    }
    return ids;
}

void AddDrawings()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= DrawingCount; ++seed)
        QTest::newRow(std::to_string(seed).c_str()) << seed;
}

}

class EntityIndexTest final : public QObject
{
    Q_OBJECT

private slots:
    void entitiesInAnAreaAreFoundInDrawingOrder_data() { AddDrawings(); }

    void entitiesInAnAreaAreFoundInDrawingOrder()
    {
        QFETCH(unsigned, seed);
        Fixture f(seed);

        for (int round = 0; round < 20; ++round)
        {
            f.Change();
            const Area area = f.AnyArea();
            const Ids found = IdsOf(f.sketch.FindIn(area));

            const Ids sought = InAreaByLookingAtAll(f.sketch, area, 0.0);
            const Ids tolerated = InAreaByLookingAtAll(f.sketch, area, 10.0);
            QVERIFY(std::is_sorted(found.begin(), found.end()));
            QVERIFY(std::includes(found.begin(), found.end(), sought.begin(), sought.end()));
            QVERIFY(std::includes(tolerated.begin(), tolerated.end(), found.begin(), found.end()));
        }
    }

    void pickingFindsWhatLookingAtAllFinds_data() { AddDrawings(); }

    void pickingFindsWhatLookingAtAllFinds()
    {
        QFETCH(unsigned, seed);
        Fixture f(seed);

        for (int round = 0; round < 20; ++round)
        {
            f.Change();
            const Vector3d point = f.changes.Point();
            const double reach = CursorReach(&f.view);

            QCOMPARE(PickEntity(f.sketch, point, &f.view), f.plain.Pick(point, reach));
        }
    }

    void boxesSelectWhatLookingAtAllFinds_data() { AddDrawings(); }

    void boxesSelectWhatLookingAtAllFinds()
    {
        QFETCH(unsigned, seed);
        Fixture f(seed);

        for (int round = 0; round < 20; ++round)
        {
            f.Change();
            const Area area = f.AnyArea();

            for (const AreaRule rule : {AreaRule::Holds, AreaRule::Touches})
                QCOMPARE(FindInArea(f.sketch, area, rule), f.plain.InArea(area, rule));
        }
    }

    void theCursorSnapsToWhatLookingAtAllFinds_data() { AddDrawings(); }

    void theCursorSnapsToWhatLookingAtAllFinds()
    {
        QFETCH(unsigned, seed);
        Fixture f(seed);
        for (int kind = 0; kind < Snapper::KindCount; ++kind)
            f.snapper.SetOn(static_cast<Snapper::Kind>(kind), true);

        for (int round = 0; round < 40; ++round)
        {
            f.Change();
            const bool withEnds = round % 4 == 0;
            f.snapper.SetOn(Snapper::End, withEnds);
            f.view.GetCamera().SetWorldPerPixel(round % 2 == 0 ? 0.1 : 1.0);
            const Vector3d cursor = f.changes.Point() + Vector3d(0.25, 0.5, 0);
            const Vector3d point = f.snapper.Catch(cursor, &f.view);

            const auto caught =
                f.plain.Snap(cursor, CursorReach(&f.view),
                             GridStep(f.view.GetCamera().GetWorldPerPixel()), withEnds);
            QCOMPARE(f.snapper.GetCaught().has_value(), caught.has_value());
            QCOMPARE(point, caught.has_value() ? caught->point : cursor);
            QVERIFY(!caught.has_value() || caught->kind == f.snapper.GetCaught()->kind);
        }
    }

    void anotherDrawingIsSoughtAfterARestore()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        sketch.AddLine({90, 0, 0}, {91, 0, 0});
        QCOMPARE(IdsOf(sketch.FindIn(Area::Around({0, 0, 0}, 2))), Ids{1});

        SketchContent content;
        content.entities = {{1, LineShape{{90, 1, 0}, {91, 1, 0}}, {}},
                            {2, LineShape{{0, 1, 0}, {1, 1, 0}}, {}}};
        content.lastId = 2;
        sketch.Restore(content);

        QCOMPARE(IdsOf(sketch.FindIn(Area::Around({0, 0, 0}, 2))), Ids{2});
    }

    /// The end of an arc may be beside its circle, if only by rounding. In single precision, too,
    /// it is to the left of the point sought.
    void anOutlineBesideItsOwnEndIsFound()
    {
        Sketch sketch;
        vesk::test::TestView view(1, nullptr);
        view.GetCamera().SetWorldPerPixel(1e-5);
        constexpr double Radius = 1 << 20;
        const Vector3d centre((std::exp2(-24) + 5e-10) * Radius, 0, 0);
        const auto at = [&centre](double share, double angle) {
            return Vector3d(centre +
                            share * Radius * Vector3d(std::cos(angle), std::sin(angle), 0));
        };
        const ArcShape arc{centre, Radius, at(1 - 9e-10, 1e-6), at(1, 1)};
        const int id = sketch.Add(arc);

        const Vector3d point = at(1, 2e-6);

        QVERIFY(point.x() - CursorReach(&view) > BoundsOf(arc).high.x());
        QCOMPARE(PickEntity(sketch, point, &view), id);
    }

    void theLargestDrawingsAreFound()
    {
        Sketch sketch;
        const int small = sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const int far = sketch.AddLine({1e150, 0, 0}, {1e150, 1e9, 0});

        QCOMPARE(IdsOf(sketch.FindIn(Area::Around({1e150, 5e8, 0}, 1))).back(), far);
        QCOMPARE(IdsOf(sketch.FindIn(Area::Around({0, 0, 0}, 1))), Ids{small});
    }
};

VESK_TESTS(EntityIndexTest);
#include "EntityIndexTest.moc"

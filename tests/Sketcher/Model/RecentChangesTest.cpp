#include "Model/RecentChanges.h"

#include "Model/RandomChanges.h"
#include "Model/SketchEntities.h"
#include "Support/TestValues.h"

#include <map>

namespace
{

using Entities = std::map<int, Entity>;

Entities EntitiesOf(const Sketch& sketch)
{
    Entities entities;
    for (const Entity& entity : sketch.GetEntities())
        entities.emplace(entity.id, entity);
    return entities;
}

bool IsSame(const Entities& before, const Entities& after, int id)
{
    const auto a = before.find(id);
    const auto b = after.find(id);
    return (a == before.end() || b == after.end()) ? a == before.end() && b == after.end()
                                                   : a->second == b->second;
}

/// The ascending ids of the entities that are in only one of them, or differ.
Ids Differences(const Entities& before, const Entities& after)
{
    Entities all = before;
    all.insert(after.begin(), after.end());
    Ids ids;
    for (const auto& [id, entity] : all)
    {
        if (!IsSame(before, after, id))
            ids.push_back(id);
    }
    return ids;
}

}

/// Which entities were concerned by the last changes.
class RecentChangesTest final : public QObject
{
    Q_OBJECT

private slots:
    void eachStepNamesItsEntities()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const auto before = sketch.GetRecentChanges().GetVersion();

        sketch.AddLine({0, 1, 0}, {1, 1, 0});
        sketch.AddLine({0, 2, 0}, {1, 2, 0});
        sketch.Erase(2);
        const auto afterErasing = sketch.GetRecentChanges().GetVersion();
        sketch.SetPen({1, 3}, &Pen::colour, 2);

        QCOMPARE(sketch.GetRecentChanges().GetSince(before).value(), (Ids{1, 2, 3}));
        QCOMPARE(sketch.GetRecentChanges().GetSince(afterErasing).value(), (Ids{1, 3}));
        sketch.Undo();
        sketch.Undo();
        QCOMPARE(sketch.GetRecentChanges().GetSince(afterErasing).value(), (Ids{1, 2, 3}));
    }

    void stepsWithoutEntitiesNameNone()
    {
        Sketch sketch;
        const auto before = sketch.GetRecentChanges().GetVersion();

        sketch.AddLayer(L"walls");
        sketch.SetName(L"house");

        QCOMPARE(sketch.GetRecentChanges().GetSince(before).value(), Ids{});
    }

    void inAnotherDrawingAnyEntityMayBeDifferent()
    {
        Sketch sketch;
        const auto before = sketch.GetRecentChanges().GetVersion();

        sketch.Clear();

        QVERIFY(!sketch.GetRecentChanges().GetSince(before).has_value());
        const auto after = sketch.GetRecentChanges().GetVersion();
        QCOMPARE(sketch.GetRecentChanges().GetSince(after).value(), Ids{});
    }

    void aLargeChangeIsNotRemembered()
    {
        Sketch sketch;
        const auto before = sketch.GetRecentChanges().GetVersion();

        sketch.Add(std::vector<Sketch::PenShape>(101, {CircleShape{{0, 0, 0}, 1}, Pen()}), L"many");

        QVERIFY(!sketch.GetRecentChanges().GetSince(before).has_value());
    }

    void changesLongAgoAreForgotten()
    {
        Sketch sketch;
        sketch.AddLine({0, 0, 0}, {1, 0, 0});
        const auto before = sketch.GetRecentChanges().GetVersion();

        for (int i = 0; i < 100; ++i)
            sketch.AddLine({0, 0, 0}, {1, 1, 0});
        QCOMPARE(sketch.GetRecentChanges().GetSince(before).value().size(), std::size_t{100});
        sketch.AddLine({0, 0, 0}, {1, 1, 0});

        QVERIFY(!sketch.GetRecentChanges().GetSince(before).has_value());
        QVERIFY(sketch.GetRecentChanges().GetSince(before + 1).has_value());
    }

    void whatIsDifferentIsAlwaysNamed()
    {
        Sketch sketch;
        RandomChanges changes(sketch, 5);

        for (int round = 0; round < 300; ++round)
        {
            const Entities before = EntitiesOf(sketch);
            const auto version = sketch.GetRecentChanges().GetVersion();
            for (int i = changes.Below(3); i >= 0; --i)
                changes.Make();

            const auto named = sketch.GetRecentChanges().GetSince(version);
            const Ids differences = Differences(before, EntitiesOf(sketch));
            QVERIFY(!named.has_value() || std::includes(named->begin(), named->end(),
                                                        differences.begin(), differences.end()));
        }
    }
};

VESK_TESTS_WITHOUT_WINDOWS(RecentChangesTest);
#include "RecentChangesTest.moc"

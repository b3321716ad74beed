#include "Foundation/HandlerSlots.h"

#include "Host/AllocationCounter.h"
#include "Support/TestValues.h"

#include <algorithm>
#include <deque>
#include <random>
#include <vector>

namespace vesk
{

namespace
{

/// So many that they are no longer found by looking at each.
constexpr std::size_t Many = 1000;

/// Stands for a handler, of which only the address is used. Those of an array are as far apart as
/// pages of memory, the worst case for a table that looks at the middle bits of addresses.
struct alignas(4096) FarApart
{
    char content = 0;
};

/// The handlers in the order of their slots, without the empty ones.
std::vector<void*> GetHandlers(const HandlerSlots& list)
{
    std::vector<void*> handlers;
    for (std::size_t slot = 0; slot < list.GetCount(); ++slot)
        handlers.push_back(list.Get(slot));
    handlers.erase(std::remove(handlers.begin(), handlers.end(), nullptr), handlers.end());
    return handlers;
}

}

class HandlerSlotsTest : public QObject
{
    Q_OBJECT

private slots:
    void handlersKeepTheOrderInWhichTheyCame();
    void nullAndAHandlerThatHasASlotAreIgnored_data() { AddCounts(); }
    void nullAndAHandlerThatHasASlotAreIgnored();
    void removingLeavesTheOthersInTheirSlots_data() { AddCounts(); }
    void removingLeavesTheOthersInTheirSlots();
    void removingAnUnknownHandlerChangesNothing_data() { AddCounts(); }
    void removingAnUnknownHandlerChangesNothing();
    void removingNullBesideAnEmptySlotChangesNothing();
    void aRemovedHandlerThatComesAgainGetsTheLastSlot_data() { AddCounts(); }
    void aRemovedHandlerThatComesAgainGetsTheLastSlot();
    void emptySlotsAreDroppedWhenTheyAreMoreThanHalf();
    void droppingKeepsTheOrder();
    void handlersAreFoundAfterSlotsWereDropped();
    void theLastFewAreFoundWhereTheyAreNow();
    void isEmptyWhenAllHandlersLeft_data() { AddCounts(); }
    void isEmptyWhenAllHandlersLeft();
    void removingAndDroppingAllocateNothing();
    void slotsDoNotAccumulateOverManyComingsAndGoings();
    void randomChangesGiveWhatAPlainListGives();

private:
    /// A row for a number of handlers of which each is looked at, and one for a table.
    static void AddCounts()
    {
        QTest::addColumn<std::size_t>("count");
        QTest::newRow("few") << std::size_t{3};
        QTest::newRow("the most without a table") << std::size_t{16};
        QTest::newRow("the fewest with a table") << std::size_t{17};
        QTest::newRow("many") << Many;
    }
};

/// As many handlers as wanted, each in the slot of its number.
struct SlotsFixture
{
    explicit SlotsFixture(std::size_t count) : handlers(count)
    {
        for (FarApart& handler : handlers)
            list.Add(&handler);
    }

    void* Handler(std::size_t number) { return &handlers[number]; }

    std::vector<FarApart> handlers;
    HandlerSlots list;
};

using Fixture = SlotsFixture;

void HandlerSlotsTest::handlersKeepTheOrderInWhichTheyCame()
{
    Fixture f(Many);

    const std::vector<void*> handlers = GetHandlers(f.list);

    QCOMPARE(handlers.size(), Many);
    QVERIFY(std::is_sorted(handlers.begin(), handlers.end()));
}

void HandlerSlotsTest::nullAndAHandlerThatHasASlotAreIgnored()
{
    QFETCH(std::size_t, count);
    Fixture f(count);

    f.list.Add(nullptr);
    f.list.Add(f.Handler(0));
    f.list.Add(f.Handler(count - 1));

    QCOMPARE(f.list.GetCount(), count);
}

void HandlerSlotsTest::removingLeavesTheOthersInTheirSlots()
{
    QFETCH(std::size_t, count);
    Fixture f(count);

    f.list.Remove(f.Handler(0));

    QCOMPARE(f.list.GetCount(), count);
    QVERIFY(f.list.Get(0) == nullptr);
    QVERIFY(f.list.Get(1) == f.Handler(1));
    QVERIFY(f.list.Get(count - 1) == f.Handler(count - 1));
}

void HandlerSlotsTest::removingAnUnknownHandlerChangesNothing()
{
    QFETCH(std::size_t, count);
    Fixture f(count);
    FarApart unknown;
    f.list.Remove(f.Handler(0));

    f.list.Remove(&unknown);
    f.list.Remove(nullptr);
    f.list.Remove(f.Handler(0));

    QCOMPARE(GetHandlers(f.list).size(), count - 1);
    QVERIFY(!f.list.IsEmpty());
}

void HandlerSlotsTest::removingNullBesideAnEmptySlotChangesNothing()
{
    Fixture f(2);
    f.list.Remove(f.Handler(0));

    f.list.Remove(nullptr);

    QVERIFY(!f.list.IsEmpty());
}

void HandlerSlotsTest::aRemovedHandlerThatComesAgainGetsTheLastSlot()
{
    QFETCH(std::size_t, count);
    Fixture f(count);

    f.list.Remove(f.Handler(0));
    f.list.Add(f.Handler(0));

    QVERIFY(f.list.Get(0) == nullptr);
    QVERIFY(f.list.Get(count) == f.Handler(0));
}

void HandlerSlotsTest::emptySlotsAreDroppedWhenTheyAreMoreThanHalf()
{
    Fixture f(4);
    f.list.Remove(f.Handler(0));
    f.list.Remove(f.Handler(2));
    f.list.DropEmpty();
    QCOMPARE(f.list.GetCount(), std::size_t{4});

    f.list.Remove(f.Handler(1));
    f.list.DropEmpty();

    QCOMPARE(f.list.GetCount(), std::size_t{1});
    QVERIFY(f.list.Get(0) == f.Handler(3));
}

void HandlerSlotsTest::droppingKeepsTheOrder()
{
    Fixture f(Many);
    for (std::size_t i = 0; i < Many; ++i)
    {
        if (i % 3 != 0)
            f.list.Remove(f.Handler(i));
    }

    f.list.DropEmpty();

    const std::vector<void*> handlers = GetHandlers(f.list);
    QCOMPARE(f.list.GetCount(), handlers.size());
    QCOMPARE(handlers.size(), Many / 3 + 1);
    QVERIFY(std::is_sorted(handlers.begin(), handlers.end()));
}

void HandlerSlotsTest::handlersAreFoundAfterSlotsWereDropped()
{
    Fixture f(Many);
    for (std::size_t i = 0; i < Many - 100; ++i)
        f.list.Remove(f.Handler(i));
    f.list.DropEmpty();

    f.list.Add(f.Handler(Many - 1));
    f.list.Remove(f.Handler(Many - 100));

    QCOMPARE(f.list.GetCount(), std::size_t{100});
    QVERIFY(f.list.Get(0) == nullptr);
    QVERIFY(f.list.Get(99) == f.Handler(Many - 1));
}

void HandlerSlotsTest::theLastFewAreFoundWhereTheyAreNow()
{
    Fixture f(Many);
    for (std::size_t i = 0; i < Many - 3; ++i)
        f.list.Remove(f.Handler(i));
    f.list.DropEmpty();

    f.list.Add(f.Handler(Many - 2));
    f.list.Remove(f.Handler(Many - 2));

    QCOMPARE(f.list.GetCount(), std::size_t{3});
    QVERIFY(f.list.Get(1) == nullptr);
}

void HandlerSlotsTest::isEmptyWhenAllHandlersLeft()
{
    QFETCH(std::size_t, count);
    Fixture f(count);
    QVERIFY(!f.list.IsEmpty());

    for (std::size_t i = 0; i < count; ++i)
        f.list.Remove(f.Handler(i));
    QVERIFY(f.list.IsEmpty());
    f.list.DropEmpty();

    QVERIFY(f.list.IsEmpty());
    QCOMPARE(f.list.GetCount(), std::size_t{0});
}

void HandlerSlotsTest::removingAndDroppingAllocateNothing()
{
    Fixture f(Many);

    const std::size_t before = AllocationCounter::s_count;
    for (std::size_t i = 0; i < Many; ++i)
    {
        f.list.Remove(f.Handler(i));
        f.list.DropEmpty();
    }
    const std::size_t after = AllocationCounter::s_count;

    QCOMPARE(after - before, std::size_t{0});
}

void HandlerSlotsTest::slotsDoNotAccumulateOverManyComingsAndGoings()
{
    Fixture f(100);

    for (std::size_t i = 0; i < 100 * Many; ++i)
    {
        f.list.Remove(f.Handler(i % 100));
        f.list.DropEmpty();
        f.list.Add(f.Handler(i % 100));
    }

    QVERIFY(f.list.GetCount() <= 202);
    QCOMPARE(GetHandlers(f.list).size(), std::size_t{100});
}

void HandlerSlotsTest::randomChangesGiveWhatAPlainListGives()
{
    std::vector<FarApart> all(200);
    HandlerSlots list;
    std::vector<void*> plain;
    std::mt19937 random(25);

    for (int i = 0; i < 20000; ++i)
    {
        // The number present goes up and down, so that the table comes and goes.
        const std::size_t range = i / 1000 % 2 == 0 ? all.size() : 20;
        FarApart* pHandler = &all[random() % range];
        const auto found = std::find(plain.begin(), plain.end(), pHandler);
        const bool isAdded = random() % 3 != 0 && range == all.size();
        if (isAdded && found == plain.end())
            plain.push_back(pHandler);
        else if (!isAdded && found != plain.end())
            plain.erase(found);
        if (isAdded)
            list.Add(pHandler);
        else
            list.Remove(pHandler);
        if (random() % 2 == 0)
            list.DropEmpty();
        QVERIFY2(GetHandlers(list) == plain, qPrintable(QString("change %1").arg(i)));
    }
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::HandlerSlotsTest);
#include "HandlerSlotsTest.moc"

#include "ReplayPace.h"

#include "Journal/JournalRecord.h"
#include "Support/TestValues.h"

#include <QElapsedTimer>

#include <limits>

using namespace vesk;

namespace
{

JournalRecord MarkAt(int time)
{
    return {1, MarkRecord{"", time}};
}

const JournalRecord s_point{1, PointRecord{}};

std::vector<int> DuesOf(const std::vector<JournalRecord>& records)
{
    const ReplayPace pace(records);
    std::vector<int> dues;
    for (std::size_t i = 0; i < records.size(); ++i)
        dues.push_back(pace.GetDue(i));
    return dues;
}

}

/// When records are due in a replay in real time.
class ReplayPaceTest final : public QObject
{
    Q_OBJECT

private slots:
    void aStepIsDueWhenItWasFinished()
    {
        QCOMPARE(DuesOf({s_point, s_point, MarkAt(200), s_point, MarkAt(250)}),
                 (std::vector<int>{200, 200, 200, 250, 250}));
    }

    void recordsAfterTheLastMarkAreDueWithIt()
    {
        QCOMPARE(DuesOf({MarkAt(200), s_point}), (std::vector<int>{200, 200}));
    }

    void withoutTimesEverythingIsDueAtOnce()
    {
        QCOMPARE(DuesOf({s_point, {2, MarkRecord{"", std::nullopt}}}), (std::vector<int>{0, 0}));
    }

    void anotherSittingCountsFromItsOwnBegin()
    {
        QCOMPARE(DuesOf({MarkAt(200), MarkAt(30), MarkAt(90)}), (std::vector<int>{200, 230, 290}));
    }

    void timesBeyondTheGreatestCountAsThat()
    {
        constexpr int Greatest = std::numeric_limits<int>::max();

        QCOMPARE(DuesOf({MarkAt(Greatest), MarkAt(5), MarkAt(Greatest)}),
                 (std::vector<int>{Greatest, Greatest, Greatest}));
    }

    void waitingTakesAtLeastThatLong()
    {
        ReplayPace pace({MarkAt(150)});
        QElapsedTimer elapsed;
        elapsed.start();

        QVERIFY(pace.WaitFor(0, [] { return true; }));

        QVERIFY(elapsed.elapsed() >= 149);
    }

    void waitingEndsAtOnceIfItMustNotGoOn()
    {
        ReplayPace pace({MarkAt(1000000)});
        int asked = 0;

        QVERIFY(!pace.WaitFor(0, [&asked] { return ++asked < 3; }));

        QCOMPARE(asked, 3);
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ReplayPaceTest);
#include "ReplayPaceTest.moc"

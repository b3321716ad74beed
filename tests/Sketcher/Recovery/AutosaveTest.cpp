#include "Recovery/Autosave.h"

#include "Model/Sketch.h"
#include "Recovery/Snapshot.h"

#include "Command/ActionManager.h"
#include "Journal/JournalManager.h"
#include "Sketcher/WhileReplaying.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"

#include <QAbstractEventDispatcher>
#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimerEvent>
#include <QVector>

#include <memory>

using vesk::JournalManager;
using vesk::MarkRecord;

namespace
{

constexpr int MsPerMinute = 60000;

struct Fixture
{
    QString Journal() const { return folder.filePath("journal.jsonl"); }

    /// One step, with its mark; returns its number.
    int Draw(double length)
    {
        sketch.AddLine({0, 0, 0}, {length, 0, 0});
        return Mark();
    }

    int Mark() { return JournalManager::GetInstance().Add(MarkRecord{sketch.GetDigest(), {}}); }

    /// The intervals of the timers that run.
    QVector<int> Waits()
    {
        QVector<int> waits;
        const auto* pDispatcher = QAbstractEventDispatcher::instance();
        for (const auto& timer : pDispatcher->registeredTimers(&autosave))
            waits << timer.interval;
        return waits;
    }

    void Fire()
    {
        QTimerEvent event(0);
        QCoreApplication::sendEvent(&autosave, &event);
    }

    /// True once the snapshot that was begun has been written.
    bool IsSaved() { return saved.count() > 0 || saved.wait(vesk::test::PatienceMs); }

    vesk::test::HostFixture host;
    QTemporaryDir folder;
    Sketch sketch;
    Autosave autosave{sketch, [this] { return Journal(); }};
    QSignalSpy saved{&autosave, &Autosave::saved};
};

}

/// Snapshots that are taken while the user draws.
class AutosaveTest final : public QObject
{
    Q_OBJECT

private slots:
    void aSnapshotIsTheDrawingAfterItsRecord()
    {
        Fixture f;
        const int record = f.Draw(5);
        JournalManager::GetInstance().Add(vesk::SelectionRecord());

        QVERIFY(f.autosave.SaveNow());

        QVERIFY(f.IsSaved());
        QCOMPARE(f.saved.front().front().toInt(), record);
        const std::optional<Snapshot> found = Snapshot::FindNewest(f.Journal());
        QVERIFY(found.has_value());
        QCOMPARE(found->record, record);
        QCOMPARE(found->digest, f.sketch.GetDigest());
    }

    void anUnchangedDrawingIsNotSavedAgain()
    {
        Fixture f;
        f.Mark();
        QVERIFY(!f.autosave.SaveNow());
        f.Draw(5);
        QVERIFY(f.autosave.SaveNow());
        QVERIFY(f.IsSaved());

        f.Mark();

        QVERIFY(!f.autosave.SaveNow());
    }

    void aDrawingWhoseStepHasNoMarkYetIsNotSaved()
    {
        Fixture f;
        f.Draw(5);
        f.sketch.AddLine({0, 0, 0}, {6, 0, 0});

        QVERIFY(!f.autosave.SaveNow());
    }

    void noneIsTakenInTheMidstOfAnAction()
    {
        Fixture f;
        f.host.BeginAction();
        f.Draw(5);

        QVERIFY(!f.autosave.SaveNow());

        vesk::ActionManager::Reset();
        QVERIFY(f.autosave.SaveNow());
    }

    void noneIsTakenInAReplay()
    {
        Fixture f;
        f.Draw(5);
        bool isTaken = false;

        const WhileReplaying replay([&] { isTaken = f.autosave.SaveNow(); });

        QVERIFY(!isTaken);
    }

    void theNextOneWaitsForTheOneBeingWritten()
    {
        Fixture f;
        for (int i = 0; i < 5000; ++i)
            f.sketch.AddLine({0, 0, 0}, {1.0 + i, 0, 0});
        f.Mark();
        QVERIFY(f.autosave.SaveNow());

        const int record = f.Draw(5);
        bool isBegun = false;
        QTRY_VERIFY(isBegun = isBegun || f.autosave.SaveNow());

        QTRY_COMPARE(f.saved.count(), 2);
        QCOMPARE(f.saved.back().front().toInt(), record);
    }

    void withNothingToSaveNoTimerRuns()
    {
        Fixture f;
        f.autosave.SetInterval(5);
        QCOMPARE(f.Waits(), QVector<int>());
        f.Draw(5);
        QVERIFY(f.autosave.SaveNow());
        QVERIFY(f.IsSaved());

        f.Fire();

        QCOMPARE(f.Waits(), QVector<int>());
    }

    void theTimerWaitsForTheTimeOfTheNextOne()
    {
        Fixture f;
        f.autosave.SetInterval(5);

        f.Draw(5);

        QCOMPARE(f.Waits().size(), 1);
        QVERIFY(f.Waits().front() <= 5 * MsPerMinute);
        QVERIFY(f.Waits().front() > 4 * MsPerMinute);
    }

    void anotherIntervalHoldsAtOnce()
    {
        Fixture f;
        f.autosave.SetInterval(5);
        f.Draw(5);

        f.autosave.SetInterval(3);
        QCOMPARE(f.Waits().size(), 1);
        QVERIFY(f.Waits().front() <= 3 * MsPerMinute);

        f.autosave.SetInterval(0);
        QCOMPARE(f.Waits(), QVector<int>());
    }

    void theTimerThatFiresTooSoonIsStartedAgain()
    {
        Fixture f;
        f.autosave.SetInterval(5);
        f.Draw(5);

        f.Fire();

        QCOMPARE(f.Waits().size(), 1);
        QVERIFY(f.autosave.SaveNow());
    }

    void noneIsTakenBeforeItsTime_data()
    {
        QTest::addColumn<int>("minutes");

        QTest::newRow("off") << 0;
        QTest::newRow("not yet") << 1000;
    }

    void noneIsTakenBeforeItsTime()
    {
        QFETCH(int, minutes);
        Fixture f;
        f.autosave.SetInterval(minutes);
        f.Draw(5);

        f.Fire();

        // The timer took none.
        QVERIFY(f.autosave.SaveNow());
    }

    void whatHasEndedHearsOfNoRecord()
    {
        Fixture f;
        auto pOther = std::make_unique<Autosave>(f.sketch, [] { return QString(); });

        pOther.reset();

        QVERIFY(f.Draw(5) > 0);
    }

    void theEndWaitsForTheSnapshot()
    {
        Fixture f;
        {
            Autosave other(f.sketch, [&f] { return f.Journal(); });
            f.Draw(5);
            QVERIFY(other.SaveNow());
        }

        QVERIFY(Snapshot::FindNewest(f.Journal()).has_value());
    }

    void withoutAJournalNothingIsSaved()
    {
        Fixture f;
        Autosave other(f.sketch, [] { return QString(); });
        f.Draw(5);

        QVERIFY(!other.SaveNow());
    }
};

VESK_TESTS(AutosaveTest);
#include "AutosaveTest.moc"

#include "ReplayOptions.h"

#include "Journal/JournalRecord.h"
#include "Support/TestValues.h"

using namespace vesk;

/// How much of a journal is replayed.
class ReplayOptionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void recordsAfterTheLastOneAreDropped_data()
    {
        QTest::addColumn<int>("until");
        QTest::addColumn<int>("left");

        QTest::newRow("the first") << 1 << 2;
        QTest::newRow("its end follows directly") << 3 << 5;
        QTest::newRow("one that is missing") << 5 << 5;
        QTest::newRow("the last") << 7 << 7;
        QTest::newRow("beyond") << 100 << 7;
    }

    void recordsAfterTheLastOneAreDropped()
    {
        QFETCH(int, until);
        QFETCH(int, left);
        std::vector<JournalRecord> records = {
            {0, HeaderRecord{}}, {1, CommandRecord{L"Line", {}}}, {2, PointRecord{}},
            {3, MarkRecord{}},   {1, EndRecord{1, false}},        {6, UndoRecord{}},
            {7, CloseRecord{}},
        };
        ReplayOptions options;
        options.until = until;

        options.Cut(records);

        QCOMPARE(static_cast<int>(records.size()), left);
    }

    void withoutALastOneEveryRecordStays()
    {
        std::vector<JournalRecord> records = {{1, UndoRecord{}}};

        ReplayOptions().Cut(records);

        QCOMPARE(records.size(), std::size_t(1));
    }
};

VESK_TESTS_WITHOUT_WINDOWS(ReplayOptionsTest);
#include "ReplayOptionsTest.moc"

#include "Recovery/Snapshot.h"

#include "Model/Sketch.h"

#include "Support/FileSizeLimit.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

class SnapshotFullDiskTest final : public QObject
{
    Q_OBJECT

private slots:
    void theOlderOneStaysIfANewOneCannotBeWritten()
    {
        const QTemporaryDir folder;
        const QString journal = folder.filePath("journal.jsonl");
        const Sketch sketch;
        QVERIFY(Snapshot::Write(journal, 9, sketch.GetContent()));
        {
            const vesk::FileSizeLimit limit(20);
            QVERIFY(!Snapshot::Write(journal, 10, sketch.GetContent()));
        }

        QCOMPARE(Snapshot::FindNewest(journal)->record, 9);
    }
};

VESK_TESTS(SnapshotFullDiskTest);
#include "SnapshotFullDiskTest.moc"

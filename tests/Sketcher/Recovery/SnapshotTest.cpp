#include "Recovery/Snapshot.h"

#include "Model/Sketch.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

using vesk::ReadBytes;
using vesk::WriteBytes;

/// Snapshots of a drawing beside its journal.
class SnapshotTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder = std::make_unique<QTemporaryDir>(); }

    void theNewestIsFound()
    {
        Draw(1);
        QVERIFY(Snapshot::Write(Journal(), 9, m_sketch.GetContent()));
        Draw(2);
        QVERIFY(Snapshot::Write(Journal(), 10, m_sketch.GetContent()));

        const std::optional<Snapshot> found = Snapshot::FindNewest(Journal());

        QVERIFY(found.has_value());
        QCOMPARE(found->record, 10);
        QCOMPARE(found->digest, m_sketch.GetDigest());
        QVERIFY(found->content.entities == m_sketch.GetEntities());
        QCOMPARE(Names(), QStringList("journal.jsonl.10.vsk"));
        QCOMPARE(found->bytes, ReadBytes(m_pFolder->filePath("journal.jsonl.10.vsk")));
    }

    void aLateOneLeavesThoseOfLaterRecords()
    {
        QVERIFY(Snapshot::Write(Journal(), 10, m_sketch.GetContent()));

        QVERIFY(Snapshot::Write(Journal(), 9, m_sketch.GetContent()));

        QCOMPARE(Snapshot::FindNewest(Journal())->record, 10);
    }

    void anOlderOneStandsInForADamagedOne()
    {
        QVERIFY(Snapshot::Write(Journal(), 9, m_sketch.GetContent()));
        QVERIFY(WriteBytes(m_pFolder->filePath("journal.jsonl.10.vsk"), "{"));

        const std::optional<Snapshot> found = Snapshot::FindNewest(Journal());

        QVERIFY(found.has_value());
        QCOMPARE(found->record, 9);
    }

    void theFolderMayHaveAnyName()
    {
        const QString journal = m_pFolder->filePath("100%2 %1/journal.jsonl");
        QVERIFY(QDir().mkpath(QFileInfo(journal).path()));

        QVERIFY(Snapshot::Write(journal, 9, m_sketch.GetContent()));

        QVERIFY(QFileInfo::exists(journal + ".9.vsk"));
        QVERIFY(Snapshot::FindNewest(journal).has_value());
    }

    void othersAreNotTaken_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("of another journal") << "journal2.jsonl.5.vsk";
        QTest::newRow("no number") << "journal.jsonl.new.vsk";
        QTest::newRow("another file") << "journal.jsonl.5.vsk~";
        QTest::newRow("half written") << "journal.jsonl.5.vskabcdef";
    }

    void othersAreNotTaken()
    {
        QFETCH(QString, name);
        QVERIFY(Snapshot::Write(Journal(), 9, m_sketch.GetContent()));
        QVERIFY(QDir(m_pFolder->path()).rename("journal.jsonl.9.vsk", name));

        QVERIFY(!Snapshot::FindNewest(Journal()).has_value());
        Snapshot::RemoveAll(Journal());
        QCOMPARE(Names(), QStringList(name));
    }

    void allAreRemovedTogether()
    {
        QVERIFY(Snapshot::Write(Journal(), 10, m_sketch.GetContent()));
        QVERIFY(Snapshot::Write(Journal(), 9, m_sketch.GetContent()));

        Snapshot::RemoveAll(Journal());

        QCOMPARE(Names(), QStringList());
    }

private:
    QString Journal() const { return m_pFolder->filePath("journal.jsonl"); }
    QStringList Names() const { return QDir(m_pFolder->path()).entryList(QDir::Files); }
    void Draw(int length) { m_sketch.AddLine({0, 0, 0}, {double(length), 0, 0}); }

    std::unique_ptr<QTemporaryDir> m_pFolder;
    Sketch m_sketch;
};

VESK_TESTS(SnapshotTest);
#include "SnapshotTest.moc"

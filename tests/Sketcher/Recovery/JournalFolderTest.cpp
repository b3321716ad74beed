#include "Recovery/JournalFolder.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <memory>
#include <optional>

using vesk::ReadBytes;
using vesk::WriteBytes;

/// The folder of the program's own journals.
class JournalFolderTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pDisk = std::make_unique<QTemporaryDir>(); }

    void newPathsAreDifferentAndWritable()
    {
        const JournalFolder folder = Folder();

        const QString first = folder.NewPath();
        QVERIFY(WriteBytes(first, "1"));
        const QString second = folder.NewPath();

        QVERIFY(first != second);
        QVERIFY(WriteBytes(second, "2"));
    }

    void journalsAreListedNewestFirst()
    {
        Add("b.jsonl", 3);
        Add("a.jsonl", 1);
        Add("c.jsonl", 2);
        Add("c.jsonl.7.vsk", 0);
        QVERIFY(QDir(Path()).mkdir("folder.jsonl"));

        QCOMPARE(Names(), (QStringList{"a.jsonl", "c.jsonl", "b.jsonl"}));
    }

    void theOldestBeyondTheCountAreRemoved()
    {
        for (int age = 1; age <= 5; ++age)
            Add(QString("%1.jsonl").arg(age), age);

        Folder().Prune({3, 1000}, [](const QString&) { return false; });

        QCOMPARE(Names(), (QStringList{"1.jsonl", "2.jsonl", "3.jsonl"}));
    }

    void theOldestBeyondTheSizeAreRemoved()
    {
        Add("new.jsonl", 1, 400);
        Add("large.jsonl", 2, 100);
        QVERIFY(QDir(Path()).mkdir("large.jsonl.kept"));
        Add("large.jsonl.kept/content", 2, 600);
        Add("old.jsonl", 3, 1);

        Folder().Prune({10, 1000}, [](const QString&) { return false; });

        QCOMPARE(Names(), QStringList{"new.jsonl"});
    }

    void theSizeOfAFolderIsThatOfItsFiles()
    {
        Add("new.jsonl", 1, 400);
        QVERIFY(QDir(Path()).mkdir("new.jsonl.kept"));
        Add("new.jsonl.kept/content", 1, 100);

        Folder().Prune({10, 500}, [](const QString&) { return false; });

        QCOMPARE(Names(), QStringList{"new.jsonl"});
    }

    void neededJournalsStayAndDoNotCount()
    {
        Add("1.jsonl", 1, 5000);
        Add("2.jsonl", 2);
        Add("3.jsonl", 3);

        Folder().Prune({1, 1000}, [](const QString& path) { return path.endsWith("1.jsonl"); });

        QCOMPARE(Names(), (QStringList{"1.jsonl", "2.jsonl"}));
    }

    void whatBelongsToAJournalIsRemovedWithIt()
    {
        Add("old.jsonl", 1);
        Add("old.jsonl.3.vsk", 1);
        QVERIFY(QDir(Path()).mkdir("old.jsonl.kept"));
        Add("old.jsonl.kept/content", 1);
        Add("old.jsonlike", 1);
        JournalFolder::Settle(File("old.jsonl"));

        JournalFolder::Remove(File("old.jsonl"));

        QCOMPARE(QDir(Path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{"old.jsonlike"});
    }

    void whatWasDecidedStaysDecided()
    {
        Add("a.jsonl", 1);
        Add("b.jsonl", 1);

        JournalFolder::Settle(File("a.jsonl"));

        QVERIFY(JournalFolder::IsSettled(File("a.jsonl")));
        QVERIFY(!JournalFolder::IsSettled(File("b.jsonl")));
    }

    void aJournalElsewhereIsTakenInWithWhatBelongsToIt_data()
    {
        QTest::addColumn<QString>("name");

        QTest::newRow("plain") << "mine";
        QTest::newRow("hidden") << ".mine";
    }

    void aJournalElsewhereIsTakenInWithWhatBelongsToIt()
    {
        QFETCH(QString, name);
        const QString mine = m_pDisk->filePath(name);
        QVERIFY(QDir().mkpath(mine + ".kept"));
        QVERIFY(WriteBytes(mine, "records") && WriteBytes(mine + ".kept/content", "kept"));

        const std::optional<QString> taken = Folder().TakeIn(mine);

        QVERIFY(taken.has_value());
        QCOMPARE(Names(), QStringList(QFileInfo(*taken).fileName()));
        QCOMPARE(ReadBytes(*taken), QByteArray("records"));
        QCOMPARE(ReadBytes(*taken + ".kept/content"), QByteArray("kept"));
        QVERIFY(!QFileInfo::exists(mine));
        QVERIFY(!QFileInfo::exists(mine + ".kept"));
    }

    void aJournalThatCannotBeTakenInIsLeftAsItIs()
    {
        const QString mine = m_pDisk->filePath("mine");
        QVERIFY(QDir().mkpath(mine + ".kept"));
        QVERIFY(WriteBytes(mine, "records") && WriteBytes(mine + ".kept/content", "kept"));
        QVERIFY(WriteBytes(Path(), "no folder"));

        const std::optional<QString> taken = Folder().TakeIn(mine);

        QVERIFY(!taken.has_value());
        QCOMPARE(ReadBytes(mine), QByteArray("records"));
        QCOMPARE(ReadBytes(mine + ".kept/content"), QByteArray("kept"));
    }

private:
    QString Path() const { return m_pDisk->filePath("journals"); }
    QString File(const QString& name) const { return Path() + '/' + name; }
    JournalFolder Folder() const { return JournalFolder(Path()); }

    QStringList Names() const
    {
        QStringList names;
        for (const QString& path : Folder().GetJournals())
            names << QFileInfo(path).fileName();
        return names;
    }

    /// A file of that many days and bytes.
    void Add(const QString& name, int days, int size = 10) const
    {
        QVERIFY(QDir().mkpath(Path()));
        QFile file(File(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(size, '.'));
        file.close();
        SetTime(File(name), QDateTime::currentDateTime().addDays(-days));
    }

    static void SetTime(const QString& path, const QDateTime& time)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    std::unique_ptr<QTemporaryDir> m_pDisk;
};

VESK_TESTS(JournalFolderTest);
#include "JournalFolderTest.moc"

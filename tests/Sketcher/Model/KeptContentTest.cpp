#include "Model/KeptContent.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

namespace
{

const QByteArray s_bytes("abc");
const QString s_digest =
    QStringLiteral("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");

}

class KeptContentTest final : public QObject
{
    Q_OBJECT

private slots:
    void contentIsKeptBesideTheJournalUnderItsDigest()
    {
        const QTemporaryDir folder;
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));

        const std::optional<QString> digest = content.Keep(s_bytes);

        QCOMPARE(digest.value_or(QString()), s_digest);
        QCOMPARE(vesk::ReadBytes(folder.filePath("a.jsonl.kept/") + s_digest), s_bytes);
        QCOMPARE(content.Find(s_digest).value_or(QByteArray()), s_bytes);
    }

    void withoutAJournalContentIsKeptInMemory()
    {
        KeptContent content;

        content.Keep(s_bytes);

        QCOMPARE(content.Find(s_digest).value_or(QByteArray()), s_bytes);
    }

    void emptyContentIsContent()
    {
        KeptContent content;

        const QString digest = content.Keep({}).value_or(QString());

        QVERIFY(content.Find(digest).has_value());
    }

    void nothingIsFoundThatWasNotKept()
    {
        const QTemporaryDir folder;
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));

        QVERIFY(!content.Find(s_digest).has_value());
        QVERIFY(!QFileInfo::exists(folder.filePath("a.jsonl.kept")));
    }

    void anotherProgramFindsWhatIsBesideTheSource()
    {
        const QTemporaryDir folder;
        KeptContent writer;
        writer.SetJournal(folder.filePath("a.jsonl"));
        writer.Keep(s_bytes);
        KeptContent reader;
        reader.SetSource(folder.filePath("a.jsonl"));

        const std::optional<QByteArray> found = reader.Find(s_digest);

        QCOMPARE(found.value_or(QByteArray()), s_bytes);
    }

    void whatWasFoundIsKeptBesideTheNewJournal()
    {
        const QTemporaryDir folder;
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));
        content.Keep(s_bytes);
        content.Forget();
        content.SetSource(folder.filePath("a.jsonl"));
        content.SetJournal(folder.filePath("b.jsonl"));

        content.Find(s_digest);

        QCOMPARE(vesk::ReadBytes(folder.filePath("b.jsonl.kept/") + s_digest), s_bytes);
    }

    void contentGoesAlongWithTheJournal_data()
    {
        QTest::addColumn<QString>("first");

        QTest::newRow("from memory") << QString();
        QTest::newRow("from a folder") << QStringLiteral("a.jsonl");
    }

    void contentGoesAlongWithTheJournal()
    {
        QFETCH(QString, first);
        const QTemporaryDir folder;
        KeptContent content;
        content.SetJournal(first.isEmpty() ? first : folder.filePath(first));
        content.Keep(s_bytes);

        content.SetJournal(folder.filePath("b.jsonl"));

        QCOMPARE(vesk::ReadBytes(folder.filePath("b.jsonl.kept/") + s_digest), s_bytes);
        QCOMPARE(content.Find(s_digest).value_or(QByteArray()), s_bytes);
    }

    void damagedContentIsNotFoundAndReplaced()
    {
        const QTemporaryDir folder;
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));
        content.Keep(s_bytes);
        const QString file = folder.filePath("a.jsonl.kept/") + s_digest;
        QVERIFY(vesk::WriteBytes(file, "abd"));

        const bool isFound = content.Find(s_digest).has_value();
        content.Keep(s_bytes);

        QVERIFY(!isFound);
        QCOMPARE(vesk::ReadBytes(file), s_bytes);
    }

    void whatCannotGoAlongStaysInMemory()
    {
        const QTemporaryDir folder;
        QVERIFY(vesk::WriteBytes(folder.filePath("b.jsonl.kept"), "a file"));
        KeptContent content;
        content.Keep(s_bytes);

        content.SetJournal(folder.filePath("b.jsonl"));

        QCOMPARE(content.Find(s_digest).value_or(QByteArray()), s_bytes);
    }

    void nothingIsFoundOnceForgotten_data()
    {
        QTest::addColumn<QString>("journal");
        QTest::addColumn<QString>("source");

        QTest::newRow("in memory") << QString() << QString();
        QTest::newRow("beside the journal") << "a.jsonl" << QString();
        QTest::newRow("beside the source") << QString() << "a.jsonl";
    }

    void nothingIsFoundOnceForgotten()
    {
        QFETCH(QString, journal);
        QFETCH(QString, source);
        const QTemporaryDir folder;
        KeptContent writer;
        writer.SetJournal(folder.filePath("a.jsonl"));
        writer.Keep(s_bytes);
        KeptContent content;
        content.SetJournal(journal.isEmpty() ? journal : folder.filePath(journal));
        content.SetSource(source.isEmpty() ? source : folder.filePath(source));
        if (journal.isEmpty() && source.isEmpty())
            content.Keep(s_bytes);

        content.Forget();

        QVERIFY(!content.Find(s_digest).has_value());
    }

    void whatCannotBeWrittenIsRefused()
    {
        const QTemporaryDir folder;
        QVERIFY(vesk::WriteBytes(folder.filePath("a.jsonl.kept"), "a file"));
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));

        QVERIFY(!content.Keep(s_bytes).has_value());
        QVERIFY(!content.Find(s_digest).has_value());
    }

    void whatIsNoDigestIsNotLookedFor()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("a.jsonl.kept"));
        QVERIFY(vesk::WriteBytes(folder.filePath("secret"), s_bytes));
        KeptContent content;
        content.SetJournal(folder.filePath("a.jsonl"));

        QVERIFY(!content.Find(QStringLiteral("../secret")).has_value());
        QVERIFY(!content.Find(s_digest + QLatin1Char('\n')).has_value());
    }
};

VESK_TESTS_WITHOUT_WINDOWS(KeptContentTest);
#include "KeptContentTest.moc"

#include "Drawing.h"
#include "Model/DocumentFile.h"
#include "ScenarioTest.h"
#include "SketcherProcess.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QDir>

#include <algorithm>
#include <set>
#include <variant>

namespace
{

QDir Corpus()
{
    return QDir(QStringLiteral(VESK_JOURNALS));
}

QList<QByteArray> SortedActs(const QString& path)
{
    QList<QByteArray> lines = ReadActs(path).split('\n');
    std::sort(lines.begin(), lines.end());
    return lines;
}

/// The journal with which the page on the format begins.
QByteArray ExampleOfThePage()
{
    QByteArray example;
    for (const QByteArray& line : vesk::ReadBytes(QStringLiteral(VESK_JOURNAL_PAGE)).split('\n'))
    {
        if (line.startsWith('{'))
            example += line + '\n';
        if (line.contains("\"kind\":\"close\""))
            break;
    }
    return example;
}

}

/// Sessions that were recorded once, and must be replayed ever after.
///
/// A session is added as it was recorded. One that can no longer be replayed is a fault of the
/// program: it is not recorded anew.
class CorpusTest final : public ScenarioTest
{
    Q_OBJECT

private slots:
    void aRecordedSessionIsReplayed_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString& name : Corpus().entryList({"*.jsonl"}))
            QTest::newRow(qPrintable(name)) << Corpus().filePath(name);
    }

    void aRecordedSessionIsReplayed()
    {
        QFETCH(QString, path);
        const QString again = m_pFixture->File("again");

        const Outcome outcome =
            RunSketcher({"--replay", path, "--journal", again},
                        {"LC_ALL=de_DE.UTF-8", "LANG=de_DE.UTF-8", "QT_SCALE_FACTOR=2"});

        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.code, 0);
        // Where one command ended another, only the order of record and end may differ.
        QCOMPARE(SortedActs(again), SortedActs(path));
    }

    void theExampleOfThePageIsReplayed()
    {
        const QString path = m_pFixture->File("example");
        QVERIFY(vesk::WriteBytes(path, ExampleOfThePage()));

        const Outcome outcome = RunSketcher({"--replay", path});

        QCOMPARE(outcome.error, QString());
        QCOMPARE(outcome.code, 0);
        QCOMPARE(ReadJournal(path).size(), std::size_t(10));
    }

    void aDrawingOfAnotherProgramIsRead_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(VESK_DRAWINGS));
        for (const QString& name : folder.entryList({"*.vsk"}))
        {
            if (name != "cut.vsk" && name != "newer.vsk")
                QTest::newRow(qPrintable(name)) << folder.filePath(name);
        }
    }

    void aDrawingOfAnotherProgramIsRead()
    {
        QFETCH(QString, path);
        const std::string text = vesk::ReadBytes(path).toStdString();

        const DocumentReading reading = DocumentFile::FromText(text);

        QCOMPARE(reading.error, std::string());
        QCOMPARE(reading.outcome, DocumentReading::Outcome::Whole);
    }

    void theCorpusHoldsEveryKindOfRecord()
    {
        std::set<std::size_t> kinds;
        for (const QString& name : Corpus().entryList({"*.jsonl"}))
        {
            for (const vesk::JournalRecord& record : ReadJournal(Corpus().filePath(name)))
                kinds.insert(record.what.index());
        }

        QCOMPARE(kinds.size(), std::variant_size_v<decltype(vesk::JournalRecord::what)>);
    }
};

VESK_TESTS(CorpusTest);
#include "CorpusTest.moc"

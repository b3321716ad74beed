#include "Drawing.h"
#include "ScenarioTest.h"
#include "SketcherProcess.h"
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

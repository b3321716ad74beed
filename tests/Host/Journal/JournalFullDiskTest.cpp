#include "Journal/JournalManager.h"

#include "Journal/JournalFormat.h"
#include "Support/FileSizeLimit.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

namespace vesk
{

namespace
{

constexpr int RecordCount = 6;

JournalManager& Journal()
{
    return JournalManager::GetInstance();
}

/// Records of different lengths.
UndoRecord MakeRecord(int number)
{
    return {number * number * number};
}

/// The lines of the first records.
QByteArray LinesOf(int count)
{
    QByteArray lines;
    for (int i = 1; i <= count; ++i)
        lines += QByteArray::fromStdString(JournalFormat::ToLine({i, MakeRecord(i)})) + '\n';
    return lines;
}

/// The number of complete lines in that many bytes.
QByteArray WholeLinesWithin(int bytes)
{
    const QByteArray held = LinesOf(RecordCount).left(bytes);
    return held.left(held.lastIndexOf('\n') + 1);
}

}

/// A journal on a disk that is full from some byte on.
class JournalFullDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_pFolder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { Journal().Close(); }

    void theFileHoldsWholeLinesWhereverTheDiskEnds();
    void aHeaderThatDoesNotFitFollowsToo();
    void whatIsMissingFollowsWithTheNextRecord();
    void whatIsMissingFollowsAtTheEnd();
    void roomThatComesSlowlyIsUsedLineByLine();
    void aContinuedFileKeepsWhatWasRead();
    void aSecondFileDoesNotGetWhatTheFirstOneMissed();
    void aFileThatBeginsAnewDoesNotGetWhatItMissed();

private:
    QString Path() const { return m_pFolder->filePath("journal"); }
    void OpenJournal()
    {
        std::string error;
        QVERIFY2(Journal().Open(Path().toStdString(), error), error.c_str());
    }

    /// Leaves room for that many bytes after the header, which is in the file already.
    FileSizeLimit LimitAfterHeader(int bytes) const
    {
        return FileSizeLimit(static_cast<rlim_t>(ReadBytes(Path()).size() + bytes));
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
};

void JournalFullDiskTest::theFileHoldsWholeLinesWhereverTheDiskEnds()
{
    const int all = LinesOf(RecordCount).size();
    for (int limit = 0; limit <= all; ++limit)
    {
        OpenJournal();
        const FileSizeLimit full = LimitAfterHeader(limit);

        for (int i = 1; i <= RecordCount; ++i)
        {
            Journal().Add(MakeRecord(i));
            QCOMPARE(ReadLinesAfterHeader(Path()),
                     WholeLinesWithin(std::min(limit, int(LinesOf(i).size()))));
            QCOMPARE(Journal().IsKept(), LinesOf(i).size() <= limit);
        }

        QCOMPARE(Journal().Close(), limit == all);
        QCOMPARE(ReadLinesAfterHeader(Path()), WholeLinesWithin(limit));
    }
}

void JournalFullDiskTest::aHeaderThatDoesNotFitFollowsToo()
{
    OpenJournal();
    const int header = ReadBytes(Path()).size();
    for (int limit = 0; limit < header; ++limit)
    {
        {
            const FileSizeLimit full(static_cast<rlim_t>(limit));
            OpenJournal();
            QVERIFY(!Journal().IsKept());
            QCOMPARE(ReadBytes(Path()), QByteArray());
        }

        Journal().Add(MakeRecord(1));

        QVERIFY(Journal().IsKept());
        QCOMPARE(ReadLinesAfterHeader(Path()), LinesOf(1));
    }
}

void JournalFullDiskTest::whatIsMissingFollowsWithTheNextRecord()
{
    for (int limit = 0; limit < LinesOf(RecordCount - 1).size(); ++limit)
    {
        OpenJournal();
        {
            const FileSizeLimit full = LimitAfterHeader(limit);
            for (int i = 1; i < RecordCount; ++i)
                Journal().Add(MakeRecord(i));
            QVERIFY(!Journal().IsKept());
        }

        Journal().Add(MakeRecord(RecordCount));

        QVERIFY(Journal().IsKept());
        QCOMPARE(ReadLinesAfterHeader(Path()), LinesOf(RecordCount));
    }
}

void JournalFullDiskTest::whatIsMissingFollowsAtTheEnd()
{
    OpenJournal();
    {
        const FileSizeLimit full = LimitAfterHeader(50);
        for (int i = 1; i <= RecordCount; ++i)
            Journal().Add(MakeRecord(i));
    }

    QVERIFY(Journal().Close());

    QCOMPARE(ReadLinesAfterHeader(Path()), LinesOf(RecordCount));
}

void JournalFullDiskTest::roomThatComesSlowlyIsUsedLineByLine()
{
    OpenJournal();
    const int header = ReadBytes(Path()).size();
    FileSizeLimit full(static_cast<rlim_t>(header));

    for (int i = 1; i <= RecordCount; ++i)
    {
        full.Set(static_cast<rlim_t>(header + LinesOf(i).size() - 1));
        Journal().Add(MakeRecord(i));

        QVERIFY(!Journal().IsKept());
        QCOMPARE(ReadLinesAfterHeader(Path()), LinesOf(i - 1));
    }
}

void JournalFullDiskTest::aContinuedFileKeepsWhatWasRead()
{
    const QByteArray read = LinesOf(2);
    const int all = LinesOf(RecordCount).size();
    for (int limit = read.size(); limit <= all; ++limit)
    {
        QFile file(Path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(read + "{\"n\":3,\"ki");
        file.close();
        const FileSizeLimit full(static_cast<rlim_t>(limit));
        std::string error;
        QVERIFY(Journal().Reserve(Path().toStdString(), error));
        Journal().Continue(2);

        for (int i = 3; i <= RecordCount; ++i)
            Journal().Add(MakeRecord(i));

        QCOMPARE(Journal().Close(), limit == all);
        QCOMPARE(ReadBytes(Path()), WholeLinesWithin(limit));
    }
}

void JournalFullDiskTest::aSecondFileDoesNotGetWhatTheFirstOneMissed()
{
    OpenJournal();
    const QString second = m_pFolder->filePath("second");
    std::string error;
    {
        const FileSizeLimit full(10);
        Journal().Add(MakeRecord(1));
        QVERIFY(Journal().Open(second.toStdString(), error));
    }

    Journal().Add(MakeRecord(1));

    QVERIFY(Journal().IsKept());
    QCOMPARE(ReadLinesAfterHeader(second), LinesOf(1));
}

void JournalFullDiskTest::aFileThatBeginsAnewDoesNotGetWhatItMissed()
{
    OpenJournal();
    {
        const FileSizeLimit full(10);
        Journal().Add(MakeRecord(1));
        OpenJournal();
    }

    Journal().Add(MakeRecord(1));

    QVERIFY(Journal().IsKept());
    QCOMPARE(ReadLinesAfterHeader(Path()), LinesOf(1));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalFullDiskTest);
#include "JournalFullDiskTest.moc"

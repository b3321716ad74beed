#include "Journal/JournalManager.h"

#include "Journal/JournalFormat.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

#include <functional>

namespace vesk
{

/// What is recorded of a step.
using Recorded = std::function<void()>;

}

Q_DECLARE_METATYPE(vesk::Recorded)

namespace vesk
{

namespace
{

JournalManager& Journal()
{
    return JournalManager::GetInstance();
}

/// The last record as "mark <digest>"; empty if it is another one.
QString LastMark()
{
    JournalRecord record;
    std::string error;
    const std::vector<std::string> lines = Journal().GetLastLines();
    if (lines.empty() || !JournalFormat::FromLine(lines.back(), record, error))
        return {};
    const auto* pMark = std::get_if<MarkRecord>(&record.what);
    return pMark != nullptr ? "mark " + QString::fromStdString(pMark->digest) : QString();
}

}

/// When a finished step gets a mark.
class JournalMarkTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_digest = "a";
        Journal().SetDigestSource([this] { return m_digest; });
    }
    void cleanup()
    {
        Journal().SetDigestSource(nullptr);
        Journal().Close();
    }

    void aFinishedStepIsMarkedOnce_data();
    void aFinishedStepIsMarkedOnce();
    void whatFinishesNoStepIsNotMarked_data();
    void whatFinishesNoStepIsNotMarked();
    void aChangedDocumentIsMarkedWhateverWasRecorded();
    void aMarkHasANumberAndATime();
    void withoutASourceThereAreNoMarks();
    void aStepOfTheFileBeforeIsNotMarked();
    void marksAreHeldBackLikeAnyRecord();

private:
    std::string m_digest;
    std::string m_error;
};

void JournalMarkTest::aFinishedStepIsMarkedOnce_data()
{
    QTest::addColumn<Recorded>("record");
    QTest::newRow("point") << Recorded([] { Journal().Add(PointRecord{}); });
    QTest::newRow("property") << Recorded([] { Journal().Add(PropertyRecord{}); });
    QTest::newRow("undo") << Recorded([] { Journal().Add(UndoRecord{}); });
    QTest::newRow("redo") << Recorded([] { Journal().Add(RedoRecord{}); });
}

void JournalMarkTest::aFinishedStepIsMarkedOnce()
{
    QFETCH(Recorded, record);

    record();
    Journal().FinishStep();
    Journal().FinishStep();

    QCOMPARE(LastMark(), QString("mark a"));
    QCOMPARE(Journal().GetLastLines().size(), std::size_t(2));
}

void JournalMarkTest::whatFinishesNoStepIsNotMarked_data()
{
    QTest::addColumn<Recorded>("record");
    QTest::newRow("nothing") << Recorded([] {});
    QTest::newRow("command") << Recorded([] { Journal().Add(CommandRecord{}); });
    QTest::newRow("value") << Recorded([] { Journal().Add(ValueRecord{}); });
    QTest::newRow("selection") << Recorded([] { Journal().Add(SelectionRecord{}); });
    QTest::newRow("close") << Recorded([] { Journal().Add(CloseRecord{}); });
}

void JournalMarkTest::whatFinishesNoStepIsNotMarked()
{
    QFETCH(Recorded, record);

    record();
    const std::size_t count = Journal().GetLastLines().size();
    Journal().FinishStep();

    QCOMPARE(Journal().GetLastLines().size(), count);
}

void JournalMarkTest::aChangedDocumentIsMarkedWhateverWasRecorded()
{
    m_digest = "b";

    Journal().FinishStep();
    QCOMPARE(LastMark(), QString("mark b"));

    Journal().FinishStep();
    QCOMPARE(Journal().GetLastLines().size(), std::size_t(1));
}

void JournalMarkTest::aMarkHasANumberAndATime()
{
    Journal().Add(UndoRecord{1});

    Journal().FinishStep();

    JournalRecord record;
    QVERIFY(JournalFormat::FromLine(Journal().GetLastLines().back(), record, m_error));
    QCOMPARE(record.number, 2);
    QVERIFY(std::get<MarkRecord>(record.what).time.value_or(-1) >= 0);
    QCOMPARE(Journal().Add(UndoRecord{1}), 3);
}

void JournalMarkTest::withoutASourceThereAreNoMarks()
{
    Journal().SetDigestSource(nullptr);
    Journal().Add(UndoRecord{1});

    Journal().FinishStep();

    QCOMPARE(Journal().GetLastLines().size(), std::size_t(1));
}

void JournalMarkTest::aStepOfTheFileBeforeIsNotMarked()
{
    Journal().Add(UndoRecord{1});
    Journal().Close();

    Journal().FinishStep();

    QVERIFY(Journal().GetLastLines().empty());
}

void JournalMarkTest::marksAreHeldBackLikeAnyRecord()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    const QString other = folder.filePath("other");
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});
    Journal().FinishStep();
    QCOMPARE(ReadBytes(path), QByteArray());

    QVERIFY(Journal().MoveTo(other.toStdString(), m_error));

    std::vector<JournalRecord> records;
    QVERIFY(JournalFormat::ReadFile(other.toStdString(), records, m_error));
    QCOMPARE(records.size(), std::size_t(3));
    QVERIFY(std::holds_alternative<MarkRecord>(records[2].what));
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalMarkTest);
#include "JournalMarkTest.moc"

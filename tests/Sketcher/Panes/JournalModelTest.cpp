#include "Panes/JournalModel.h"

#include "Panes/RecordText.h"

#include "Journal/JournalFormat.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace vesk;

namespace
{

constexpr int MostRecords = 10000;

void Add(int count)
{
    for (int i = 0; i < count; ++i)
        JournalManager::GetInstance().Add(UndoRecord{i});
}

}

/// The records of the journal as rows.
class JournalModelTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { JournalManager::GetInstance().Close(); }
    void cleanup() { JournalManager::GetInstance().Close(); }

    void recordsBecomeRowsWithTheRefresh()
    {
        JournalModel model(nullptr);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        Add(2);
        QCOMPARE(model.rowCount(), 0);

        model.Refresh();

        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(Text(model, 0), QStringLiteral("    1  撤销 #0"));
        QCOMPARE(Text(model, 1), QStringLiteral("    2  撤销 #1"));
    }

    void aRefreshWithoutRecordsIsNothing()
    {
        JournalModel model(nullptr);
        Add(1);
        model.Refresh();
        const QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);

        model.Refresh();

        QCOMPARE(inserted.count(), 0);
        QCOMPARE(model.rowCount(), 1);
    }

    void recordsFromBeforeAreNotHeardOf()
    {
        Add(3);
        JournalModel model(nullptr);

        Add(1);
        model.Refresh();

        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(Text(model, 0), QStringLiteral("    4  撤销 #0"));
    }

    void aModelThatIsGoneHearsNothing()
    {
        {
            const JournalModel model(nullptr);
        }

        Add(1);

        JournalModel next(nullptr);
        next.Refresh();
        QCOMPARE(next.rowCount(), 0);
    }

    void theNewestTenThousandAreKept_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");

        QTest::newRow("just full") << 9000 << 1000;
        QTest::newRow("one too many") << MostRecords << 1;
        QTest::newRow("some too many") << 9990 << 25;
        QTest::newRow("all replaced") << MostRecords << MostRecords;
        QTest::newRow("more than there is room for") << 5 << 10007;
        QTest::newRow("at once") << 0 << 20001;
    }

    void theNewestTenThousandAreKept()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        JournalModel model(nullptr);
        Add(before);
        model.Refresh();

        Add(after);
        model.Refresh();

        const int all = before + after;
        QCOMPARE(model.rowCount(), MostRecords);
        for (int row = 0; row < MostRecords; ++row)
            QVERIFY(Text(model, row)
                        .startsWith(QStringLiteral("%1  ").arg(all - MostRecords + row + 1, 5)));
    }

    void signalsAreRightAtTheLimit()
    {
        JournalModel model(nullptr);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        Add(9998);
        model.Refresh();
        const QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);

        Add(5);
        model.Refresh();

        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.front().at(1).toInt(), 0);
        QCOMPARE(removed.front().at(2).toInt(), 2);
        QCOMPARE(model.rowCount(), MostRecords);
    }

    void linesAreThoseOfTheFile()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("journal");
        JournalModel model(nullptr);
        std::string error;
        QVERIFY(JournalManager::GetInstance().Open(path.toStdString(), error));
        CommandRecord command{L"Sketcher.SetProperty", {}};
        command.parameters.Add(L"value", CommandParameterValue(1.0 / 3.0));
        command.parameters.Add(L"name", CommandParameterValue(std::wstring(L"图\n\"𝄞\"")));
        const int number = JournalManager::GetInstance().Add(command);
        JournalManager::GetInstance().Add(PointRecord{{0.1, -1e-30, 0}, 3});
        JournalManager::GetInstance().Add(SelectionRecord{{3, 1}});
        JournalManager::GetInstance().Add(ValueRecord{InputState::IS_Radius, L"1/7", 1.0 / 7.0});
        JournalManager::GetInstance().Add(EndRecord{number, false});

        model.Refresh();

        QString lines;
        for (int row = 0; row < model.rowCount(); ++row)
            lines += model.GetLine(row) + '\n';
        QCOMPARE(lines, QString::fromUtf8(vesk::ReadLinesAfterHeader(path)));
        QCOMPARE(model.data(model.index(1), Qt::ToolTipRole).toString(), model.GetLine(1));
        QVERIFY(!model.data(model.index(1), Qt::EditRole).isValid());
    }

private:
    static QString Text(const JournalModel& model, int row)
    {
        return model.data(model.index(row), Qt::DisplayRole).toString();
    }
};

VESK_TESTS_WITHOUT_WINDOWS(JournalModelTest);
#include "JournalModelTest.moc"

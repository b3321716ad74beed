#include "Warnings/DebugMessageMgr.h"

#include "Host/Warnings/LogFile.h"
#include "Host/Warnings/RaiseWarning.h"
#include "Support/FileBytes.h"
#include "Support/FileSizeLimit.h"
#include "Support/TestValues.h"

namespace vesk
{

/// A log on a disk that is full from some byte on.
class WarningLogFullDiskTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Manager().CloseLog(); }

    void whatWasThereStaysAndTheRestIsTold();
    void aTornLineStandsAlone();
    void aLineTornByAnEarlierProgramStandsAlone();
    void aWholeLogIsToldSo();
    void aMissingClosingLineIsTold();
    void withoutAFileNothingIsMissing();

private:
    static void Put(const LogFile& log, const QByteArray& text)
    {
        QVERIFY(WriteBytes(QString::fromStdString(log.GetPath()), text));
    }
};

void WarningLogFullDiskTest::whatWasThereStaysAndTheRestIsTold()
{
    const QByteArray before = "{\"line\":1}\n";
    const LogFile sample;
    Manager().OpenLog(sample.GetPath());
    Warn(42);
    Manager().CloseLog();
    const int all = before.size() + sample.Read().size();
    const LogFile log;
    for (int limit = 0; limit <= all; ++limit)
    {
        Put(log, before);
        const FileSizeLimit full(static_cast<rlim_t>(limit));
        QVERIFY(Manager().OpenLog(log.GetPath()));

        Warn(42);

        QCOMPARE(Manager().CloseLog(), limit == all);
        QVERIFY(log.Read().startsWith(before));
        QCOMPARE(log.Read().size(), std::max(int(before.size()), limit));
    }
}

void WarningLogFullDiskTest::aTornLineStandsAlone()
{
    const LogFile log;
    QVERIFY(Manager().OpenLog(log.GetPath()));
    {
        const FileSizeLimit full(10);
        Warn(41);
    }

    Warn(42);
    Warn(43);

    QVERIFY(!Manager().CloseLog());
    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 3);
    QVERIFY(records[0].isEmpty());
    QCOMPARE(records[1]["line"].toInt(), 42);
    QCOMPARE(records[2]["line"].toInt(), 43);
}

void WarningLogFullDiskTest::aLineTornByAnEarlierProgramStandsAlone()
{
    const LogFile log;
    Put(log, "{\"line\":1}\n{\"li");
    QVERIFY(Manager().OpenLog(log.GetPath()));

    Warn(42);

    QVERIFY(Manager().CloseLog());
    QVERIFY(log.Read().startsWith("{\"line\":1}\n{\"li\n{"));
    QCOMPARE(log.ReadRecords().last()["line"].toInt(), 42);
}

void WarningLogFullDiskTest::aWholeLogIsToldSo()
{
    const LogFile log;
    Put(log, "{\"line\":1}\n");
    QVERIFY(Manager().OpenLog(log.GetPath()));

    Warn(42);

    QVERIFY(Manager().CloseLog());
    QCOMPARE(log.ReadRecords().size(), 2);
}

void WarningLogFullDiskTest::aMissingClosingLineIsTold()
{
    const LogFile log;
    QVERIFY(Manager().OpenLog(log.GetPath()));
    for (int i = 0; i < 11; ++i)
        Warn(42);
    const FileSizeLimit full(static_cast<rlim_t>(log.Read().size()));

    QVERIFY(!Manager().CloseLog());
}

void WarningLogFullDiskTest::withoutAFileNothingIsMissing()
{
    Warn(42);

    QVERIFY(Manager().CloseLog());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::WarningLogFullDiskTest);
#include "WarningLogFullDiskTest.moc"

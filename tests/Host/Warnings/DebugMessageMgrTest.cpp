#include "Warnings/DebugMessageMgr.h"

#include "Host/Warnings/LogFile.h"
#include "Host/Warnings/RaiseWarning.h"
#include "Journal/JournalManager.h"
#include "Support/TestValues.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>

namespace vesk
{

class DebugMessageMgrTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Manager().CloseLog(); }

    void theLogSaysWhereItIs();
    void aLogThatCannotBeOpenedIsNowhere();
    void aWarningIsOneLineWithAllItsFields();
    void theTimeIsNowInUtc();
    void theCountTellsHowOftenThePlaceWarned();
    void anotherLineIsAnotherPlace();
    void theLineCarriesTheEndOfTheJournal();
    void aLineIsWrittenAtOnce();
    void noMessageForgesALine_data();
    void noMessageForgesALine();
    void invalidCharactersBecomeReplacements();
    void invalidBytesOfAFileNameBecomeReplacements();
    void aPlaceWritesTenLinesAndAClosingOne();
    void aPlaceWithTenWarningsGetsNoClosingLine();
    void aNewLogCountsAnew();
    void openingAnotherLogClosesTheFirst();
    void openingAppends();
    void aPathThatCannotBeWrittenIsToldAndLeavesTheOldLog();
    void withoutLogWarningsGoToStandardError();
    void afterAFailedOpeningWarningsGoToStandardError();
};

void DebugMessageMgrTest::theLogSaysWhereItIs()
{
    const LogFile log;
    QCOMPARE(Manager().GetLogPath(), std::string());
    const QString relative =
        QDir::current().relativeFilePath(QString::fromStdString(log.GetPath()));

    Manager().OpenLog(relative.toStdString());

    const QString told = QString::fromStdString(Manager().GetLogPath());
    QVERIFY2(QFileInfo(told).isAbsolute(), qPrintable(told));
    QCOMPARE(QFileInfo(told).canonicalFilePath(),
             QFileInfo(QString::fromStdString(log.GetPath())).canonicalFilePath());
    Manager().CloseLog();
    QCOMPARE(Manager().GetLogPath(), std::string());
}

void DebugMessageMgrTest::aLogThatCannotBeOpenedIsNowhere()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    QVERIFY(!Manager().OpenLog(log.GetPath() + "/below a file"));

    QCOMPARE(Manager().GetLogPath(), std::string());
}

void DebugMessageMgrTest::aWarningIsOneLineWithAllItsFields()
{
    const LogFile log;
    QVERIFY(Manager().OpenLog(log.GetPath()));

    Warn(42);

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 1);
    const QJsonObject& record = records[0];
    QCOMPARE(record["file"].toString(), QString("QtButton.cpp"));
    QCOMPARE(record["line"].toInt(), 42);
    QCOMPARE(record["function"].toString(), QString("vesk::QtButton::On"));
    QCOMPARE(record["message"].toString(), QString::fromUtf8("pArgs为空"));
    QCOMPARE(record["person"].toString(), QString("vesk-ui"));
    QCOMPARE(record["date"].toString(), QString("2026-11-21"));
    QCOMPARE(record["count"].toInt(), 1);
    QVERIFY(record["journal"].isArray());
    QVERIFY(log.Read().endsWith('\n'));
}

void DebugMessageMgrTest::theTimeIsNowInUtc()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    const qint64 before = QDateTime::currentMSecsSinceEpoch();
    Warn();
    const qint64 after = QDateTime::currentMSecsSinceEpoch();

    const QString text = log.ReadRecords().value(0)["time"].toString();
    const qint64 time = QDateTime::fromString(text, Qt::ISODateWithMs).toMSecsSinceEpoch();
    QVERIFY2(QRegularExpression("^\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\\.\\d{3}Z$")
                 .match(text)
                 .hasMatch(),
             qPrintable(text));
    QVERIFY(time >= before && time <= after);
}

void DebugMessageMgrTest::theCountTellsHowOftenThePlaceWarned()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(3);

    QCOMPARE(log.ReadRecords().value(2)["count"].toInt(), 3);
}

void DebugMessageMgrTest::anotherLineIsAnotherPlace()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1);
    Warn(2);

    QCOMPARE(log.ReadRecords().value(1)["count"].toInt(), 1);
}

void DebugMessageMgrTest::theLineCarriesTheEndOfTheJournal()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    for (int i = 0; i < 25; ++i)
        JournalManager::GetInstance().Add(UndoRecord{i});

    Warn();

    const QJsonArray journal = log.ReadRecords().value(0)["journal"].toArray();
    QCOMPARE(journal.size(), 20);
    QCOMPARE(journal.last().toString().toStdString(),
             JournalManager::GetInstance().GetLastLines().back());
}

void DebugMessageMgrTest::aLineIsWrittenAtOnce()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn();

    QCOMPARE(log.Read().count('\n'), 1);
}

void DebugMessageMgrTest::noMessageForgesALine_data()
{
    QTest::addColumn<QString>("message");

    QTest::newRow("line feed") << "a\n{\"file\":\"forged\"}";
    QTest::newRow("carriage return") << "a\r{}";
    QTest::newRow("quote and backslash") << "a\",\"count\":99,\"b\":\"\\";
    QTest::newRow("vertical tab and form feed") << QString("a\vb\fc");
    QTest::newRow("escape, delete and zero") << QString("a\x1b[2Jb\x7f") + QChar(0) + "c";
    QTest::newRow("file, group and record separator") << QString("a\x1c\x1d\x1e") + "b";
    QTest::newRow("next line") << QString("a%1b").arg(QChar(0x85));
    QTest::newRow("line separator") << QString("a%1%1b").arg(QChar(0x2028));
    QTest::newRow("paragraph separator") << QString("a%1b").arg(QChar(0x2029));
}

void DebugMessageMgrTest::noMessageForgesALine()
{
    QFETCH(QString, message);
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1, message.toStdWString());

    QString line = QString::fromUtf8(log.Read());
    line.chop(1);
    const QRegularExpression lineEnd("[\\x{0A}-\\x{0D}\\x{1C}-\\x{1E}\\x{85}\\x{2028}\\x{2029}]");
    QVERIFY2(!line.contains(lineEnd), qPrintable(line));
    QCOMPARE(log.ReadRecords().value(0)["message"].toString(), message);
}

void DebugMessageMgrTest::invalidCharactersBecomeReplacements()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Warn(1, {L'a', static_cast<wchar_t>(0xD83D), L'b'});

    QCOMPARE(log.ReadRecords().value(0)["message"].toString(), QString("a%1b").arg(QChar(0xFFFD)));
}

void DebugMessageMgrTest::invalidBytesOfAFileNameBecomeReplacements()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    Manager().ShowDebugWarn("a\xFF.cpp", 1, "f\xC3", L"", L"", L"");

    const QJsonObject record = log.ReadRecords().value(0);
    QCOMPARE(record["file"].toString(), QString("a%1.cpp").arg(QChar(0xFFFD)));
    QCOMPARE(record["function"].toString(), QString("f%1").arg(QChar(0xFFFD)));
}

void DebugMessageMgrTest::aPlaceWritesTenLinesAndAClosingOne()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(13, 7);
    QCOMPARE(log.ReadRecords().size(), 10);
    Manager().CloseLog();

    const QVector<QJsonObject> records = log.ReadRecords();
    QCOMPARE(records.size(), 11);
    QCOMPARE(records[9]["count"].toInt(), 10);
    QCOMPARE(records[10]["file"].toString(), QString("QtButton.cpp"));
    QCOMPARE(records[10]["line"].toInt(), 7);
    QCOMPARE(records[10]["count"].toInt(), 13);
    QCOMPARE(records[10]["suppressed"].toInt(), 3);
    const QString time = records[10]["time"].toString();
    QVERIFY2(time >= records[9]["time"].toString(), qPrintable(time));
}

void DebugMessageMgrTest::aPlaceWithTenWarningsGetsNoClosingLine()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    WarnTimes(10);
    Manager().CloseLog();

    QCOMPARE(log.ReadRecords().size(), 10);
}

void DebugMessageMgrTest::aNewLogCountsAnew()
{
    const LogFile first;
    const LogFile second;
    Manager().OpenLog(first.GetPath());
    WarnTimes(12);

    Manager().OpenLog(second.GetPath());
    Warn();

    QCOMPARE(second.ReadRecords().size(), 1);
    QCOMPARE(second.ReadRecords().value(0)["count"].toInt(), 1);
}

void DebugMessageMgrTest::openingAnotherLogClosesTheFirst()
{
    const LogFile first;
    const LogFile second;
    Manager().OpenLog(first.GetPath());
    WarnTimes(11);

    QVERIFY(Manager().OpenLog(second.GetPath()));
    Warn();

    QCOMPARE(first.ReadRecords().value(10)["suppressed"].toInt(), 1);
    QCOMPARE(first.ReadRecords().size(), 11);
}

void DebugMessageMgrTest::openingAppends()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());
    Warn(1);
    Manager().CloseLog();

    Manager().OpenLog(log.GetPath());
    Warn(2);

    QCOMPARE(log.ReadRecords().size(), 2);
}

void DebugMessageMgrTest::aPathThatCannotBeWrittenIsToldAndLeavesTheOldLog()
{
    const LogFile log;
    Manager().OpenLog(log.GetPath());

    QVERIFY(!Manager().OpenLog(log.GetPath() + "/no/such/folder.log"));
    QVERIFY(!Manager().OpenLog(std::string()));

    QVERIFY(log.Read().isEmpty());
}

namespace
{

/// What a new process of this program writes to standard error; empty unless it exits with 0.
QByteArray RunAnew(const QString& argument)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {argument});
    const bool isDone = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit;
    return isDone && process.exitCode() == 0 ? process.readAllStandardError() : QByteArray();
}

}

void DebugMessageMgrTest::withoutLogWarningsGoToStandardError()
{
    const QVector<QJsonObject> records = LogFile::Parse(RunAnew("--warn"));

    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["message"].toString(), QString::fromUtf8("pArgs为空"));
}

void DebugMessageMgrTest::afterAFailedOpeningWarningsGoToStandardError()
{
    const QVector<QJsonObject> records = LogFile::Parse(RunAnew("--warn-after-failed-opening"));

    QCOMPARE(records.size(), 1);
    QCOMPARE(records[0]["message"].toString(), QString::fromUtf8("pArgs为空"));
}

namespace
{

int WarnInApplication(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    Warn();
    return 0;
}

int WarnAfterFailedOpening(int argc, char* argv[])
{
    Manager().OpenLog("/no/such/folder/warnings.log");
    return WarnInApplication(argc, argv);
}

const test::TestEntry s_warn{"--warn", &WarnInApplication};
const test::TestEntry s_warnAfterFailedOpening{"--warn-after-failed-opening",
                                               &WarnAfterFailedOpening};

}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::DebugMessageMgrTest);
#include "DebugMessageMgrTest.moc"

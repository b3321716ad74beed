#include "Journal/JournalManager.h"

#include "Platform/OutputFile.h"
#include "Support/JournalBytes.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <filesystem>
#include <functional>

namespace vesk
{

/// Makes the journal acquire a file: Open, Reserve or MoveTo.
using Opening = std::function<bool(const std::string& path, std::string& error)>;

}

Q_DECLARE_METATYPE(vesk::Opening)

namespace vesk
{

namespace
{

JournalManager& Journal()
{
    return JournalManager::GetInstance();
}

/// A journal that was read, and the incomplete line after it.
const QByteArray Read = "{\"n\":7,\"kind\":\"undo\",\"entity\":9}\n";
const QByteArray Torn = "{\"n\":8,\"ki";

}

/// How the journal acquires and releases a file.
class JournalOpeningTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { Journal().Close(); }

    void openingReplacesTheFileAndNumbersAnew();
    void openingWhatCannotBeWrittenChangesNothing();
    void reservingWhatCannotBeWrittenChangesNothing();
    void whatCannotBeWrittenIsTold_data();
    void whatCannotBeWrittenIsTold();
    void reservingNumbersAnew();
    void aFileHasOneWriter();
    void theSameFileByAnotherNameIsReplaced();
    void aReservedFileStaysAsItIs();
    void aReservedFileIsContinuedBehindItsLastLine();
    void aReservedFileCanBeginAnew();
    void whatWasKeptBackMovesToAnotherFile();
    void whereTheOtherFileCannotBeWrittenNothingIsKept();
    void aFileBeginsWithTheProgramAndTheTime();
    void aContinuedFileGetsNoHeader();
    void aFileForRecordsOfTheFirstVersionGetsNoHeader();
    void aFileOfAnotherProgramIsInUse();
    void whatIsOnDiskIsKept();

private:
    std::string m_error;
};

void JournalOpeningTest::openingReplacesTheFileAndNumbersAnew()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(Journal().Open(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});
    Journal().Add(UndoRecord{2});

    QVERIFY(Journal().Open(path.toStdString(), m_error));
    QCOMPARE(ReadLinesAfterHeader(path), QByteArray());
    Journal().Add(UndoRecord{3});

    QCOMPARE(ReadLinesAfterHeader(path), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":3}\n"));
}

void JournalOpeningTest::openingWhatCannotBeWrittenChangesNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    Journal().Open(path.toStdString(), m_error);
    Journal().Add(UndoRecord{1});

    QVERIFY(!Journal().Open(folder.path().toStdString(), m_error));
    QVERIFY(!Journal().Open(folder.filePath("none/journal").toStdString(), m_error));
    Journal().Add(UndoRecord{2});

    QCOMPARE(ReadLinesAfterHeader(path).count('\n'), 2);
}

void JournalOpeningTest::reservingWhatCannotBeWrittenChangesNothing()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    Journal().Open(path.toStdString(), m_error);
    Journal().Add(UndoRecord{1});

    QVERIFY(!Journal().Reserve(folder.path().toStdString(), m_error));

    QCOMPARE(Journal().GetLastLines().size(), std::size_t(1));
    QCOMPARE(Journal().Add(UndoRecord{2}), 2);
    QCOMPARE(ReadLinesAfterHeader(path).count('\n'), 2);
}

void JournalOpeningTest::whatCannotBeWrittenIsTold_data()
{
    QTest::addColumn<Opening>("open");
    QTest::newRow("open") << Opening(
        [](const std::string& path, std::string& error) { return Journal().Open(path, error); });
    QTest::newRow("reserve") << Opening(
        [](const std::string& path, std::string& error) { return Journal().Reserve(path, error); });
    QTest::newRow("move") << Opening(
        [](const std::string& path, std::string& error) { return Journal().MoveTo(path, error); });
}

void JournalOpeningTest::whatCannotBeWrittenIsTold()
{
    QFETCH(Opening, open);
    const QTemporaryDir folder;
    const std::string path = folder.filePath("none/journal").toStdString();

    QVERIFY(!open(path, m_error));

    QCOMPARE(m_error, path + " cannot be written");
}

void JournalOpeningTest::reservingNumbersAnew()
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("journal").toStdString();
    Journal().Add(UndoRecord{1});
    Journal().Add(CommandRecord{L"Line", {}});

    QVERIFY(Journal().Reserve(path, m_error));

    QVERIFY(Journal().GetLastLines().empty());
    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
    QCOMPARE(Journal().Add(UndoRecord{2}), 1);
}

void JournalOpeningTest::aFileHasOneWriter()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, "of another program\n"));
    OutputFile other;
    QVERIFY(other.OpenAlone(path.toStdString()) == OutputFile::Opening::Done);

    QVERIFY(!Journal().Open(path.toStdString(), m_error));
    QCOMPARE(m_error, path.toStdString() + " is in use by another program");
    QVERIFY(!Journal().Reserve(path.toStdString(), m_error));
    QCOMPARE(ReadBytes(path), QByteArray("of another program\n"));

    other.Close();
    QVERIFY(Journal().Open(path.toStdString(), m_error));
}

void JournalOpeningTest::theSameFileByAnotherNameIsReplaced()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    const std::string link = folder.filePath("link").toStdString();
    QVERIFY(Journal().Open(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});
    std::filesystem::create_hard_link(path.toStdString(), link);

    QVERIFY(Journal().Open(link, m_error));
    Journal().Add(UndoRecord{3});

    QCOMPARE(ReadLinesAfterHeader(path), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":3}\n"));
}

void JournalOpeningTest::aReservedFileStaysAsItIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, Read + Torn));

    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    QCOMPARE(Journal().Add(UndoRecord{1}), 1);

    QVERIFY(Journal().IsKept());
    QVERIFY(Journal().Close());
    QCOMPARE(ReadBytes(path), Read + Torn);
}

void JournalOpeningTest::aReservedFileIsContinuedBehindItsLastLine()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, Read + Torn));
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(CommandRecord{L"Line", {}});

    Journal().Continue(7);
    QCOMPARE(Journal().TakeAnnounced(L"Line"), 0);
    QCOMPARE(ReadBytes(path), Read + Torn);
    QCOMPARE(Journal().Add(UndoRecord{3}), 8);

    QCOMPARE(ReadBytes(path), Read + "{\"n\":8,\"kind\":\"undo\",\"entity\":3}\n");
}

void JournalOpeningTest::aReservedFileCanBeginAnew()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, Read + Torn));
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});

    QVERIFY(Journal().Open(path.toStdString(), m_error));
    QCOMPARE(ReadLinesAfterHeader(path), QByteArray());
    Journal().Add(UndoRecord{3});

    QCOMPARE(ReadLinesAfterHeader(path), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":3}\n"));
}

void JournalOpeningTest::whatWasKeptBackMovesToAnotherFile()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    const QString other = folder.filePath("other");
    QVERIFY(WriteBytes(path, Read + Torn));
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});

    QVERIFY(Journal().MoveTo(other.toStdString(), m_error));
    QCOMPARE(ReadLinesAfterHeader(other), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":1}\n"));
    QCOMPARE(Journal().Add(UndoRecord{2}), 2);

    QCOMPARE(ReadBytes(path), Read + Torn);
    QCOMPARE(ReadLinesAfterHeader(other), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":1}\n"
                                                     "{\"n\":2,\"kind\":\"undo\",\"entity\":2}\n"));
}

void JournalOpeningTest::aFileBeginsWithTheProgramAndTheTime()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    Journal().SetProgram(L"画图 1.0");

    QVERIFY(Journal().Open(path.toStdString(), m_error));
    Journal().SetProgram(L"");

    const QRegularExpression header(
        QString::fromUtf8("^\\{\"n\":0,\"kind\":\"journal\",\"version\":2,\"program\":\"画图 1.0\","
                          "\"time\":\"[0-9-]{10}T[0-9:]{8}\\.[0-9]{3}Z\"\\}\n$"));
    const QString written = QString::fromUtf8(ReadBytes(path));
    QVERIFY2(header.match(written).hasMatch(), qPrintable(written));
    QVERIFY2(Journal().GetLastLines().empty(), "a header is no record of a session");
    QCOMPARE(Journal().Add(UndoRecord{1}), 1);
}

void JournalOpeningTest::aContinuedFileGetsNoHeader()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, Read));
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Continue(7);

    Journal().Add(CloseRecord{});

    QCOMPARE(ReadBytes(path), Read + "{\"n\":8,\"kind\":\"close\"}\n");
}

void JournalOpeningTest::aFileForRecordsOfTheFirstVersionGetsNoHeader()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    const QString other = folder.filePath("other");
    QVERIFY(WriteBytes(path, Read));
    Journal().SetVersion(1);

    QVERIFY(Journal().Open(other.toStdString(), m_error));
    QCOMPARE(ReadBytes(other), QByteArray());
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(CloseRecord{});
    QVERIFY(Journal().MoveTo(other.toStdString(), m_error));
    QCOMPARE(ReadBytes(other), QByteArray("{\"n\":1,\"kind\":\"close\"}\n"));

    Journal().Close();
    QVERIFY(Journal().Open(other.toStdString(), m_error));
    QCOMPARE(ReadLinesAfterHeader(other), QByteArray());
}

void JournalOpeningTest::aFileOfAnotherProgramIsInUse()
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath("journal").toStdString();
    const std::string own = folder.filePath("own").toStdString();
    OutputFile other;
    QVERIFY(other.OpenAlone(path) == OutputFile::Opening::Done);
    QVERIFY(Journal().Open(own, m_error));

    QVERIFY(Journal().IsInUse(path));
    QVERIFY2(!Journal().IsInUse(own), "that is this program");
    QVERIFY(!Journal().IsInUse(folder.filePath("none").toStdString()));
    QVERIFY2(!QFile::exists(folder.filePath("none")), "asking creates nothing");

    other.Close();
    QVERIFY(!Journal().IsInUse(path));
    QVERIFY2(other.OpenAlone(path) == OutputFile::Opening::Done, "asking leaves no lock");
}

void JournalOpeningTest::whatIsOnDiskIsKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    Journal().SetSynced(true);
    QVERIFY(Journal().Open(path.toStdString(), m_error));

    Journal().Add(UndoRecord{1});
    Journal().SetSynced(false);

    QVERIFY(Journal().IsKept());
    QCOMPARE(ReadLinesAfterHeader(path), QByteArray("{\"n\":1,\"kind\":\"undo\",\"entity\":1}\n"));
}

void JournalOpeningTest::whereTheOtherFileCannotBeWrittenNothingIsKept()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("journal");
    QVERIFY(WriteBytes(path, Read));
    QVERIFY(Journal().Reserve(path.toStdString(), m_error));
    Journal().Add(UndoRecord{1});

    QVERIFY(!Journal().MoveTo(folder.filePath("none/other").toStdString(), m_error));

    QVERIFY(!Journal().IsKept());
    Journal().Add(UndoRecord{2});
    QCOMPARE(ReadBytes(path), Read);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::JournalOpeningTest);
#include "JournalOpeningTest.moc"

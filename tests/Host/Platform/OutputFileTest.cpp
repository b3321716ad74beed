#include "Platform/OutputFile.h"

#include "Host/Platform/FileOpenings.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

#include <utility>

namespace vesk
{

/// Files of the operating system.
class OutputFileTest : public QObject
{
    Q_OBJECT

private slots:
    void whatIsWrittenGoesBehindWhatIsThere();
    void aFileThatOneHasAloneIsInUse();
    void theLockGoesWithTheFile_data();
    void theLockGoesWithTheFile();
    void openingAnotherFileLetsGoOfTheFirst_data();
    void openingAnotherFileLetsGoOfTheFirst();
    void aFileThatIsMovedBelongsToTheOther();
    void aFileMovedToItselfStays();
    void sharedFilesAreNotLocked();
    void onlyALongerFileIsCut();
    void aNewFileMustBeNew();
    void whatCannotBeOpenedIsTold();
    void aFullDeviceTakesNothing();
    void aDeviceHasNothingToBringToTheDisk();
    void withoutAFileNothingIsDone();

private:
    QString Path() const { return m_folder.filePath(QString::fromUtf8("文件")); }
    std::filesystem::path NativePath() const
    {
        return std::filesystem::u8path(Path().toStdString());
    }

    QTemporaryDir m_folder;
};

void OutputFileTest::whatIsWrittenGoesBehindWhatIsThere()
{
    OutputFile file;
    QVERIFY(file.OpenShared(NativePath()));
    QCOMPARE(file.Write("first "), std::size_t(6));
    QVERIFY(file.OpenAlone(NativePath()) == OutputFile::Opening::Done);

    QCOMPARE(file.Write("second"), std::size_t(6));

    QCOMPARE(ReadBytes(Path()), QByteArray("first second"));
    QVERIFY(file.Sync());
    QVERIFY(file.Close());
    QVERIFY(file.Close());
    QVERIFY(!file.IsOpen());
}

void OutputFileTest::aFileThatOneHasAloneIsInUse()
{
    OutputFile first;
    QVERIFY(first.OpenAlone(NativePath()) == OutputFile::Opening::Done);
    OutputFile second;

    QVERIFY(second.OpenAlone(NativePath()) == OutputFile::Opening::InUse);

    QVERIFY(!second.IsOpen());
    QVERIFY(first.IsOpen());
}

void OutputFileTest::theLockGoesWithTheFile_data()
{
    QTest::addColumn<bool>("isMoved");
    QTest::newRow("closed") << false;
    QTest::newRow("replaced") << true;
}

void OutputFileTest::theLockGoesWithTheFile()
{
    QFETCH(bool, isMoved);
    OutputFile first;
    QVERIFY(first.OpenAlone(NativePath()) == OutputFile::Opening::Done);

    if (isMoved)
        first = OutputFile();
    else
        first.Close();

    QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::Done);
    QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::Done);
}

void OutputFileTest::openingAnotherFileLetsGoOfTheFirst_data()
{
    AddOpenings();
    QTest::newRow("moved") << Opening([](OutputFile& file, const std::filesystem::path& path) {
        OutputFile other;
        other.OpenShared(path);
        file = std::move(other);
    });
}

void OutputFileTest::openingAnotherFileLetsGoOfTheFirst()
{
    QFETCH(Opening, open);
    const QTemporaryDir folder;
    OutputFile file;
    QVERIFY(file.OpenAlone(NativePath()) == OutputFile::Opening::Done);

    open(file, folder.filePath("other").toStdString());

    QVERIFY(file.IsOpen());
    QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::Done);
}

void OutputFileTest::aFileThatIsMovedBelongsToTheOther()
{
    OutputFile first;
    QVERIFY(first.OpenAlone(NativePath()) == OutputFile::Opening::Done);

    {
        OutputFile second(std::move(first));
        QVERIFY(second.IsOpen());
        QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::InUse);
    }

    QVERIFY(!first.IsOpen()); // NOLINT(bugprone-use-after-move)
    QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::Done);
}

void OutputFileTest::aFileMovedToItselfStays()
{
    OutputFile file;
    QVERIFY(file.OpenAlone(NativePath()) == OutputFile::Opening::Done);
    OutputFile& same = file;

    file = std::move(same);

    QVERIFY(file.IsOpen());
    QVERIFY(OutputFile().OpenAlone(NativePath()) == OutputFile::Opening::InUse);
}

void OutputFileTest::sharedFilesAreNotLocked()
{
    OutputFile first;
    OutputFile second;

    QVERIFY(first.OpenShared(NativePath()));
    QVERIFY(second.OpenShared(NativePath()));
}

void OutputFileTest::onlyALongerFileIsCut()
{
    OutputFile file;
    QVERIFY(file.OpenAlone(m_folder.filePath("cut").toStdString()) == OutputFile::Opening::Done);
    file.Write("0123456789");
    QFile seen(m_folder.filePath("cut"));

    QVERIFY(file.CutTo(20));
    QCOMPARE(seen.size(), qint64(10));
    QVERIFY(file.CutTo(4));
    QCOMPARE(seen.size(), qint64(4));
    file.Write("ab");

    QVERIFY(seen.open(QIODevice::ReadOnly));
    QCOMPARE(seen.readAll(), QByteArray("0123ab"));
}

void OutputFileTest::aNewFileMustBeNew()
{
    OutputFile file;

    QVERIFY(file.Create(m_folder.filePath("new").toStdString()));
    QVERIFY(!OutputFile().Create(m_folder.filePath("new").toStdString()));
}

void OutputFileTest::whatCannotBeOpenedIsTold()
{
    const std::filesystem::path folder = m_folder.path().toStdString();
    OutputFile file;

    QVERIFY(file.OpenAlone(folder) == OutputFile::Opening::Failed);
    QVERIFY(!file.OpenShared(folder / "none" / "file"));
    QVERIFY(!file.Create(folder / "none" / "file"));
    QVERIFY(!file.IsOpen());
    QCOMPARE(file.Write("text"), std::size_t(0));
}

void OutputFileTest::aFullDeviceTakesNothing()
{
    OutputFile file;
    QVERIFY(file.OpenShared("/dev/full"));

    QCOMPARE(file.Write("text"), std::size_t(0));
}

void OutputFileTest::aDeviceHasNothingToBringToTheDisk()
{
    OutputFile file;
    QVERIFY(file.OpenShared("/dev/full"));

    QVERIFY(file.Sync());
    QVERIFY(file.SyncData());
}

void OutputFileTest::withoutAFileNothingIsDone()
{
    OutputFile file;

    QVERIFY(!file.CutTo(0));
    QVERIFY(!file.Sync());
    QVERIFY(!file.SyncData());
    QVERIFY(file.Close());
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::OutputFileTest);
#include "OutputFileTest.moc"

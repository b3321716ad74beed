#include "Documents/FileStamp.h"

#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QFile>
#include <QTemporaryDir>

class FileStampTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pFolder = std::make_unique<QTemporaryDir>();
        m_path = m_pFolder->filePath("file");
        QVERIFY(vesk::WriteBytes(m_path, "abc"));
    }

    void anUntouchedFileIsNotOutdated()
    {
        const FileStamp stamp = FileStamp::Of(m_path, "abc");

        QVERIFY(!stamp.IsOutdated(m_path));
    }

    void aFileWithOtherBytesIsOutdated_data()
    {
        QTest::addColumn<QByteArray>("bytes");

        QTest::newRow("longer") << QByteArray("abcd");
        QTest::newRow("as long") << QByteArray("abd");
        QTest::newRow("empty") << QByteArray();
    }

    void aFileWithOtherBytesIsOutdated()
    {
        QFETCH(QByteArray, bytes);
        const FileStamp stamp = FileStamp::Of(m_path, "abc");
        QVERIFY(vesk::WriteBytes(m_path, bytes));
        SetModified(stamp.modified.addSecs(5));

        QVERIFY(stamp.IsOutdated(m_path));
    }

    void aFileThatWasOnlyTouchedIsNotOutdated()
    {
        const FileStamp stamp = FileStamp::Of(m_path, "abc");

        SetModified(stamp.modified.addSecs(5));

        QVERIFY(!stamp.IsOutdated(m_path));
    }

    void aFileThatIsGoneIsNotOutdated()
    {
        const FileStamp stamp = FileStamp::Of(m_path, "abc");

        QVERIFY(QFile::remove(m_path));

        QVERIFY(!stamp.IsOutdated(m_path));
    }

private:
    void SetModified(const QDateTime& time) const
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
    QString m_path;
};

VESK_TESTS_WITHOUT_WINDOWS(FileStampTest);
#include "FileStampTest.moc"

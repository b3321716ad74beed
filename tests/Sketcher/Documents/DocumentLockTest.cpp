#include "Documents/DocumentLock.h"

#include "Support/FileBytes.h"
#include "Support/Platform/FileLinks.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

using State = DocumentLock::State;
using vesk::test::MakeLink;
using vesk::test::NoLinks;

class DocumentLockTest final : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_pFolder = std::make_unique<QTemporaryDir>();
        m_path = m_pFolder->filePath("a.vsk");
        QVERIFY(vesk::WriteBytes(m_path, "abc"));
    }

    void aFileIsLockedAsLongAsTheLockLives()
    {
        {
            const DocumentLock lock(m_path);

            QCOMPARE(lock.GetState(), State::Held);
            QCOMPARE(HiddenFiles(), QStringList{".a.vsk.lock"});
        }
        QCOMPARE(HiddenFiles(), QStringList());
    }

    void aSecondLockIsToldWhoHasTheFile()
    {
        const DocumentLock first(m_path);

        const DocumentLock second(m_path);

        QCOMPARE(second.GetState(), State::InUse);
        QVERIFY(second.GetHolder().contains(QString::number(QCoreApplication::applicationPid())));
    }

    void aFileHasOneLockUnderAllItsNames()
    {
        const QString link = m_pFolder->filePath("link.vsk");
        if (!MakeLink(m_path, link))
            QSKIP(NoLinks);
        const DocumentLock first(m_path);

        QCOMPARE(DocumentLock(link).GetState(), State::InUse);
        QCOMPARE(DocumentLock(m_pFolder->filePath("./a.vsk")).GetState(), State::InUse);
    }

    void aFileThatALinkLeadsToIsLockedBeforeItExists()
    {
        const QString link = m_pFolder->filePath("link.vsk");
        if (!MakeLink(m_pFolder->filePath("new.vsk"), link))
            QSKIP(NoLinks);
        const DocumentLock first(link);

        QCOMPARE(first.GetState(), State::Held);
        QCOMPARE(DocumentLock(m_pFolder->filePath("new.vsk")).GetState(), State::InUse);
    }

    void aLinkToItselfCanBeAsked()
    {
        const QString link = m_pFolder->filePath("loop.vsk");
        if (!MakeLink(link, link))
            QSKIP(NoLinks);

        QCOMPARE(DocumentLock(link).GetState(), State::Held);
    }

    void aNewFileCanBeLocked()
    {
        QCOMPARE(DocumentLock(m_pFolder->filePath("new.vsk")).GetState(), State::Held);
    }

    void theLockOfADeadProgramIsTakenOver()
    {
        QProcess dead;
        // This program, which without an argument only tells what it can do.
        dead.start(QCoreApplication::applicationFilePath(), QStringList());
        QVERIFY(dead.waitForStarted());
        const QByteArray process = QByteArray::number(dead.processId());
        QVERIFY(dead.waitForFinished());
        const QString file = m_pFolder->filePath(".a.vsk.lock");
        auto pOwn = std::make_unique<DocumentLock>(m_path);
        const QByteArray own = vesk::ReadBytes(file);
        pOwn.reset();
        QVERIFY(vesk::WriteBytes(file, process + own.mid(own.indexOf('\n'))));

        QCOMPARE(DocumentLock(m_path).GetState(), State::Held);
    }

    void theLockOfAnotherMachineHoldsAndIsToldAsItIs()
    {
        QVERIFY(vesk::WriteBytes(m_pFolder->filePath(".a.vsk.lock"), "17\na%1b\nelsewhere\n"));

        const DocumentLock lock(m_path);

        QCOMPARE(lock.GetState(), State::InUse);
        QCOMPARE(lock.GetHolder(), QString("a%1b（elsewhere，进程 17）"));
    }

    void aFolderWithoutLocksIsTold()
    {
        QCOMPARE(DocumentLock(m_pFolder->filePath("none/a.vsk")).GetState(), State::Impossible);
    }

private:
    QStringList HiddenFiles() const
    {
        return QDir(m_pFolder->path()).entryList({".*"}, QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_pFolder;
    QString m_path;
};

VESK_TESTS_WITHOUT_WINDOWS(DocumentLockTest);
#include "DocumentLockTest.moc"

#include "Desktop/DesktopTest.h"

#include <QDir>
#include <QThread>

namespace vesk
{

namespace
{

/// How often each thread of a process has gone to sleep: "123 voluntary_ctxt_switches: 7".
QStringList SleepsOf(qint64 processId)
{
    QStringList sleeps;
    const QDir threads(QStringLiteral("/proc/%1/task").arg(processId));
    for (const QString& thread : threads.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
    {
        const QByteArray status = ReadBytes(threads.filePath(thread + "/status"));
        for (const QByteArray& line : status.split('\n'))
        {
            if (line.startsWith("voluntary_ctxt_switches"))
                sleeps << thread + ' ' + QString::fromUtf8(line).simplified();
        }
    }
    return sleeps;
}

}

/// What the program does while its user does nothing.
class IdleTest : public DesktopTest
{
    Q_OBJECT

private slots:
    void noThreadWakesUp_data()
    {
        QTest::addColumn<QString>("pane");

        QTest::newRow("inspector behind the journal") << "Journal";
        QTest::newRow("inspector in front") << "Inspector";
    }

    void noThreadWakesUp()
    {
        QFETCH(QString, pane);
        constexpr int LongMs = 3000;
        // The pane that is shown comes to the front.
        const QString command = "Sketcher.Pane." + pane;
        for (int i = 0; i < 2; ++i)
        {
            QVERIFY(Session().OpenMenu("Sketcher.Panes", command));
            QVERIFY(Session().ClickEntry(command));
        }
        QVERIFY(Session().ClickView({10, 10}));
        QVERIFY(Session().WaitForRest());

        QVERIFY(PollUntil([this] {
            const QStringList before = SleepsOf(Session().GetProcessId());
            QThread::msleep(LongMs);
            return !before.isEmpty() && SleepsOf(Session().GetProcessId()) == before;
        }));
        QVERIFY(CloseProgram());
    }
};

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::IdleTest);
#include "IdleTest.moc"

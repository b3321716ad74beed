#include "HostUi/TerminationRequests.h"

#include "Support/TestValues.h"

#include <QEventLoop>
#include <QFile>
#include <QSet>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <memory>

namespace vesk
{

/// Requests of the operating system to a process.
class TerminationRequestsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void eachSignalIsARequest_data();
    void eachSignalIsARequest();
    void aRequestComesInNestedLoopsToo();
    void requestsFromBeforeTheLoopAreNotLost();
    void whatWasIgnoredStaysIgnored();
    void afterwardsEverythingIsAsBefore();
    void theFilesThatItUsesAreClosed();
    void withoutFilesEverythingIsAsBefore();
    void aCallThatASignalInterruptsGoesOn();
    void failedWritesAreSurvived();
};

/// The open files of the process.
static QSet<int> OpenFiles()
{
    QSet<int> files;
    for (int file = 0; file < 256; ++file)
    {
        if (::fcntl(file, F_GETFD) != -1)
            files.insert(file);
    }
    return files;
}

/// A separate handler for each signal.
template <int Signal>
static void Ignore(int)
{}

/// Who starts the tests may have ignored some: a shell does, for what runs in the background.
void TerminationRequestsTest::initTestCase()
{
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        std::signal(signal, SIG_DFL);
}

void TerminationRequestsTest::eachSignalIsARequest_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TerminationRequestsTest::eachSignalIsARequest()
{
    QFETCH(int, signal);
    const TerminationRequests requests;
    QSignalSpy requested(&requests, &TerminationRequests::requested);

    ::raise(signal);
    QCOMPARE(requested.count(), 0);

    QTRY_COMPARE(requested.count(), 1);
    ::raise(signal);
    QTRY_COMPARE(requested.count(), 2);
    for (int round = 0; round < 5; ++round)
        QCoreApplication::processEvents();
    QCOMPARE(requested.count(), 2);
}

void TerminationRequestsTest::aRequestComesInNestedLoopsToo()
{
    const TerminationRequests requests;
    QSignalSpy requested(&requests, &TerminationRequests::requested);
    QEventLoop nested;
    connect(&requests, &TerminationRequests::requested, &nested, &QEventLoop::quit);
    QTimer::singleShot(0, [] { ::raise(SIGTERM); });

    nested.exec();

    QCOMPARE(requested.count(), 1);
}

void TerminationRequestsTest::requestsFromBeforeTheLoopAreNotLost()
{
    const TerminationRequests requests;
    QSignalSpy requested(&requests, &TerminationRequests::requested);

    errno = 0;
    for (int i = 0; i < 100000; ++i)
        ::raise(SIGTERM);
    QCOMPARE(errno, 0);

    QTRY_VERIFY(requested.count() >= 1);
}

void TerminationRequestsTest::whatWasIgnoredStaysIgnored()
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const TerminationRequests requests;
        QSignalSpy requested(&requests, &TerminationRequests::requested);

        ::raise(SIGHUP);
        ::raise(SIGTERM);

        QTRY_COMPARE(requested.count(), 1);
    }
    QVERIFY(std::signal(SIGHUP, before) == SIG_IGN);
}

void TerminationRequestsTest::afterwardsEverythingIsAsBefore()
{
    const auto terminate = std::signal(SIGTERM, &Ignore<SIGTERM>);
    const auto interrupt = std::signal(SIGINT, &Ignore<SIGINT>);
    const auto hangUp = std::signal(SIGHUP, &Ignore<SIGHUP>);

    {
        const TerminationRequests requests;
    }

    QVERIFY(std::signal(SIGTERM, terminate) == &Ignore<SIGTERM>);
    QVERIFY(std::signal(SIGINT, interrupt) == &Ignore<SIGINT>);
    QVERIFY(std::signal(SIGHUP, hangUp) == &Ignore<SIGHUP>);
}

void TerminationRequestsTest::theFilesThatItUsesAreClosed()
{
    // The first one creates resources that the event loop keeps.
    std::make_unique<TerminationRequests>().reset();
    const QSet<int> before = OpenFiles();
    {
        const TerminationRequests requests;
        const QSet<int> used = OpenFiles() - before;
        QCOMPARE(used.size(), 2);
        for (const int file : used)
            QVERIFY(::fcntl(file, F_GETFD) & FD_CLOEXEC);
    }

    QCOMPARE(OpenFiles(), before);
}

void TerminationRequestsTest::withoutFilesEverythingIsAsBefore()
{
    const auto before = std::signal(SIGTERM, &Ignore<SIGTERM>);
    rlimit most = {};
    QCOMPARE(::getrlimit(RLIMIT_NOFILE, &most), 0);
    rlimit none = most;
    none.rlim_cur = 0;
    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &none), 0);

    {
        const TerminationRequests requests;
    }

    QCOMPARE(::setrlimit(RLIMIT_NOFILE, &most), 0);
    QVERIFY(std::signal(SIGTERM, before) == &Ignore<SIGTERM>);
}

void TerminationRequestsTest::aCallThatASignalInterruptsGoesOn()
{
    const TerminationRequests requests;

    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
    {
        struct sigaction current = {};
        QCOMPARE(sigaction(signal, nullptr, &current), 0);
        QVERIFY(current.sa_flags & SA_RESTART);
    }
}

void TerminationRequestsTest::failedWritesAreSurvived()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    std::array<int, 2> ends{};
    QCOMPARE(::pipe(ends.data()), 0);
    ::close(ends[0]);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    rlimit full = before;
    full.rlim_cur = 0;

    SurviveFailedWrites();

    QCOMPARE(::write(ends[1], "text", 4), ssize_t(-1));
    setrlimit(RLIMIT_FSIZE, &full);
    QVERIFY(file.write("text") < 4);
    setrlimit(RLIMIT_FSIZE, &before);
    ::close(ends[1]);
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::TerminationRequestsTest);
#include "TerminationRequestsTest.moc"

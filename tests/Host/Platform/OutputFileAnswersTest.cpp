#include "Platform/OutputFile.h"

#include "Host/Platform/FileOpenings.h"
#include "Support/FileBytes.h"
#include "Support/TestValues.h"

#include <QTemporaryDir>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <functional>
#include <memory>
#include <vector>

namespace
{

/// What the system returns, once, instead of executing the next call of that name.
struct Answer
{
    const char* call = "";
    ssize_t value = 0;
    int error = 0;
};

Answer s_answer;

/// The last descriptor opened.
int s_opened = -1;

/// How much each write to it was asked to write.
std::vector<std::size_t> s_askedSizes;

/// Whether the prepared answer is for that call.
bool IsAnswered(const char* call, ssize_t& value)
{
    if (qstrcmp(s_answer.call, call) != 0)
        return false;
    value = s_answer.value;
    errno = s_answer.error;
    s_answer = {};
    return true;
}

/// The system function that this program's function replaces.
template <class Function>
Function Next(const char* symbol)
{
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol));
}

}

// The program's functions take precedence over the system's.
extern "C" {

int open(const char* pPath, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    s_opened = Next<decltype(&open)>("open")(pPath, flags, mode);
    return s_opened;
}

ssize_t write(int descriptor, const void* pBytes, size_t size)
{
    ssize_t value = 0;
    if (descriptor == s_opened)
        s_askedSizes.push_back(size);
    if (IsAnswered("write", value))
        return value;
    return Next<decltype(&write)>("write")(descriptor, pBytes, size);
}

int fsync(int descriptor)
{
    ssize_t value = 0;
    if (IsAnswered("fsync", value))
        return static_cast<int>(value);
    return Next<decltype(&fsync)>("fsync")(descriptor);
}

int flock(int descriptor, int operation)
{
    ssize_t value = 0;
    if (IsAnswered("flock", value))
        return static_cast<int>(value);
    return Next<decltype(&flock)>("flock")(descriptor, operation);
}

/// Closes the file, whatever it returns.
int close(int descriptor)
{
    const int closed = Next<decltype(&close)>("close")(descriptor);
    ssize_t value = 0;
    return IsAnswered("close", value) ? static_cast<int>(value) : closed;
}
}

namespace vesk
{

/// The effects of rare return values of the system.
class OutputFileAnswersTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_file.Close(); }

    void aFileIsOnlyWrittenAndOnlyByThisProgram_data();
    void aFileIsOnlyWrittenAndOnlyByThisProgram();
    void whoMayUseANewFileIsTheUsersChoice_data();
    void whoMayUseANewFileIsTheUsersChoice();
    void anInterruptedWriteIsRepeated();
    void aWriteInPiecesGoesOn();
    void whatIsNotWrittenIsTold_data();
    void whatIsNotWrittenIsTold();
    void whatCannotBeOnADiskIsThere_data();
    void whatCannotBeOnADiskIsThere();
    void whatDoesNotGetToTheDiskIsTold_data();
    void whatDoesNotGetToTheDiskIsTold();
    void anInterruptedCloseHasClosed();
    void aCloseThatLosesSomethingIsTold();
    void whereThereAreNoLocksTheFileIsOpened();
    void aFileInUseIsLeft();

private:
    std::string Path() const { return m_pFolder->filePath("file").toStdString(); }
    QByteArray Content() const { return ReadBytes(m_pFolder->filePath("file")); }

    std::unique_ptr<QTemporaryDir> m_pFolder;
    OutputFile m_file;
};

void OutputFileAnswersTest::init()
{
    s_answer = {};
    m_pFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_file.OpenShared(Path()));
}

void OutputFileAnswersTest::aFileIsOnlyWrittenAndOnlyByThisProgram_data()
{
    AddOpenings();
}

void OutputFileAnswersTest::aFileIsOnlyWrittenAndOnlyByThisProgram()
{
    QFETCH(Opening, open);
    OutputFile file;

    open(file, Path() + " of its own");

    const int flags = ::fcntl(s_opened, F_GETFL);
    QCOMPARE(flags & O_ACCMODE, O_WRONLY);
    QCOMPARE(flags & O_APPEND, O_APPEND);
    QCOMPARE(::fcntl(s_opened, F_GETFD) & FD_CLOEXEC, FD_CLOEXEC);
}

void OutputFileAnswersTest::whoMayUseANewFileIsTheUsersChoice_data()
{
    AddOpenings();
}

void OutputFileAnswersTest::whoMayUseANewFileIsTheUsersChoice()
{
    QFETCH(Opening, open);
    const std::string path = Path() + " of its own";
    OutputFile file;
    const mode_t before = ::umask(0);

    open(file, path);

    ::umask(before);
    struct stat status = {};
    QCOMPARE(::stat(path.c_str(), &status), 0);
    QCOMPARE(status.st_mode & 07777, mode_t(0666));
}

void OutputFileAnswersTest::anInterruptedWriteIsRepeated()
{
    s_answer = {"write", -1, EINTR};

    QCOMPARE(m_file.Write("0123456789"), std::size_t(10));

    QCOMPARE(Content(), QByteArray("0123456789"));
}

void OutputFileAnswersTest::aWriteInPiecesGoesOn()
{
    s_answer = {"write", 4, 0};
    s_askedSizes.clear();

    QCOMPARE(m_file.Write("0123456789"), std::size_t(10));

    QCOMPARE(Content(), QByteArray("456789"));
    QCOMPARE(s_askedSizes, (std::vector<std::size_t>{10, 6}));
}

void OutputFileAnswersTest::whatIsNotWrittenIsTold_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("error");
    QTest::newRow("no room") << -1 << ENOSPC;
    QTest::newRow("broken") << -1 << EIO;
    QTest::newRow("nothing, without a reason") << 0 << 0;
    QTest::newRow("nothing, after an interruption") << 0 << EINTR;
}

void OutputFileAnswersTest::whatIsNotWrittenIsTold()
{
    QFETCH(int, value);
    QFETCH(int, error);
    s_answer = {"write", value, error};

    QCOMPARE(m_file.Write("0123456789"), std::size_t(0));

    QCOMPARE(Content(), QByteArray());
}

void OutputFileAnswersTest::whatCannotBeOnADiskIsThere_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("a device") << EINVAL;
    QTest::newRow("a file system that cannot") << ENOSYS;
    QTest::newRow("a file that cannot") << ENOTSUP;
    QTest::newRow("a special file of a system that is read only") << EROFS;
}

void OutputFileAnswersTest::whatCannotBeOnADiskIsThere()
{
    QFETCH(int, error);
    s_answer = {"fsync", -1, error};

    QVERIFY(m_file.Sync());
}

void OutputFileAnswersTest::whatDoesNotGetToTheDiskIsTold_data()
{
    QTest::addColumn<int>("error");
    QTest::newRow("no room") << ENOSPC;
    QTest::newRow("broken") << EIO;
    QTest::newRow("too much for this user") << EDQUOT;
}

void OutputFileAnswersTest::whatDoesNotGetToTheDiskIsTold()
{
    QFETCH(int, error);
    s_answer = {"fsync", -1, error};

    QVERIFY(!m_file.Sync());
}

void OutputFileAnswersTest::anInterruptedCloseHasClosed()
{
    s_answer = {"close", -1, EINTR};

    QVERIFY(m_file.Close());

    QVERIFY(!m_file.IsOpen());
}

void OutputFileAnswersTest::aCloseThatLosesSomethingIsTold()
{
    s_answer = {"close", -1, EIO};

    QVERIFY(!m_file.Close());

    QVERIFY(!m_file.IsOpen());
}

void OutputFileAnswersTest::whereThereAreNoLocksTheFileIsOpened()
{
    s_answer = {"flock", -1, ENOLCK};

    QVERIFY(m_file.OpenAlone(Path()) == OutputFile::Opening::Done);

    QCOMPARE(m_file.Write("text"), std::size_t(4));
}

void OutputFileAnswersTest::aFileInUseIsLeft()
{
    const int before = ::dup(STDERR_FILENO);
    ::close(before);
    s_answer = {"flock", -1, EWOULDBLOCK};

    QVERIFY(OutputFile().OpenAlone(Path()) == OutputFile::Opening::InUse);

    const int after = ::dup(STDERR_FILENO);
    ::close(after);
    QCOMPARE(after, before);
}

}

VESK_TESTS_WITHOUT_APPLICATION(vesk::OutputFileAnswersTest);
#include "OutputFileAnswersTest.moc"

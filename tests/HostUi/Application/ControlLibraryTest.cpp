#include "HostUi/ControlLibrary.h"

#include "HostCore.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <iostream>

namespace vesk
{
namespace
{

/// Loads the control library and prints why that failed.
int LoadInOtherProcess(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const HostCore host;
    const ControlLibrary library;
    std::cout << library.GetError().toStdString();
    return library.IsLoaded() ? 0 : 1;
}

const test::TestEntry s_child("ControlLibraryLoad", &LoadInOtherProcess);

}

/// Where the control library is found: this program runs once more, copied to a folder of its own.
class ControlLibraryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void isFoundBesideTheLibraryThatLoadsIt();
    void theOneThatTheProgramBringsComesFirst();

private:
    QString BroughtFile() const
    {
        return m_folder.filePath(QStringLiteral("lib/libVeskUiQtImpl.so"));
    }
    QString Program() const { return m_folder.filePath(QStringLiteral("bin/program")); }

    /// Returns what the copied program printed.
    QString Run(int& exitCode) const
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_LIBRARY_PATH"), m_libraries);
        program.setProcessEnvironment(environment);
        program.start(Program(), {QStringLiteral("ControlLibraryLoad")});
        program.waitForFinished(-1);
        exitCode = program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
        return QString::fromUtf8(program.readAllStandardOutput());
    }

    QTemporaryDir m_folder;
    QString m_libraries;
};

void ControlLibraryTest::initTestCase()
{
    m_libraries = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../lib");
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("bin")));
    QVERIFY(QDir(m_folder.path()).mkpath(QStringLiteral("lib")));
    QVERIFY(QFile::copy(QCoreApplication::applicationFilePath(), Program()));
}

void ControlLibraryTest::isFoundBesideTheLibraryThatLoadsIt()
{
    int exitCode = -1;
    const QString error = Run(exitCode);

    QCOMPARE(error, QString());
    QCOMPARE(exitCode, 0);
}

void ControlLibraryTest::theOneThatTheProgramBringsComesFirst()
{
    QFile brought(BroughtFile());
    QVERIFY(brought.open(QIODevice::WriteOnly));
    QVERIFY(brought.write("not a library") > 0);
    brought.close();

    int exitCode = -1;
    const QString error = Run(exitCode);

    QVERIFY2(error.contains("/bin/../lib/libVeskUiQtImpl.so"), qPrintable(error));
    QCOMPARE(exitCode, 1);
    QVERIFY(brought.remove());
}

}

VESK_TESTS_WITHOUT_WINDOWS(vesk::ControlLibraryTest);
#include "ControlLibraryTest.moc"

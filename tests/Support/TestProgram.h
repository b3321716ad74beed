#pragma once

// Included through Support/TestValues.h, like Qt Test, which it needs.

#ifdef QT_WIDGETS_LIB
#include <QApplication>
#else
#include <QCoreApplication>
#endif

namespace vesk::test
{

/// Something a test program does when its first argument names it: usually a test class.
///
/// A program contains many entries, so that their headers are parsed and their libraries linked
/// once. Each run executes one: what a test class leaves behind cannot affect another.
class TestEntry
{
public:
    /// Receives the arguments of the program without the name of the entry.
    using Run = int (*)(int argc, char* argv[]);

    /// Constructed before main() begins. The entry is known by the part of the name (not owned)
    /// after its last colon.
    TestEntry(const char* name, Run run);

    /// The main function: runs the entry named by the first argument. Without an argument it lists
    /// the names and exits with 2.
    static int Main(int argc, char* argv[]);
};

template <class Application, class Test>
int RunIn(int argc, char* argv[])
{
    // What the class prepares before there is an application, as with Qt Test's own main function.
    QTest::Internal::callInitMain<Test>();
    const Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <class Test>
int RunWithoutApplication(int argc, char* argv[])
{
    QTest::Internal::callInitMain<Test>();
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}

// Each registers a test class with its program, with as much of an application as it needs.
#define VESK_TESTS(Class)                                                                          \
    static const vesk::test::TestEntry s_tests                                                     \
    {                                                                                              \
#Class, &vesk::test::RunIn < QApplication, Class>                                          \
    }
#define VESK_TESTS_WITHOUT_WINDOWS(Class)                                                          \
    static const vesk::test::TestEntry s_tests                                                     \
    {                                                                                              \
#Class, &vesk::test::RunIn < QCoreApplication, Class>                                      \
    }
#define VESK_TESTS_WITHOUT_APPLICATION(Class)                                                      \
    static const vesk::test::TestEntry s_tests                                                     \
    {                                                                                              \
#Class, &vesk::test::RunWithoutApplication < Class>                                        \
    }

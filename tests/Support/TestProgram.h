#pragma once

// Reached through Support/TestValues.h, like Qt Test, which it needs.

#ifdef QT_WIDGETS_LIB
#include <QApplication>
#else
#include <QCoreApplication>
#endif

namespace vesk::test
{

/// Something that a program of tests does when its first argument names it: most often a class of
/// tests.
///
/// A program holds many, so that their headers are read and their libraries are linked once. Each
/// run does one: what a class of tests leaves behind reaches no other.
class TestEntry
{
public:
    /// Gets the program's arguments without the name of the entry.
    using Run = int (*)(int argc, char* argv[]);

    /// Made before main() begins. The name, not owned, is known by what follows its last colon.
    TestEntry(const char* name, Run run);

    /// The program: runs the entry that the first argument names. Without one it lists the names,
    /// and exits with 2.
    static int Main(int argc, char* argv[]);
};

template <class Application, class Test>
int RunIn(int argc, char* argv[])
{
    const Application application(argc, argv);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    Test test;
    return QTest::qExec(&test, argc, argv);
}

template <class Test>
int RunWithoutApplication(int argc, char* argv[])
{
    Test test;
    return QTest::qExec(&test, argc, argv);
}

}

// Each makes a class of tests known to its program, with as much of an application as it needs.
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

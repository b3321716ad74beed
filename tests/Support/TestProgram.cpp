#include "Support/TestValues.h"

#include <QLocale>

#include <cstring>
#include <iostream>
#include <map>
#include <string>

namespace vesk::test
{
namespace
{

/// Entries are created before main() begins, in unspecified order.
std::map<std::string, TestEntry::Run>& Entries()
{
    static std::map<std::string, TestEntry::Run> s_entries;
    return s_entries;
}

/// The offscreen platform of Qt 6.4 crashes when a window dies that was part of another one, as a
/// pane was before it floated. This makes only those parts windows that must be.
void SpareOffscreenWindows()
{
    if (QT_VERSION_MAJOR == 6 && qgetenv("QT_QPA_PLATFORM") == "offscreen")
        QCoreApplication::setAttribute(Qt::AA_DontCreateNativeWidgetSiblings);
}

}

TestEntry::TestEntry(const char* name, Run run)
{
    const char* colon = std::strrchr(name, ':');
    Entries().emplace(colon != nullptr ? colon + 1 : name, run);
}

int TestEntry::Main(int argc, char* argv[])
{
    const auto found = argc > 1 ? Entries().find(argv[1]) : Entries().end();
    if (found == Entries().end())
    {
        std::cerr << "Name one of these, followed by arguments for Qt Test:\n";
        for (const auto& [name, run] : Entries())
            std::cerr << "  " << name << '\n';
        return 2;
    }
    SpareOffscreenWindows();
    // Tests operate the toolkit's own dialogs, which are the same on every system.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    // No user of Windows has this locale, which the environment of the tests asks for elsewhere.
    QLocale::setDefault(QLocale::c());
    for (int i = 1; i < argc; ++i)
        argv[i] = argv[i + 1];
    return found->second(argc - 1, argv);
}

}

int main(int argc, char* argv[])
{
    return vesk::test::TestEntry::Main(argc, argv);
}

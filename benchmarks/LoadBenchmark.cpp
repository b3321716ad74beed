// What it costs to load the control library and to unload it again.

#include "Harness/Question.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>

namespace
{

constexpr int Times = 100;

/// Copies a library as an installation does: the pages that a linker wrote one by one are slower
/// to map than those of a file that was written at once.
QByteArray Installed(const QString& path)
{
    static const QTemporaryDir s_folder;
    const QString copy = s_folder.filePath(QFileInfo(path).fileName());
    QFile::copy(path, copy);
    return copy.toLocal8Bit();
}

/// Lazily, as QLibrary and so the host loads it. The host and Qt are in the process already.
Side LoadAndUnload(const char* library)
{
    return [path = Installed(library)](Stopwatch& stopwatch) {
        stopwatch.Time([&path] {
            for (int i = 0; i < Times; ++i)
            {
                void* pLibrary = dlopen(path.constData(), RTLD_LAZY | RTLD_LOCAL);
                if (pLibrary == nullptr)
                {
                    std::fprintf(stderr, "%s\n", dlerror());
                    std::exit(2);
                }
                dlclose(pLibrary);
            }
        });
    };
}

}

void AskQuestions()
{
    // Without instructions: callgrind would read the debug information each time.
    Ask("P20 load and unload the library")
        .Ours(LoadAndUnload(VESK_LIBRARY))
        .Limit(LoadAndUnload(EMPTY_LIBRARY))
        .TimeAtMost(2.2)
        .WithoutInstructions();
    Ask("P20 the same, beside an empty library that also depends on Qt")
        .Ours(LoadAndUnload(VESK_LIBRARY))
        .Limit(LoadAndUnload(EMPTY_QT_LIBRARY))
        .WithoutInstructions();
}

// Whether the drawing program is on screen almost as soon as an empty window.

#include "Harness/Question.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>
#include <vector>

namespace
{

double MillisecondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

using Command = std::vector<const char*>;

void Exec(Command command, const QByteArray& settings, const QByteArray& data)
{
    // Attended, as a user starts it: with the settings and caches of former starts, and no journals
    // that these have left behind.
    setenv("XDG_CONFIG_HOME", settings.constData(), 1);
    setenv("XDG_CACHE_HOME", settings.constData(), 1);
    setenv("XDG_DATA_HOME", data.constData(), 1);
    unsetenv("VESK_UNATTENDED");
    setenv("LD_PRELOAD", FIRST_FRAME, 1);
    command.push_back(nullptr);
    execv(command.front(), const_cast<char**>(command.data()));
    std::_Exit(EXIT_FAILURE);
}

/// What a program uses of the processor, all threads together, from its start to its first frame.
double StartUp(const Command& command, const QByteArray& settings)
{
    const QTemporaryDir data;
    const pid_t process = fork();
    if (process == 0)
        Exec(command, settings, QFile::encodeName(data.path()));
    int status = 0;
    rusage usage{};
    if (wait4(process, &status, 0, &usage) != process || status != 0)
        qFatal("%s did not show a window", command.front());
    return MillisecondsOf(usage.ru_utime) + MillisecondsOf(usage.ru_stime);
}

Side StartOf(const Command& command)
{
    // Not destroyed: the sides are kept as long as the program runs.
    static const auto* s_pSettings = new QTemporaryDir;
    return [command](Stopwatch& stopwatch) {
        stopwatch.Add(StartUp(command, QFile::encodeName(s_pSettings->path())));
    };
}

Question& AskAgainst(const std::string& name, const Command& window)
{
    return Ask("S2 start to the first frame, by " + name)
        .Ours(StartOf({SKETCHER}))
        .Limit(StartOf(window))
        .WithoutInstructions()
        .Rounds(21);
}

}

void AskQuestions()
{
    Question& question = AskAgainst("a window with one line of text", {PLAIN_WINDOW});
    // Offscreen there is no window system that the window of the limit would have to be told of.
    if (QGuiApplication::platformName() == QLatin1String("xcb"))
        question.TimeAtMost(1.25);
    AskAgainst("one that does without OpenGL, too", {PLAIN_WINDOW, "raster"});
}

#include "Options.h"
#include "Session.h"

#include "HostUi/Console.h"
#include "HostUi/QtVersions.h"
#include "HostUi/TerminationRequests.h"
#include "HostUi/WindowSystem.h"

#include <QApplication>
#include <QSysInfo>

#include <algorithm>
#include <iostream>
#include <optional>
#include <string>

namespace
{

constexpr int ExitUnusableOptions = 2;

/// Arguments for the toolkit ("-platform offscreen") must be removed by QApplication.
bool HasToolkitArguments(int argc, char** argv)
{
    return std::any_of(argv + 1, argv + argc, [](const std::string& argument) {
        return argument.size() > 2 && argument[0] == '-' && argument[1] != '-';
    });
}

/// Handles a run that needs no display and returns its exit code; nothing if the program must go
/// on.
std::optional<int> Answer(const Options& options)
{
    if (!options.error.isEmpty())
    {
        std::cerr << "sketcher: " << options.error.toStdString() << std::endl;
        return ExitUnusableOptions;
    }
    if (options.task == Options::Task::ShowHelp)
        std::cout << options.help.toStdString() << std::flush;
    else if (options.task == Options::Task::ShowVersion)
        std::cout << "sketcher " SKETCHER_VERSION << std::endl;
    else
        return std::nullopt;
    return 0;
}

/// Messages about the toolkit's own housekeeping that no user can act on: it creates a folder for
/// the session's sockets if none is set; it queries the window below the cursor, frame by frame,
/// while the window manager removes one of the frames; it shows a window again that a busy window
/// manager has mapped only after it was hidden; and neither an offscreen display nor Wayland nor
/// Wine supports everything that windows request.
bool IsHousekeeping(const QString& message)
{
    return message.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")) ||
           message.startsWith(QLatin1String("This plugin does not support")) ||
           message.startsWith(QLatin1String("Wayland does not support")) ||
           message.startsWith(QLatin1String("EnableNonClientDpiScaling() failed")) ||
           message.contains(QLatin1String("setNetWmStateOnUnmappedWindow() called on mapped")) ||
           (message.startsWith(QLatin1String("QXcbConnection: XCB error: 3 (BadWindow)")) &&
            message.contains(QLatin1String("(TranslateCoords)")));
}

void PassMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!IsHousekeeping(message))
        std::cerr << qFormatLogMessage(type, context, message).toStdString() << std::endl;
}

/// Lets an export do without a display if there is none; it shows no window.
void DoWithoutDisplay(const Options& options)
{
    const auto isSet = [](const char* pName) { return !qEnvironmentVariableIsEmpty(pName); };
    const bool isWindows = QSysInfo::kernelType() == QLatin1String("winnt");
    if (!isWindows && !options.exportFile.isEmpty() && !isSet("DISPLAY") &&
        !isSet("WAYLAND_DISPLAY") && !isSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

/// Answers before there is a display, if the arguments allow it.
std::optional<int> AnswerEarly(int argc, char** argv)
{
    if (HasToolkitArguments(argc, argv))
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    const Options options = ParseOptions(QCoreApplication::arguments());
    DoWithoutDisplay(options);
    return Answer(options);
}

}

int main(int argc, char** argv)
{
    vesk::WriteToParentConsole();
    vesk::SurviveFailedWrites();
    QCoreApplication::setApplicationName(QStringLiteral("sketcher"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SKETCHER_VERSION));
    // By this name a desktop finds the icon of the windows.
    QGuiApplication::setDesktopFileName(QStringLiteral("org.vesk.Sketcher"));
    vesk::ScaleWithScreens();
    // Otherwise the first window loads OpenGL, in case it will show some: a third of the start.
    QCoreApplication::setAttribute(Qt::AA_ForceRasterWidgets);
    qInstallMessageHandler(&PassMessage);
    if (const std::optional<int> code = AnswerEarly(argc, argv))
        return *code;

    vesk::ChooseWindowSystem();
    const QApplication application(argc, argv);
    const Options options = ParseOptions(QCoreApplication::arguments());
    if (const std::optional<int> code = Answer(options))
        return *code;
    Session session(options);
    return session.Run();
}

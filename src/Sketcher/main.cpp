#include "Options.h"
#include "Session.h"

#include <QApplication>

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>

namespace
{

constexpr int ExitUnusableOptions = 2;

/// Help and version are asked for where there may be no display.
bool NeedsDisplay(int argc, char** argv)
{
    return std::none_of(argv, argv + argc, [](const std::string& argument) {
        return argument == "--help" || argument == "-h" || argument == "--version" ||
               argument == "-v";
    });
}

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("sketcher"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SKETCHER_VERSION));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    if (!NeedsDisplay(argc, argv))
        return std::make_unique<QCoreApplication>(argc, argv);
    return std::make_unique<QApplication>(argc, argv);
}

}

int main(int argc, char** argv)
{
    const std::unique_ptr<QCoreApplication> pApplication = MakeApplication(argc, argv);
    const Options options = ParseOptions(QCoreApplication::arguments());
    if (!options.error.isEmpty())
    {
        std::cerr << "sketcher: " << options.error.toStdString() << std::endl;
        return ExitUnusableOptions;
    }
    if (options.task == Options::Task::ShowHelp)
    {
        std::cout << options.help.toStdString();
        return 0;
    }
    if (options.task == Options::Task::ShowVersion)
    {
        std::cout << "sketcher " SKETCHER_VERSION << std::endl;
        return 0;
    }
    Session session(options);
    return session.Run();
}

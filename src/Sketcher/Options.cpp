#include "Options.h"

#include "Output/DrawingExport.h"
#include "Output/NamedDxfUnit.h"
#include "WarningRaiser.h"

#include <QCommandLineParser>
#include <QFileInfo>

#include <filesystem>
#include <iterator>
#include <system_error>
#include <utility>

namespace
{

struct FileOption
{
    const char* name;
    const char* value;
    const char* help;
    QString Options::*member;
    bool isRead;
};

constexpr FileOption FileOptions[] = {
    {"journal", "FILE", "record the session in FILE, replacing it unless it is also read",
     &Options::journal, false},
    {"replay", "FILE", "replay the journal FILE without a window, then exit", &Options::replay,
     true},
    {"open", "JOURNAL", "replay a journal in the window, then continue drawing", &Options::open,
     true},
    {"model", "FILE", "write the drawing to FILE as JSON at exit", &Options::model, false},
    {"ui-tree", "FILE", "keep FILE describing what is on screen, as JSON", &Options::uiTree, false},
    {"log", "FILE", "log warnings to FILE", &Options::log, false},
    {"screenshot", "FILE.png", "save a picture of the window at exit", &Options::screenshot, false},
    {"export", "FILE",
     "write the drawing that was read to FILE (.svg, .pdf, .png or .dxf), without "
     "a window, then exit",
     &Options::exportFile, false},
};

bool CanBeWritten(const QString& path)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    return file.exists() ? file.isFile() && file.isWritable()
                         : folder.isDir() && folder.isWritable();
}

QString CheckFile(const FileOption& option, const QString& path)
{
    if (option.isRead && !(QFileInfo(path).isFile() && QFileInfo(path).isReadable()))
        return QStringLiteral("cannot read %1").arg(path);
    if (!option.isRead && !CanBeWritten(path))
        return QStringLiteral("cannot write %1").arg(path);
    return {};
}

/// A journal that is read may be continued; no other file may serve two options.
bool MayBeOne(const FileOption& first, const FileOption& second)
{
    const auto isJournal = [](const FileOption& option) {
        return option.isRead || option.member == &Options::journal;
    };
    return isJournal(first) && isJournal(second);
}

/// An export needs a drawing, and a format.
QString CheckExport(const Options& options)
{
    if (options.exportFile.isEmpty())
        return {};
    if (ExportFormatOf(options.exportFile) == nullptr)
        return QStringLiteral("cannot export %1: the suffix is no known format")
            .arg(options.exportFile);
    return options.GetSource().isEmpty() && options.document.isEmpty()
               ? QStringLiteral("--export needs a drawing to read")
               : QString();
}

/// An export needs no window, so what is to be opened is only read.
void TurnIntoReplay(Options& options)
{
    if (!options.error.isEmpty() || options.exportFile.isEmpty() ||
        options.task != Options::Task::Draw)
        return;
    options.replay = std::exchange(options.open, QString());
    options.task = Options::Task::Replay;
}

/// The argument that is no option; empty for none.
QString TakeDocument(const QStringList& arguments, QString& error)
{
    if (arguments.size() > 1)
        error = QStringLiteral("unexpected argument %1").arg(arguments[1]);
    else if (arguments.size() == 1 &&
             !(QFileInfo(arguments[0]).isFile() && QFileInfo(arguments[0]).isReadable()))
        error = QStringLiteral("cannot read %1").arg(arguments[0]);
    return arguments.value(0);
}

QString CheckNames(const Options& options)
{
    for (const FileOption& first : FileOptions)
    {
        const QString& named = options.*first.member;
        if (IsSameFile(options.document, named))
            return QStringLiteral("%1 cannot be used for both the drawing and --%2")
                .arg(named, QString::fromLatin1(first.name));
        for (const FileOption* pSecond = &first + 1; pSecond != std::end(FileOptions); ++pSecond)
        {
            if (!MayBeOne(first, *pSecond) && IsSameFile(named, options.*pSecond->member))
                return QStringLiteral("%1 cannot be used for both --%2 and --%3")
                    .arg(named, QString::fromLatin1(first.name),
                         QString::fromLatin1(pSecond->name));
        }
    }
    return {};
}

}

bool IsSameFile(const QString& first, const QString& second)
{
    namespace fs = std::filesystem;
    if (first.isEmpty() || second.isEmpty())
        return false;
    const fs::path firstPath = fs::u8path(first.toStdString());
    const fs::path secondPath = fs::u8path(second.toStdString());
    std::error_code error;
    if (fs::equivalent(firstPath, secondPath, error))
        return true;
    const fs::path firstFull = fs::weakly_canonical(fs::absolute(firstPath, error), error);
    const fs::path secondFull = fs::weakly_canonical(fs::absolute(secondPath, error), error);
    return !firstFull.empty() && firstFull == secondFull;
}

bool IsAttended()
{
    return qgetenv("VESK_UNATTENDED") != "1";
}

Options ParseOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Draws exact shapes; every session can be replayed."));
    // That of the parser would come with one for the options of the toolkit.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("show this help"));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    for (const FileOption& option : FileOptions)
        parser.addOption(QCommandLineOption(QString::fromLatin1(option.name),
                                            QString::fromLatin1(option.help),
                                            QString::fromLatin1(option.value)));

    const QCommandLineOption raiseWarnings(
        QStringLiteral("raise-warnings"),
        QStringLiteral("for developers: raise debug warnings; KIND is one of ") +
            WarningRaiser::GetKinds().join(QStringLiteral(", ")),
        QStringLiteral("KIND"));
    parser.addOption(raiseWarnings);
    ReplayOptions::Declare(parser);
    const QCommandLineOption dxfUnit(
        QStringLiteral("dxf-unit"),
        QStringLiteral("the unit of a DXF file that does not name one: mm, cm, m, in or ft"),
        QStringLiteral("UNIT"));
    parser.addOption(dxfUnit);
    parser.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("the drawing (.vsk) to open, or DXF file to import"),
        QStringLiteral("[FILE]"));

    Options options;
    if (!parser.parse(arguments))
        options.error = parser.errorText();
    else if (parser.isSet(help))
        options.task = Options::Task::ShowHelp;
    else if (parser.isSet(version))
        options.task = Options::Task::ShowVersion;
    options.help = parser.helpText();
    if (options.error.isEmpty())
        options.document = TakeDocument(parser.positionalArguments(), options.error);

    for (const FileOption& option : FileOptions)
    {
        const QString name = QString::fromLatin1(option.name);
        options.*option.member = parser.value(name);
        if (options.error.isEmpty() && parser.isSet(name))
            options.error = CheckFile(option, options.*option.member);
    }
    if (options.error.isEmpty())
        options.error = CheckNames(options);
    if (options.error.isEmpty())
        options.repetition =
            ReplayOptions::Read(parser, IsSameFile(options.journal, options.replay), options.error);
    if (options.error.isEmpty())
        options.error = CheckExport(options);
    options.raiseWarnings = parser.value(raiseWarnings);
    if (options.error.isEmpty() && parser.isSet(raiseWarnings) &&
        !WarningRaiser::GetKinds().contains(options.raiseWarnings))
        options.error = QStringLiteral("unknown kind of warning %1").arg(options.raiseWarnings);
    if (options.task == Options::Task::Draw && parser.isSet(QStringLiteral("replay")))
        options.task = Options::Task::Replay;
    if (options.error.isEmpty() && !options.replay.isEmpty() && !options.open.isEmpty())
        options.error = QStringLiteral("--replay and --open cannot be used together");
    if (options.error.isEmpty() && !options.document.isEmpty() && !options.GetSource().isEmpty())
        options.error = QStringLiteral("a drawing file cannot be opened besides a journal");
    options.dxfUnit = parser.value(dxfUnit);
    if (options.error.isEmpty() && parser.isSet(dxfUnit) && !IsDxfUnit(options.dxfUnit))
        options.error = QStringLiteral("unknown unit %1").arg(options.dxfUnit);
    TurnIntoReplay(options);
    return options;
}

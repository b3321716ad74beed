#include "JournalTool.h"

#include "JournalReports.h"
#include "JournalTestText.h"

#include "Foundation/FileRewriting.h"
#include "Journal/JournalFormat.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cctype>
#include <optional>
#include <ostream>

using namespace vesk;

namespace
{

/// What the arguments ask for.
struct Request
{
    std::string path;
    std::string otherPath;
    std::string output;
    std::string testName = "Session";
    int last = 0;
};

/// Nothing, with a message, if the journal cannot be read.
std::optional<JournalText> Read(const std::string& path, std::ostream& err)
{
    JournalText journal;
    std::string error;
    if (JournalFormat::ReadLines(path, journal.lines, journal.torn, error))
        return journal;
    err << "vesk-journal: " << path << ": " << error << '\n';
    return std::nullopt;
}

int Show(const Request& request, std::ostream& out, std::ostream& err)
{
    const std::optional<JournalText> journal = Read(request.path, err);
    if (!journal.has_value())
        return JournalExit::Unusable;
    for (const JournalLine& line : journal->lines)
        out << Describe(line.record) << '\n';
    return JournalExit::Fine;
}

int Check(const Request& request, std::ostream& out, std::ostream& err)
{
    const std::optional<JournalText> journal = Read(request.path, err);
    if (!journal.has_value())
        return JournalExit::Unusable;
    const JournalSummary summary = Summarize(*journal);
    out << "version " << summary.version << ", " << summary.records << " records, " << summary.marks
        << " marks\n";
    for (const std::string& fault : summary.faults)
        out << fault << '\n';
    return summary.faults.empty() ? JournalExit::Fine : JournalExit::Different;
}

int Cut(const Request& request, std::ostream& out, std::ostream& err)
{
    const std::optional<JournalText> journal = Read(request.path, err);
    if (!journal.has_value())
        return JournalExit::Unusable;
    std::string text;
    for (const JournalLine& line : journal->lines)
    {
        if (line.record.number > request.last)
            break;
        text += line.text + '\n';
    }
    if (request.output.empty())
        out << text;
    else if (!RewriteFile(request.output, text))
    {
        err << "vesk-journal: " << request.output << " cannot be written\n";
        return JournalExit::Unusable;
    }
    return JournalExit::Fine;
}

int Diff(const Request& request, std::ostream& out, std::ostream& err)
{
    const std::optional<JournalText> first = Read(request.path, err);
    const std::optional<JournalText> second = Read(request.otherPath, err);
    if (!first.has_value() || !second.has_value())
        return JournalExit::Unusable;
    const std::optional<Parting> parting = FindParting(*first, *second);
    if (!parting.has_value())
        return JournalExit::Fine;
    out << "- " << parting->first << "\n+ " << parting->second << '\n';
    return JournalExit::Different;
}

int MakeTest(const Request& request, std::ostream& out, std::ostream& err)
{
    const std::optional<JournalText> journal = Read(request.path, err);
    if (!journal.has_value())
        return JournalExit::Unusable;
    const std::string text = MakeTestText(request.testName, request.path, *journal);
    if (text.empty())
        err << "vesk-journal: " << request.path << ": no mark to compare with\n";
    out << text;
    return text.empty() ? JournalExit::Unusable : JournalExit::Fine;
}

/// Why a text cannot be the name of a class; empty if it can.
std::string WhyNoName(const std::string& text)
{
    const auto isPart = [](unsigned char c) { return std::isalnum(c) != 0 || c == '_'; };
    const bool isName = !text.empty() && std::all_of(text.begin(), text.end(), isPart) &&
                        std::isdigit(static_cast<unsigned char>(text.front())) == 0;
    return isName ? std::string() : text + " is not the name of a class";
}

using Operation = int (*)(const Request&, std::ostream&, std::ostream&);

/// The program's subcommands; the chosen one is in `operation` after parsing.
void Declare(CLI::App& app, Request& request, Operation& operation)
{
    const auto add = [&](const char* name, const char* help, Operation chosen) {
        CLI::App* pCommand = app.add_subcommand(name, help);
        pCommand->add_option("journal", request.path, "the journal to read")->required();
        pCommand->callback([&operation, chosen] { operation = chosen; });
        return pCommand;
    };
    app.require_subcommand(1);
    add("show", "print each record in words", &Show);
    add("check", "say whether the journal is valid and complete", &Check);
    CLI::App* pCut = add("cut", "keep the records up to number N", &Cut);
    pCut->add_option("N", request.last, "the last record to keep")->required();
    pCut->add_option("--output", request.output, "write to this file, not to standard output");
    CLI::App* pDiff = add("diff", "print the first record at which two sessions part", &Diff);
    pDiff->add_option("other", request.otherPath, "the journal to compare with")->required();
    CLI::App* pTest = add("to-test", "print a scenario test that replays the journal", &MakeTest);
    pTest->add_option("--name", request.testName, "the test class is called <name>Test")
        ->check(CLI::Validator(&WhyNoName, "NAME"));
}

}

int RunJournalTool(std::vector<std::string> arguments, std::ostream& out, std::ostream& err)
{
    CLI::App app("Shows, checks, cuts and compares journals.", "vesk-journal");
    Request request;
    Operation operation = nullptr;
    Declare(app, request, operation);
    try
    {
        // The parser takes them from the end.
        std::reverse(arguments.begin(), arguments.end());
        app.parse(arguments);
    }
    catch (const CLI::ParseError& error)
    {
        const bool isHelp = error.get_exit_code() == 0;
        app.exit(error, out, err);
        return isHelp ? JournalExit::Fine : JournalExit::Unusable;
    }
    return operation(request, out, err);
}

// Runs the questions of a benchmark and writes what was measured; benchmarks/judge judges it.
//
//   PROGRAM --out FILE [--only REGEX]       times, allocations and bytes as JSON
//   PROGRAM --instructions [--only REGEX]   under callgrind: a dump for each side, named after it

#include "Question.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <valgrind/callgrind.h>

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <deque>
#include <fstream>
#include <regex>

namespace
{

constexpr int LeastRounds = 11;
constexpr int MostRounds = 101;

/// Short work is repeated until the rounds of its question took so long.
constexpr double EnoughMilliseconds = 1500;

std::deque<Question>& Questions()
{
    static std::deque<Question> s_questions;
    return s_questions;
}

/// Keeps what the last benchmark measured, and prints nothing.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs)
        {
            if (run.error_occurred)
                m_error = run.error_message;
            m_last = {run.real_accumulated_time * 1e3,
                      std::lround(run.counters.at("allocations").value),
                      std::lround(run.counters.at("bytes").value),
                      std::lround(run.counters.at("peak").value)};
        }
    }

    const Measurement& GetLast() const { return m_last; }

private:
    Measurement m_last;
    std::string m_error;
};

std::string Quoted(const std::string& text)
{
    static const std::regex s_special(R"([.^$|()\[\]{}*+?\\])");
    return std::regex_replace(text, s_special, R"(\$&)");
}

std::string PathOf(const Question& question, const std::string& side)
{
    return question.GetName() + '/' + side;
}

void Register(const Question& question)
{
    for (const auto& [name, side] : question.GetSides())
        benchmark::RegisterBenchmark(
            PathOf(question, name).c_str(),
            [side](benchmark::State& state) {
                for ([[maybe_unused]] const auto _ : state)
                {
                    Stopwatch stopwatch;
                    side(stopwatch);
                    state.SetIterationTime(stopwatch.Get().milliseconds / 1e3);
                    state.counters["allocations"] =
                        static_cast<double>(stopwatch.Get().allocations);
                    state.counters["bytes"] = static_cast<double>(stopwatch.Get().bytes);
                    state.counters["peak"] = static_cast<double>(stopwatch.Get().peak);
                }
            })
            ->Iterations(1)
            ->UseManualTime();
}

Measurement Run(const std::string& path)
{
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector,
                                      '^' + Quoted(path) + "/iterations:1/manual_time$");
    return collector.GetLast();
}

/// One round: each side once, beginning with another one each time.
nlohmann::ordered_json RunRound(const Question& question, int number)
{
    nlohmann::ordered_json round;
    const auto& sides = question.GetSides();
    for (std::size_t i = 0; i < sides.size(); ++i)
    {
        const std::string& side =
            sides[(i + static_cast<std::size_t>(number)) % sides.size()].first;
        const Measurement measured = Run(PathOf(question, side));
        round[side] = {{"milliseconds", measured.milliseconds},
                       {"allocations", measured.allocations},
                       {"bytes", measured.bytes},
                       {"peak", measured.peak}};
    }
    return round;
}

double MillisecondsOf(const nlohmann::ordered_json& round)
{
    double sum = 0;
    for (const auto& side : round)
        sum += side["milliseconds"].get<double>();
    return sum;
}

/// The first round fills caches and is not kept.
nlohmann::ordered_json RunRounds(const Question& question)
{
    nlohmann::ordered_json rounds = nlohmann::ordered_json::array();
    RunRound(question, 0);
    const int most = question.GetRounds().value_or(MostRounds);
    double sum = 0;
    for (int i = 0; i < std::min(most, LeastRounds) || (i < most && sum < EnoughMilliseconds); ++i)
    {
        rounds.push_back(RunRound(question, i));
        sum += MillisecondsOf(rounds.back());
    }
    return rounds;
}

nlohmann::ordered_json Measure(const Question& question)
{
    std::fprintf(stderr, "%s\n", question.GetName().c_str());
    return {{"name", question.GetName()},
            {"peerName", question.GetPeerName()},
            {"bars", question.GetBars()},
            {"countsInstructions", question.CountsInstructions()},
            {"rounds", RunRounds(question)}};
}

/// Each side twice, the second time counted: the first fills caches, as in the rounds.
void CountInstructions(const Question& question)
{
    if (!question.CountsInstructions())
        return;
    for (const auto& [name, side] : question.GetSides())
    {
        const std::string path = PathOf(question, name);
        Run(path);
        CALLGRIND_ZERO_STATS;
        Run(path);
        CALLGRIND_DUMP_STATS_AT(path.c_str());
    }
}

}

Question& Ask(std::string name)
{
    return Questions().emplace_back(std::move(name));
}

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{"out", "Where the measurements go.", "file"},
                       {"only", "Only the questions whose names match.", "regex"},
                       {"instructions", "Counts instructions, under callgrind."}});
    parser.process(application);
    AskQuestions();

    const std::regex only(parser.value("only").toStdString());
    nlohmann::ordered_json measured = nlohmann::ordered_json::array();
    for (const Question& question : Questions())
    {
        if (!std::regex_search(question.GetName(), only))
            continue;
        Register(question);
        if (parser.isSet("instructions"))
            CountInstructions(question);
        else
            measured.push_back(Measure(question));
    }
    std::ofstream file(parser.value("out").toStdString());
    file << measured.dump(1) << '\n';
    return parser.isSet("instructions") || file.flush() ? 0 : 2;
}

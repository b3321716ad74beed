#include "Comparison.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <fstream>
#include <limits>
#include <utility>

Comparison::Comparison(std::string name, std::vector<std::string> steps, double limit)
    : m_name(std::move(name)), m_limit(limit)
{
    constexpr double Endless = std::numeric_limits<double>::infinity();
    for (std::string& step : steps)
        m_steps.push_back({std::move(step), Endless, Endless});
}

void Comparison::AddRound(const std::vector<double>& ours, const std::vector<double>& reference)
{
    for (std::size_t i = 0; i < m_steps.size(); ++i)
    {
        m_steps[i].ours = std::min(m_steps[i].ours, ours[i]);
        m_steps[i].reference = std::min(m_steps[i].reference, reference[i]);
    }
    ++m_rounds;
}

int Comparison::Report(const std::string& path) const
{
    nlohmann::ordered_json table;
    table["name"] = m_name;
    table["rounds"] = m_rounds;
    table["limit"] = m_limit;
    bool isGood = true;
    std::printf("%s, best of %d rounds\n%-28s %10s %10s %7s\n", m_name.c_str(), m_rounds, "step",
                "ours/ms", "by hand/ms", "ratio");
    for (const ComparedStep& step : m_steps)
    {
        std::printf("%-28s %10.3f %10.3f %7.2f\n", step.name.c_str(), step.ours, step.reference,
                    step.Ratio());
        table["steps"].push_back({{"step", step.name},
                                  {"oursMs", step.ours},
                                  {"byHandMs", step.reference},
                                  {"ratio", step.Ratio()}});
        isGood = isGood && step.Ratio() <= m_limit;
    }
    std::printf("%s: the limit is %.2f\n", isGood ? "good" : "TOO SLOW", m_limit);
    std::ofstream file(path);
    file << table.dump(1) << '\n';
    if (!file.flush())
        return 2;
    return isGood ? 0 : 1;
}

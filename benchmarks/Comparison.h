#pragma once

#include <string>
#include <vector>

/// What one step took on both sides, in milliseconds, the best of all rounds.
struct ComparedStep
{
    std::string name;
    double ours;
    double reference;

    double Ratio() const { return ours / reference; }
};

/// Compares two sides that do the same steps in one process, so that a noisy machine moves both.
class Comparison
{
public:
    /// `limit` is the greatest ratio that is still good.
    Comparison(std::string name, std::vector<std::string> steps, double limit);

    /// Adds a round: how long each step took on each side, in milliseconds.
    void AddRound(const std::vector<double>& ours, const std::vector<double>& reference);

    /// Prints the table and writes it as JSON. The program's exit code: 0 when no ratio is beyond
    /// the limit, 1 otherwise, 2 when the file cannot be written.
    int Report(const std::string& path) const;

private:
    std::string m_name;
    std::vector<ComparedStep> m_steps;
    double m_limit;
    int m_rounds = 0;
};

#pragma once

#include <string>
#include <vector>

/// The time of one step on both sides, in milliseconds; the best of all rounds.
struct ComparedStep
{
    std::string name;
    double ours;
    double reference;

    double Ratio() const { return ours / reference; }
};

/// Compares two sides that carry out the same steps in one process, so that noise of the machine
/// affects both.
class Comparison
{
public:
    /// `limit` is the largest acceptable ratio.
    Comparison(std::string name, std::vector<std::string> steps, double limit);

    /// Adds a round: how long each step took on each side, in milliseconds.
    void AddRound(const std::vector<double>& ours, const std::vector<double>& reference);

    /// Prints the table and writes it as JSON. Returns the exit code of the program: 0 if no ratio
    /// exceeds the limit, 1 otherwise, 2 if the file cannot be written.
    int Report(const std::string& path) const;

private:
    std::string m_name;
    std::vector<ComparedStep> m_steps;
    double m_limit;
    int m_rounds = 0;
};

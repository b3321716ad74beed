#pragma once

#include "Stopwatch.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// One way to do the work: prepares, hands the work itself to the stopwatch, cleans up. Leaves
/// everything as it was, because it is called once a round.
using Side = std::function<void(Stopwatch&)>;

/// The same for a given number of things.
using SizedSide = std::function<void(Stopwatch&, long size)>;

/// Work that this project does, beside the same work written by hand (the limit) and done by what
/// people would take instead (the peer), and how it may compare with them. Each side must reach the
/// same visible end state.
class Question
{
public:
    /// `name` starts with the number in the table: "P4 caption of a label".
    explicit Question(std::string name) : m_name(std::move(name)) {}

    Question& Ours(Side side);
    Question& Limit(Side side);

    /// `name` is what people would take: "KActionCollection".
    Question& Peer(std::string name, Side side);

    /// The largest acceptable ratio of ours to the limit: of time, instructions, kept bytes.
    Question& TimeAtMost(double ratio);
    Question& InstructionsAtMost(double ratio);
    Question& BytesAtMost(double ratio);

    /// Ours must be at least so many times faster than the peer.
    Question& AheadOfPeer(double times);

    Question& AllocationsAtMost(long count);

    /// The heap memory that may be kept by the work, where it has no limit written by hand.
    Question& KeptBytesAtMost(long bytes);

    /// The most heap memory that may be in use at any moment of the work, beyond what was before.
    Question& PeakBytesAtMost(long bytes);

    /// For work that has no limit written by hand: a goal in milliseconds of CPU time.
    Question& MillisecondsAtMost(double milliseconds);

    /// The exponent with which the time may grow from the first to the last size.
    Question& GrowsAtMost(double exponent, std::vector<long> sizes, SizedSide side);

    /// Measures no instructions: the work takes too long under callgrind, or waits for others.
    Question& WithoutInstructions();

    /// At most so many rounds, for work that takes long.
    Question& Rounds(int count);

    const std::string& GetName() const { return m_name; }
    const std::vector<std::pair<std::string, Side>>& GetSides() const { return m_sides; }
    const std::map<std::string, double>& GetBars() const { return m_bars; }
    const std::string& GetPeerName() const { return m_peerName; }
    bool CountsInstructions() const { return m_countsInstructions; }
    std::optional<int> GetRounds() const { return m_rounds; }

private:
    std::string m_name;
    std::string m_peerName;
    std::vector<std::pair<std::string, Side>> m_sides;
    std::map<std::string, double> m_bars;
    std::optional<int> m_rounds;
    bool m_countsInstructions = true;
};

/// Adds a question to those of this program. The reference stays valid.
Question& Ask(std::string name);

/// Asks all questions of this program: each benchmark defines it, main calls it once. There is a
/// QApplication by then.
void AskQuestions();

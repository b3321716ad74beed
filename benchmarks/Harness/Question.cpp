#include "Question.h"

Question& Question::Ours(Side side)
{
    m_sides.emplace_back("ours", std::move(side));
    return *this;
}

Question& Question::Limit(Side side)
{
    m_sides.emplace_back("limit", std::move(side));
    return *this;
}

Question& Question::Peer(std::string name, Side side)
{
    m_peerName = std::move(name);
    m_sides.emplace_back("peer", std::move(side));
    return *this;
}

Question& Question::TimeAtMost(double ratio)
{
    m_bars["time"] = ratio;
    return *this;
}

Question& Question::InstructionsAtMost(double ratio)
{
    m_bars["instructions"] = ratio;
    return *this;
}

Question& Question::BytesAtMost(double ratio)
{
    m_bars["bytes"] = ratio;
    return *this;
}

Question& Question::AheadOfPeer(double times)
{
    m_bars["peer"] = times;
    return *this;
}

Question& Question::AllocationsAtMost(long count)
{
    m_bars["allocations"] = static_cast<double>(count);
    return *this;
}

Question& Question::KeptBytesAtMost(long bytes)
{
    m_bars["kept bytes"] = static_cast<double>(bytes);
    return *this;
}

Question& Question::PeakBytesAtMost(long bytes)
{
    m_bars["peak bytes"] = static_cast<double>(bytes);
    return *this;
}

Question& Question::MillisecondsAtMost(double milliseconds)
{
    m_bars["milliseconds"] = milliseconds;
    return *this;
}

Question& Question::GrowsAtMost(double exponent, std::vector<long> sizes, SizedSide side)
{
    m_bars["growth"] = exponent;
    for (const long size : sizes)
        m_sides.emplace_back(std::to_string(size),
                             [side, size](Stopwatch& stopwatch) { side(stopwatch, size); });
    return *this;
}

Question& Question::WithoutInstructions()
{
    m_countsInstructions = false;
    return *this;
}

Question& Question::Rounds(int count)
{
    m_rounds = count;
    return *this;
}

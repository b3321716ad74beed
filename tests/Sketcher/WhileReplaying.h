#pragma once

#include "Replay/JournalReplayer.h"

#include <cstddef>
#include <functional>
#include <utility>

/// Replays an empty journal, and does something meanwhile.
class WhileReplaying final : public vesk::IJournalReplayTarget
{
public:
    explicit WhileReplaying(std::function<void()> act) : m_act(std::move(act))
    {
        vesk::JournalReplayer::Replay({{0, vesk::HeaderRecord()}}, *this);
    }

    bool OnProgress(std::size_t, std::size_t) override
    {
        m_act();
        return true;
    }

    bool ReplaySelection(const vesk::SelectionRecord&) override { return true; }
    bool ReplayProperty(const vesk::PropertyRecord&) override { return true; }
    bool VerifyUndo(const vesk::UndoRecord&) override { return true; }

private:
    const std::function<void()> m_act;
};

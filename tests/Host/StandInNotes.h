#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace vesk
{

/// The part of a stand-in that logs what happens to it, as "Line.click". The log outlives it.
class StandInNotes
{
protected:
    StandInNotes(std::string name, std::vector<std::string>& log)
        : m_name(std::move(name)), m_log(log)
    {}

    void Note(const std::string& what) { m_log.push_back(m_name + "." + what); }

    void Do(const std::string& what, const std::function<void()>& act)
    {
        Note(what);
        if (!act)
            return;
        act();
        // Only logged if the stand-in still exists.
        Note(what + " done");
    }

private:
    std::string m_name;
    std::vector<std::string>& m_log;
};

}

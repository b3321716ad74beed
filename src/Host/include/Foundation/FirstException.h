#pragma once

#include <exception>

namespace vesk
{

/// Lets work that may throw be done to its end: the first exception is kept, and thrown afterwards.
class FirstException
{
public:
    template <class Call>
    void Catch(Call&& call)
    {
        try
        {
            call();
        }
        catch (...)
        {
            if (m_pThrown == nullptr)
                m_pThrown = std::current_exception();
        }
    }

    bool IsKept() const { return m_pThrown != nullptr; }

    /// Throws what was kept; nothing happens when nothing was.
    void Throw() const
    {
        if (m_pThrown != nullptr)
            std::rethrow_exception(m_pThrown);
    }

private:
    std::exception_ptr m_pThrown;
};

}

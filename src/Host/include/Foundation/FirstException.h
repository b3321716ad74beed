#pragma once

#include <exception>

namespace vesk
{

/// Lets a sequence of calls that may throw run to its end: the first exception is kept, and
/// rethrown afterwards.
class FirstException
{
public:
    /// Calls `call()`. What it throws is kept if nothing was before, and lost otherwise.
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

    /// True if a call has thrown.
    bool IsKept() const { return m_pThrown != nullptr; }

    /// Rethrows the kept exception; does nothing if there is none.
    void Throw() const
    {
        if (m_pThrown != nullptr)
            std::rethrow_exception(m_pThrown);
    }

private:
    std::exception_ptr m_pThrown;
};

}

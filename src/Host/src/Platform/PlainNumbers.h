#pragma once

#include <memory>

namespace vesk
{

/// While it lives, the C library reads and writes this thread's numbers with a point, whatever the
/// locale has in its place.
class PlainNumbersScope final
{
public:
    PlainNumbersScope();
    ~PlainNumbersScope();
    PlainNumbersScope(const PlainNumbersScope&) = delete;
    PlainNumbersScope& operator=(const PlainNumbersScope&) = delete;

private:
    struct Before;

    std::unique_ptr<Before> m_pBefore;
};

}

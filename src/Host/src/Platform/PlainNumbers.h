#pragma once

#include <memory>

namespace vesk
{

/// While it exists, the C library reads and writes numbers in this thread with a decimal point,
/// whatever the locale uses.
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

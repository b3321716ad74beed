#pragma once

#include "Foundation/HostExport.h"

#include <memory>

namespace vesk
{

class PlainNumbersScope;

/// While it exists, the C library reads and writes numbers in this thread with a decimal point,
/// whatever the locale uses. Parsers of JSON need it.
class VESK_HOST_API LocaleFreeNumbers final
{
public:
    LocaleFreeNumbers();
    ~LocaleFreeNumbers();
    LocaleFreeNumbers(const LocaleFreeNumbers&) = delete;
    LocaleFreeNumbers& operator=(const LocaleFreeNumbers&) = delete;

private:
    std::unique_ptr<PlainNumbersScope> m_pScope;
};

}

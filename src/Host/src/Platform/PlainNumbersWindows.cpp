#include "Platform/PlainNumbers.h"

#include <clocale>
#include <locale.h>
#include <string>

namespace vesk
{

struct PlainNumbersScope::Before
{
    int threading;
    std::string locale;
};

PlainNumbersScope::PlainNumbersScope()
{
    const int threading = _configthreadlocale(_ENABLE_PER_THREAD_LOCALE);
    m_pBefore = std::make_unique<Before>(Before{threading, std::setlocale(LC_NUMERIC, nullptr)});
    std::setlocale(LC_NUMERIC, "C");
}

PlainNumbersScope::~PlainNumbersScope()
{
    std::setlocale(LC_NUMERIC, m_pBefore->locale.c_str());
    _configthreadlocale(m_pBefore->threading);
}

}

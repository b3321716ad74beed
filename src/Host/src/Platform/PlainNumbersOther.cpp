#include "Platform/PlainNumbers.h"

#include <clocale>
#include <locale.h>

namespace vesk
{

struct PlainNumbersScope::Before
{
    locale_t plain;
    locale_t before;
};

PlainNumbersScope::PlainNumbersScope()
{
    const locale_t plain = newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)));
    m_pBefore = std::make_unique<Before>(Before{plain, uselocale(plain)});
}

PlainNumbersScope::~PlainNumbersScope()
{
    uselocale(m_pBefore->before);
    freelocale(m_pBefore->plain);
}

}

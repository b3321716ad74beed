#include "Foundation/DecimalPointScope.h"

#include "Platform/PlainNumbers.h"

namespace vesk
{

DecimalPointScope::DecimalPointScope() : m_pScope(std::make_unique<PlainNumbersScope>()) {}

DecimalPointScope::~DecimalPointScope() = default;

}

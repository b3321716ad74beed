#include "Foundation/LocaleFreeNumbers.h"

#include "Platform/PlainNumbers.h"

namespace vesk
{

LocaleFreeNumbers::LocaleFreeNumbers() : m_pScope(std::make_unique<PlainNumbersScope>()) {}

LocaleFreeNumbers::~LocaleFreeNumbers() = default;

}

#pragma once

#include "Support/TestValues.h"

#include <nlohmann/json.hpp>

namespace QTest
{

template <>
inline char* toString(const nlohmann::json& value)
{
    return vesk::test::ToShown(QString::fromStdString(value.dump()));
}

}

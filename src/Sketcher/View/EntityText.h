#pragma once

#include <QString>

struct Entity;

/// The kind, number and main dimensions of an entity, in the display unit, with numbers as the
/// default locale writes them: "直线 #3：长度 50.000 mm，角度 30.00°".
QString DescribeEntity(const Entity& entity);

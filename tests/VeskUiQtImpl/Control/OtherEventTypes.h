#pragma once

#include "Support/TestValues.h"

#include <initializer_list>

namespace vesk::test
{

/// A row for each of the types of change.
inline void AddEventTypes(std::initializer_list<int> types)
{
    QTest::addColumn<int>("type");
    for (const int type : types)
        QTest::addRow("%d", type) << type;
}

/// A row for each type of change other than a property change.
inline void AddOtherEventTypes()
{
    AddEventTypes({-1, 0, 1, 2, 3, 4, 5, 7, 8});
}

/// A row for each type of change that is neither an item change nor a property change.
inline void AddUnknownEventTypes()
{
    AddEventTypes({-1, 4, 5, 7, 8});
}

}

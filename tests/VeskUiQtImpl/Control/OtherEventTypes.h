#pragma once

#include <QtTest>

namespace vesk::test
{

/// A row for each type of change that is no change of a property.
inline void AddOtherEventTypes()
{
    QTest::addColumn<int>("type");
    QTest::newRow("add") << 0;
    QTest::newRow("insert") << 1;
    QTest::newRow("delete") << 2;
    QTest::newRow("clear") << 3;
    QTest::newRow("4") << 4;
    QTest::newRow("5") << 5;
    QTest::newRow("7") << 7;
    QTest::newRow("-1") << -1;
}

}

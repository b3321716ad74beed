#pragma once

#include "Foundation/OwnerPtr.h"
#include "Support/ChangeByUserFilter.h"
#include "Support/TestValues.h"

#include <utility>

namespace vesk::test
{

/// A row for a host that notifies all handlers of user changes, and one for a host that does not.
inline void AddEchoModes()
{
    QTest::addColumn<bool>("isEchoing");
    QTest::newRow("echoing definition") << true;
    QTest::newRow("silent definition") << false;
}

/// A definition that raises its event for user changes, or does not.
template <class Definition, class... Args>
OwnerPtr<Definition> MakeDefinition(bool isEchoing, Args&&... args)
{
    if (isEchoing)
        return MakeOwner<Definition>(std::forward<Args>(args)...);
    return MakeOwner<Silent<Definition>>(std::forward<Args>(args)...);
}

}

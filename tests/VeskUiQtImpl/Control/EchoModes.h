#pragma once

#include "Foundation/OwnerPtr.h"
#include "Support/ChangeByUserFilter.h"
#include "Support/TestValues.h"

#include <utility>

namespace vesk::test
{

/// A row for the host that tells everybody what the user does, and one for the host that does not.
inline void AddEchoModes()
{
    QTest::addColumn<bool>("isEchoing");
    QTest::newRow("echoing definition") << true;
    QTest::newRow("silent definition") << false;
}

/// A definition that tells what the user does, or keeps it to itself.
template <class Definition, class... Args>
OwnerPtr<Definition> MakeDefinition(bool isEchoing, Args&&... args)
{
    if (isEchoing)
        return MakeOwner<Definition>(std::forward<Args>(args)...);
    return MakeOwner<Silent<Definition>>(std::forward<Args>(args)...);
}

}

#include "Support/Platform/UserFolders.h"

namespace vesk::test
{

/// Windows looks its folders up in the registry, where scripts/windows makes them depend on this
/// variable.
UserFolders UserFolders::Below(const QString& folder)
{
    const QString data = folder + QStringLiteral("/data");
    return {data, data, {{"LOCALAPPDATA", data}}};
}

}

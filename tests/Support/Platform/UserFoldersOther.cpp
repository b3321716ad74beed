#include "Support/Platform/UserFolders.h"

namespace vesk::test
{

UserFolders UserFolders::Below(const QString& folder)
{
    const QString configuration = folder + QStringLiteral("/config");
    const QString data = folder + QStringLiteral("/data");
    return {configuration, data, {{"XDG_CONFIG_HOME", configuration}, {"XDG_DATA_HOME", data}}};
}

}

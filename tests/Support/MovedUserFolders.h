#pragma once

#include "Support/Platform/UserFolders.h"
#include "Support/ScopedVariable.h"
#include "Support/TestValues.h"

#include <QDir>
#include <QStandardPaths>

#include <list>

namespace vesk::test
{

/// For the lifetime of this object neither this process nor those that it starts use the user's
/// own files, but the folders below another one.
class MovedUserFolders final
{
public:
    explicit MovedUserFolders(const QString& folder)
    {
        const UserFolders folders = UserFolders::Below(folder);
        for (const auto& [pName, value] : folders.variables)
            m_variables.emplace_back(pName, value);
        const QString used =
            QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
        if (QDir(used) != QDir(folders.configuration))
            QTest::qFail("the user's folders cannot be moved", __FILE__, __LINE__);
    }

private:
    std::list<ScopedVariable> m_variables;
};

}

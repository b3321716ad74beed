#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace vesk::test
{

/// Folders for a user's files that are not those of the user who runs the tests.
struct UserFolders
{
    QString configuration; ///< Contains the folders of settings of all programs.
    QString data;          ///< The same for their data.

    /// Names and values of the environment variables that make a program use these folders.
    std::vector<std::pair<const char*, QString>> variables;

    static UserFolders Below(const QString& folder);
};

}

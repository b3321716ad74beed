#pragma once

#include <QString>

namespace vesk::test
{

/// Creates a symbolic link to a file or folder, which need not exist, and fails the test if it
/// cannot.
///
/// Returns false, and fails nothing, if this user may not create links: Windows asks for a
/// privilege.
[[nodiscard]] bool MakeLink(const QString& target, const QString& path);

/// Why a test is skipped if MakeLink() returns false.
constexpr char NoLinks[] = "this user may not create symbolic links";

}

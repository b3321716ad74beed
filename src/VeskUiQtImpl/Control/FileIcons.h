#pragma once

#include <QIcon>

#include <string>

namespace vesk
{

/// The icons of files and resources. Controls that show the same one share it, so that it is read
/// and kept once.
class FileIcons
{
public:
    /// The icon that QIcon(path) would give now; the same as last time, by its cacheKey, unless it
    /// has changed. Null if `path` is empty.
    ///
    /// A file counts as unchanged while its time and size are, and is looked at once in ten
    /// milliseconds; one that does not exist gives another icon each time. Some thousand icons are
    /// kept, while the application exists.
    static QIcon Get(const std::wstring& path);

    /// True if Get(path) would give this icon. Allocates nothing for a file.
    static bool IsCurrent(const QIcon& icon, const std::wstring& path);
};

}

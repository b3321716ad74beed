#pragma once

#include "Foundation/HostExport.h"

#include <string>
#include <string_view>

namespace vesk
{

/// Replaces the content of the file at `path` (UTF-8), or creates the file.
///
/// The new content is on disk before the old content is removed: at any moment, whatever happens to
/// the disk or the process, one of the two is there in full. A link remains a link, and the file
/// keeps its permissions. If the file cannot be written, returns false and leaves it unchanged.
VESK_HOST_API bool RewriteFile(const std::string& path, std::string_view content);

}

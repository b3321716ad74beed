#pragma once

#include "Foundation/HostExport.h"

#include <string>
#include <string_view>

namespace vesk
{

/// Replaces the content of the file at `path` (UTF-8), or makes the file.
///
/// The new content is on the disk before the old one goes: at any moment, and whatever happens to
/// disk or process, one of the two stands there as a whole. A link stays one, and the file keeps
/// its permissions. False, and the file is as it was, when it cannot be written.
VESK_HOST_API bool RewriteFile(const std::string& path, std::string_view content);

}

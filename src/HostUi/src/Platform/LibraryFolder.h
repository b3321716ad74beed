#pragma once

#include <QString>

namespace vesk
{

/// The folder of the library that contains this function; empty if it cannot be determined.
QString FindLibraryFolder();

}

#include "Platform/LibraryFolder.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace vesk
{

QString FindLibraryFolder()
{
    Dl_info library{};
    if (dladdr(reinterpret_cast<const void*>(&FindLibraryFolder), &library) == 0)
        return {};
    return QFileInfo(QFile::decodeName(library.dli_fname)).absolutePath();
}

}

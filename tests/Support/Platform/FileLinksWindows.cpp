#include "Support/Platform/FileLinks.h"

#include <QDir>
#include <QFileInfo>

#include <windows.h>

namespace vesk::test
{
namespace
{

std::wstring NativePath(const QString& path)
{
    return QDir::toNativeSeparators(path).toStdWString();
}

}

bool MakeLink(const QString& target, const QString& path)
{
    // The developer mode of Windows allows it without a privilege.
    constexpr DWORD Unprivileged = 2;
    const DWORD flags = Unprivileged | (QFileInfo(target).isDir() ? 1 : 0);
    // Wine says that it has created one and creates none.
    return CreateSymbolicLinkW(NativePath(path).c_str(), NativePath(target).c_str(), flags) != 0 &&
           QFileInfo(path).isSymLink();
}

}

#include "Support/Platform/SpecialFiles.h"

namespace vesk::test
{

QString EndlessDevice()
{
    return QStringLiteral("/dev/zero");
}

/// The memory of this process, which has nothing at its first address.
UnreadableFile::UnreadableFile(const QString&) : m_path(QStringLiteral("/proc/self/mem")) {}

}

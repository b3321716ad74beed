#include "Support/Platform/SpecialFiles.h"

#include <QDir>

#include <windows.h>

namespace vesk::test
{

QString EndlessDevice()
{
    return QStringLiteral("//./CON");
}

/// Kept open without being shared.
UnreadableFile::UnreadableFile(const QString& folder)
    : m_path(folder + QStringLiteral("/unreadable")),
      m_pLock(CreateFileW(QDir::toNativeSeparators(m_path).toStdWString().c_str(), GENERIC_WRITE, 0,
                          nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr),
              &CloseHandle)
{}

}

#include "HostUi/ControlLibrary.h"

#include "HostUi/UiApplication.h"
#include "Platform/LibraryFolder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace vesk
{
namespace
{

/// A file without version, which a program brings itself or the build has made.
QString BroughtFile()
{
    return QCoreApplication::applicationDirPath() +
           QStringLiteral("/../" VESK_LIBRARY_FOLDER "/" VESK_CONTROL_LIBRARY);
}

/// The file of this version, which is installed with this library.
QString InstalledFile()
{
    return FindLibraryFolder() + QStringLiteral("/" VESK_CONTROL_LIBRARY_OF_VERSION);
}

}

ControlLibrary::ControlLibrary()
    : m_library(QFileInfo::exists(BroughtFile()) ? BroughtFile() : InstalledFile())
{
    m_library.load();
}

ControlLibrary::~ControlLibrary()
{
    if (!m_library.isLoaded())
        return;
    // Their deleters are code in the library.
    UiApplication::DiscardPostedEvents();
    m_library.unload();
}

bool ControlLibrary::IsLoaded() const
{
    return m_library.isLoaded();
}

QString ControlLibrary::GetError() const
{
    return m_library.isLoaded() ? QString() : m_library.errorString();
}

}

#include "HostUi/ControlLibrary.h"

#include "HostUi/UiApplication.h"
#include "Platform/LibraryFolder.h"

#include <QCoreApplication>

namespace vesk
{

ControlLibrary::ControlLibrary()
    : m_library(QCoreApplication::applicationDirPath() +
                QStringLiteral("/../" VESK_LIBRARY_FOLDER "/VeskUiQtImpl"))
{
    // A program that is not installed beside the library uses the one of the package that it links.
    if (!m_library.load())
    {
        m_library.setFileName(FindLibraryFolder() + QStringLiteral("/VeskUiQtImpl"));
        m_library.load();
    }
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

#include "Platform/XConnection.h"

#include <QGuiApplication>

// Qt 5 hands the connection out in a library of its own, Qt 6 in a class that Qt 5 lacks.
#if QT_VERSION_MAJOR == 5
#include <QX11Info>
#endif

namespace vesk
{

xcb_connection_t* GetXConnection()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb"))
        return nullptr;
#if QT_VERSION_MAJOR == 5
    return QX11Info::connection();
#else
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>()->connection();
#endif
}

}

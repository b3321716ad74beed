#include "HostUi/WindowSystem.h"

#include <QByteArray>
#include <QtGlobal>

namespace vesk
{

void ChooseWindowSystem()
{
    const bool isFree = qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
    const bool isWayland = !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
    const bool hasServer = !qEnvironmentVariableIsEmpty("DISPLAY");
    if (isFree && isWayland && hasServer)
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

}

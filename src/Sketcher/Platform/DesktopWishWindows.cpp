#include "Platform/DesktopWish.h"

#include <QSettings>

DesktopWish::DesktopWish()
{
    // The palette that the toolkit has from the system tells of high contrast, not of dark colours.
    const QSettings personal(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                            "CurrentVersion\\Themes\\Personalize"),
                             QSettings::NativeFormat);
    SetDark(personal.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0);
}

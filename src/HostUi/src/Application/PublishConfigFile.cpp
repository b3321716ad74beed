#include "HostUi/PublishConfigFile.h"

#include "Foundation/IPublishConfig.h"
#include "HostUi/QtText.h"

#include <QFileInfo>
#include <QSettings>

namespace vesk
{

bool LoadPublishConfig(const QString& path)
{
    if (!QFileInfo(path).isReadable())
        return false;
    const QSettings file(path, QSettings::IniFormat);
    for (const QString& name : file.allKeys())
    {
        const QString value = file.value(name).toString().toLower();
        if (value == QLatin1String("true") || value == QLatin1String("false"))
            IPublishConfig::SetConfigRecord(ToWide(name), value == QLatin1String("true"));
    }
    return true;
}

}

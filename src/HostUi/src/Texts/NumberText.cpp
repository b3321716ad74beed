#include "HostUi/NumberText.h"

#include <QLocale>

namespace vesk
{

QString ToLocalText(double value, int decimals)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', decimals);
}

}

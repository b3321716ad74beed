#include "Caption.h"

namespace Qtitan
{

QString plainCaption(const QString& caption)
{
    QString plain;
    plain.reserve(caption.size());
    for (int i = 0; i < caption.size(); ++i)
    {
        if (caption[i] == QLatin1Char('&') && ++i == caption.size())
            break;
        plain += caption[i];
    }
    return plain;
}

QChar mnemonicOf(const QString& caption)
{
    for (int i = 0; i + 1 < caption.size(); ++i)
    {
        if (caption[i] != QLatin1Char('&'))
            continue;
        if (caption[++i] != QLatin1Char('&'))
            return caption[i].toUpper();
    }
    return QChar();
}

} // namespace Qtitan

#pragma once

#include <QChar>
#include <QString>

namespace Qtitan
{

/// The caption as displayed: a single '&' is dropped, a double one becomes one.
QString plainCaption(const QString& caption);

/// The character after the first single '&', in upper case; null if there is none.
QChar mnemonicOf(const QString& caption);

} // namespace Qtitan

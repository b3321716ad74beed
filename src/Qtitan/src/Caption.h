#pragma once

#include <QChar>
#include <QString>

namespace Qtitan
{

/// The caption as a reader sees it: a single '&' is dropped, a double one becomes one.
QString plainCaption(const QString& caption);

/// The character behind the first single '&', in upper case; null when there is none.
QChar mnemonicOf(const QString& caption);

} // namespace Qtitan

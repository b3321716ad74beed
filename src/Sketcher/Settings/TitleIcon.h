#pragma once

#include <QIcon>
#include <QStyle>

/// The icon of a button in the title of a pane, in the text colour of the option's palette, or of
/// the program's if there is no option; null for any other icon.
QIcon MakeTitleIcon(QStyle::StandardPixmap standard, const QStyleOption* pOption);

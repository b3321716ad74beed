#pragma once

#include <QIcon>
#include <QStyle>

/// The icon of a button in the title of a pane, in the text colour of the program's palette; null
/// for any other icon. Not that of the pane's, which Qt 6 sets only later than the style.
QIcon MakeTitleIcon(QStyle::StandardPixmap standard);

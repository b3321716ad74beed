#pragma once

#include <QString>

class QWidget;

namespace Qtitan
{

/// The style sheet that gives the buttons placed below a widget their states, from that widget's
/// palette and font. Fonts and text colours stay the buttons' own, and other widgets untouched.
QString ribbonStyleSheet(const QWidget& widget);

} // namespace Qtitan

#pragma once

#include <QSize>

class QWidget;

namespace Qtitan
{

/// Lengths of the ribbon in logical pixels. What holds text is derived from the widget's font.
namespace RibbonMetrics
{

constexpr int LargeIcon = 32;
constexpr int SmallIcon = 16;
constexpr int LargeButtonWidth = 52;
constexpr int RowsInColumn = 3;
constexpr int RowSpacing = 2;
constexpr int ItemSpacing = 2;
constexpr int GroupMargin = 6;
constexpr int ArrowWidth = 18;

int rowHeight(const QWidget& widget);
int contentHeight(const QWidget& widget);
int titleHeight(const QWidget& widget);
int tabHeight(const QWidget& widget);

} // namespace RibbonMetrics

/// Whether a placed widget takes room in its place: it lives there and nobody has hidden it.
bool takesRoom(const QWidget* pWidget, const QWidget* pPlace);

} // namespace Qtitan

#pragma once

#include <QSize>

class QWidget;

namespace Qtitan
{

/// Lengths of the ribbon in logical pixels. Those that hold text depend on the widget's font.
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

/// Whether a widget occupies space in `pPlace`: it is its child and not explicitly hidden.
bool takesRoom(const QWidget* pWidget, const QWidget* pPlace);

} // namespace Qtitan

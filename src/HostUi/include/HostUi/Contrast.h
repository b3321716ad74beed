#pragma once

#include "HostUi/HostUiExport.h"

#include <QColor>

class QPalette;

namespace vesk
{

/// The contrast of two colours as WCAG 2 defines it: from 1, which is none, to 21.
VESK_HOST_UI_API double ContrastOf(const QColor& a, const QColor& b);

/// True for the palette of a desktop or program in high contrast: everything has the same
/// background, black or white or nearly so.
VESK_HOST_UI_API bool IsHighContrast(const QPalette& palette);

/// A colour as it can be told from the palette's Base: itself if it has a contrast of 4.5, in high
/// contrast of 7; otherwise lightened or darkened until it has.
VESK_HOST_UI_API QColor Legible(const QColor& ink, const QPalette& palette);

}

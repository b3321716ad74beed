// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>

struct SketchContent;

/// Writes a drawing as DXF (AC1015), in millimetres, with all its layers. Numbers read back to
/// exactly the drawing's doubles.
///
/// A rectangle becomes a closed polyline and a full circle a CIRCLE, also if it is an arc. Arcs run
/// counter-clockwise. Entities outside the drawing plane are projected onto it.
void WriteDxf(const SketchContent& content, std::ostream& stream);

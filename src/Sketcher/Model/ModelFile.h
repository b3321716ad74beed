#pragma once

#include <QString>

class Sketch;

/// Writes the drawing as JSON: `{"entities":[{"type":"line","start":[x,y,z],"end":[x,y,z],
/// "style":"solid","colour":"default","width":"0.25","layer":0}],"layers":[{"id":0,"name":"0",
/// "colour":"default","visible":true,"locked":false}]}`.
///
/// Instead of start and end, a "circle" has "centre", "radius" and "normal"; an "arc" has these and
/// "start" and "end", counter-clockwise about the normal; a "rectangle" has "corners", four points.
/// Numbers read back to exactly the drawing's doubles. Returns false if the file cannot be written.
bool WriteModelFile(const Sketch& sketch, const QString& path);

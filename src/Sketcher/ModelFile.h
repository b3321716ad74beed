#pragma once

#include <QString>

class Sketch;

/// Writes the drawing as JSON: `{"entities":[{"type":"line","start":[x,y,z],"end":[x,y,z],
/// "style":"solid","colour":"default"}]}`.
/// Numbers read back to the very doubles of the drawing. False when the file cannot be written.
bool WriteModelFile(const Sketch& sketch, const QString& path);

#pragma once

#include "Model/SketchContent.h"

#include <string>

/// Each appends the fields of a thing in files to a text, as the members of a JSON object without
/// its braces. Numbers read back to exactly the drawing's doubles.

/// All but the id: "type", the numbers of the shape, and the fields of its pen.
void AppendFields(std::string& text, const Entity& entity);

/// "style", "colour", "width" and "layer".
void AppendFields(std::string& text, const Pen& pen);

/// "id", "name", "colour", "visible" and "locked".
void AppendFields(std::string& text, const Layer& layer);

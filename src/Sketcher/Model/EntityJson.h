#pragma once

#include "Model/SketchContent.h"

#include <nlohmann/json.hpp>

/// The fields of an entity in files, except for its id: "type", the numbers of the shape, and those
/// of its pen. Numbers read back to exactly the drawing's doubles.
nlohmann::ordered_json ToJson(const Entity& entity);

/// "style", "colour", "width" and "layer".
nlohmann::ordered_json ToJson(const Pen& pen);

/// "id", "name", "colour", "visible" and "locked".
nlohmann::ordered_json ToJson(const Layer& layer);

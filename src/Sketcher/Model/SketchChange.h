#pragma once

#include "Model/Digest.h"
#include "Model/SketchContent.h"

#include <map>
#include <optional>
#include <string>

/// What differs between a drawing and the drawing after a step: the new state of each entity and
/// layer that changes, nothing for one that disappears.
struct SketchChange
{
    std::map<int, std::optional<Entity>> entities;
    std::map<int, std::optional<Layer>> layers;
    std::optional<std::wstring> name;

    /// What the change adds to the digest of the drawing; nothing until that was computed.
    std::optional<Digest> difference;
};

/// What a change adds to the digest of a drawing. Costs more than anything else that is done with
/// the entities named.
Digest DifferenceOf(const SketchContent& content, const SketchChange& change);

/// True if all that is in the drawing stays as it is, its name apart, and new entities come last.
bool IsAddition(const SketchContent& content, const SketchChange& change);

/// True if no entity that is in the drawing disappears or gets another shape.
bool KeepsShapes(const SketchContent& content, const SketchChange& change);

/// Applies a change to a drawing and its digest, and turns it into the change that takes it back.
/// Computes the difference of the digests if that is not known. The cost is that of the entities
/// named; entities that appear or disappear before others cost a move of these.
void Exchange(SketchContent& content, Digest& digest, SketchChange& change);

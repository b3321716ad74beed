#pragma once

#include "Model/SketchChange.h"

#include <vector>

/// What the insertion of a drawing depends on in the drawing into which it is inserted.
struct InsertionPlace
{
    std::vector<Layer> layers;
    int lastId = 0;
    int lastLayerId = 0;

    bool operator==(const InsertionPlace& other) const
    {
        return layers == other.layers && lastId == other.lastId && lastLayerId == other.lastLayerId;
    }
};

/// The insertion of a drawing, worked out: nothing is left to do for each entity but to put it
/// there.
struct SketchInsertion
{
    InsertionPlace place;
    SketchChange change; ///< Without entities if the insertion is impossible.
};

/// Works out how the entities of a drawing are inserted at a place, with ids of their own and the
/// layers of the same names; missing ones are added. It is impossible if there are no entities, the
/// content is not valid, or too few ids are free. May be called in any thread.
SketchInsertion MakeInsertion(const SketchContent& content, InsertionPlace place);

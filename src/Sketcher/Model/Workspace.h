#pragma once

#include "Model/PropertyEditor.h"
#include "Model/Selection.h"
#include "Model/Sketch.h"
#include "Model/Snapper.h"

/// What the user works on and with: everything that commands and panels share.
struct Workspace
{
    Sketch sketch;
    Selection selection{sketch};
    Snapper snapper{sketch};
    PropertyEditor properties{sketch, selection};

    /// Whether directions given by the cursor are held to multiples of 15 degrees.
    bool isDirectionHeld = false;
};

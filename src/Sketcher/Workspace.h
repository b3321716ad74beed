#pragma once

#include "PropertyEditor.h"
#include "Selection.h"
#include "Sketch.h"
#include "Snapper.h"

/// What the user works on, and with: everything that commands and panels share.
struct Workspace
{
    Sketch sketch;
    Selection selection{sketch};
    Snapper snapper{sketch};
    PropertyEditor properties{sketch, selection};
};

#pragma once

#include "HostCore.h"
#include "HostUi/DimensionInputController.h"
#include "HostUi/UiApplication.h"

#include <QWidget>

namespace vesk::test
{

/// A host with its application, the input of dimensions and an empty window that is not yet shown.
struct UiHost
{
    HostCore core;
    UiApplication application;
    DimensionInputController input;
    QWidget window;
};

}

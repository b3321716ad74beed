#pragma once

// Headers that most tests need, precompiled once for all programs.

#include "Support/TestValues.h"

#include <Eigen/Geometry>
#include <QtWidgets>

#include <functional>
#include <map>
#include <string>
#include <vector>

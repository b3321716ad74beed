#pragma once

// Headers that nearly every widget test needs, precompiled once for its program.

#include "Support/TestValues.h"

#include <QtWidgets>

// The ribbon is tested without geometry.
#if __has_include(<Eigen/Core>)
#include <Eigen/Core>
#endif

#include <functional>
#include <map>
#include <string>
#include <vector>

#pragma once

// Headers that nearly every test of the host needs, precompiled once for its program.

#include "Support/TestValues.h"

#include <Eigen/Core>

#include <functional>
#include <map>
#include <string>
#include <vector>

#pragma once

// What nearly every test of the host reads, compiled once for its program.

#include "Support/TestValues.h"

#include <Eigen/Core>

#include <functional>
#include <map>
#include <string>
#include <vector>

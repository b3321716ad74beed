// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

/// Limits the memory that this process can have, or can add to what it has; beyond it, allocating
/// fails. Returns false if the system cannot do that.
bool LimitMemory(std::size_t megabytes);

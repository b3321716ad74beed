// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

/// From now on the standard input and output carry bytes as they are: no line end is changed, and
/// no character ends the input. To be called before they are used.
void MakeStandardStreamsExact();

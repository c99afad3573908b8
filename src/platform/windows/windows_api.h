// SPDX-License-Identifier: GPL-3.0-or-later
// The system's header, without the parts that collide with C++.
#pragma once

#ifndef NOMINMAX
#define NOMINMAX  // no macros `min` and `max`
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>

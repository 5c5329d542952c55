#pragma once

/// Includes the system's header without rarely used parts and without the macros `min` and `max`.
/// No other file includes it directly.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

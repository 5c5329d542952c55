#pragma once

/// The one way to the system's header: lean, and without the macros that fight the library's
/// `min` and `max`.
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#pragma once

// The JSON reader as this tool takes it: everything from here, so that its settings are the same
// in every file.

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

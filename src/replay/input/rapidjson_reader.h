#pragma once

// All files include RapidJSON through this header, so that its settings are the same everywhere.

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

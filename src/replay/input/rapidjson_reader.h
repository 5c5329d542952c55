#pragma once

// All files include RapidJSON through this header, so that its settings are the same everywhere.

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <new>

namespace quillmark::replay {

/// Memory for RapidJSON, which uses what its allocator answers without a check. This one throws
/// `std::bad_alloc`. The names are RapidJSON's.
class JsonMemory {
public:
    static constexpr bool kNeedFree = true;

    void* Malloc(std::size_t size) { return size == 0 ? nullptr : ::operator new(size); }
    void* Realloc(void* memory, std::size_t size, std::size_t newSize) {
        void* const moved = Malloc(newSize);
        if (moved != nullptr && memory != nullptr) {
            std::memcpy(moved, memory, std::min(size, newSize));
        }
        Free(memory);
        return moved;
    }
    static void Free(void* memory) noexcept { ::operator delete(memory); }

    friend bool operator==(const JsonMemory& /*a*/, const JsonMemory& /*b*/) noexcept {
        return true;
    }
};

using JsonPool = rapidjson::MemoryPoolAllocator<JsonMemory>;
using JsonReader = rapidjson::GenericReader<rapidjson::UTF8<>, rapidjson::UTF8<>, JsonMemory>;
using JsonDocument = rapidjson::GenericDocument<rapidjson::UTF8<>, JsonPool, JsonMemory>;
using JsonValue = rapidjson::GenericValue<rapidjson::UTF8<>, JsonPool>;

}  // namespace quillmark::replay

#include "platform/out_of_memory.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string_view>

#include "foundation/orx_exception.h"

namespace quillmark {

void reportOutOfMemory(const Trace& trace, const char* what) noexcept {
    OrxException::logCaught();
    std::array<char, 120> line{};
    auto* end = line.begin();
    for (const std::string_view part :
         {std::string_view("ERR Out of memory: "), std::string_view(what).substr(0, 90),
          std::string_view("\n")}) {
        end = std::copy(part.begin(), part.end(), end);
    }
    try {
        if (trace.isTrace(Trace::errors)) {
            trace.write(Trace::errors, {line.data(), static_cast<std::size_t>(end - line.begin())});
        }
    } catch (...) {
        // There is no memory to open the log. The exception log was told.
    }
}

}  // namespace quillmark

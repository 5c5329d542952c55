#pragma once

#include <cstdint>

namespace quillmark {

/// The codes of `insertField`. A field with any other code is empty.
enum class FieldKind : std::int16_t { date = 1, time = 2, fileName = 3, pageNumber = 4 };

}  // namespace quillmark

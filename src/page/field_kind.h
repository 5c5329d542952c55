#pragma once

#include <cstdint>

namespace quillmark {

/// The codes of `insertField`. Any other code is an empty field.
enum class FieldKind : std::int16_t { date = 1, time = 2, fileName = 3, pageNumber = 4 };

}  // namespace quillmark

#include "platform/line_end.h"

namespace quillmark {

std::string_view systemLineEnd() noexcept {
    return "\r\n";
}

}  // namespace quillmark

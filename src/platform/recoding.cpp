#include "platform/recoding.h"

namespace quillmark {

void Recoding::commit() noexcept {
    for (auto& [text, recoded] : texts_) {
        std::swap(*text, recoded);
    }
    texts_.clear();
}

}  // namespace quillmark

#include "component/services/callback_text.h"

namespace quillmark {

void CollectedTexts::put(void* context, const DochtmlText* text) noexcept {
    auto& collected = *static_cast<CollectedTexts*>(context);
    try {
        if (text != nullptr) {
            collected.texts_.emplace_back(viewOf(*text));
        }
    } catch (...) {
        collected.complete_ = false;
    }
}

}  // namespace quillmark

#include "component/services/lent_text.h"

#include "component/module/boundary.h"

namespace quillmark {

void CollectedTexts::put(void* context, const DochtmlText* text) noexcept {
    runOperation([&] {
        if (text != nullptr) {
            static_cast<CollectedTexts*>(context)->texts_.emplace_back(viewOf(*text));
        }
    });
}

}  // namespace quillmark

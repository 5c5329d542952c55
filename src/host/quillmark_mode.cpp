#include "host/quillmark_mode.h"

#include <atomic>

namespace quillmark {

namespace {

std::atomic<int> installedType{0};

}  // namespace

int CQuillmarkMode::GetSchemaType() noexcept {
    return installedType.load();
}

void CQuillmarkMode::SetSchemaType(int schemaType) noexcept {
    installedType.store(schemaType);
}

}  // namespace quillmark

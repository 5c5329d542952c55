#include "host/quillmark_mode.h"

#include "foundation/process_wide.h"

namespace quillmark {

namespace {

constinit ProcessWide<int> installedType;

}  // namespace

int CQuillmarkMode::GetSchemaType() noexcept {
    return installedType.get();
}

void CQuillmarkMode::SetSchemaType(int schemaType) noexcept {
    installedType.exchange(schemaType);
}

}  // namespace quillmark

#include "component/object/owned_variant.h"

namespace quillmark {

HRESULT convertVariant(VARIANT& target, const VARIANT& source, LCID locale, VARTYPE type) {
    // The system function takes a non-const source but only reads it.
    return VariantChangeTypeEx(&target, const_cast<VARIANT*>(&source), locale, 0, type);
}

}  // namespace quillmark

#pragma once

#include "dochtml/file_confinement.h"

namespace quillmark {

/// Confines the file access of this module as the host asks, or ends the confinement for null.
HRESULT setModuleConfinement(const DochtmlConfinement* confinement);

}  // namespace quillmark

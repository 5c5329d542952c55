#pragma once

#include <cstdlib>
#include <string>

#include "dochtml/client.h"

namespace quillmark::testing {

/// The component under test: the library of this build, or, when the environment names one, the
/// component registered by that name.
inline Component testedComponent() {
    const char* name = std::getenv("DOCHTML_TEST_COMPONENT");
    return name == nullptr ? Component::fromLibrary(DOCHTML_TEST_LIBRARY) : Component::byName(name);
}

}  // namespace quillmark::testing

#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// The pictures that the navigator shows beside a contents entry: file names in the icon archive.
struct EntryIcons {
    /// For the kind of the model element.
    OrxString gif;
    /// For its stereotype, or empty.
    OrxString stereoGif;
};

/// Handles that stand for no element, and for a collection of elements.
inline constexpr std::uint64_t noElementHandle = 0;
inline constexpr std::uint64_t collectionHandle = ~std::uint64_t{0};

/// The icons of the model element behind a handle of the host's. `CQuillmarkMode` tells which of
/// the two rule sets counts. A handle that the model does not know, and a failure of the
/// metamodel library, look like an element that has nothing: "__None.gif".
[[nodiscard]] EntryIcons entryIconsOf(std::uint64_t handle);

}  // namespace quillmark

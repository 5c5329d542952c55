#pragma once

#include <cstdint>

#include "foundation/orx_string.h"

namespace quillmark {

/// The pictures that the navigator shows beside an entry, as file names in the icon archive.
struct EntryIcons {
    /// For the kind of the model element.
    OrxString gif;
    /// For its stereotype, or empty.
    OrxString stereoGif;
};

/// The handles for no element and for a collection of elements.
inline constexpr std::uint64_t noElementHandle = 0;
inline constexpr std::uint64_t collectionHandle = ~std::uint64_t{0};

/// The icons of the model element with that handle. `CQuillmarkMode` selects one of the two rule
/// sets. "__None.gif" is the icon of a handle that the model does not know. A failure of the
/// metamodel library counts as an empty answer.
[[nodiscard]] EntryIcons entryIconsOf(std::uint64_t handle);

}  // namespace quillmark

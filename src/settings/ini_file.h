#pragma once

#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

/// Reads single values from ini files. On Windows this is the system's private-profile call.
///
/// Elsewhere a file name without a directory refers to the user's configuration directory, and the
/// file is read as `IniText` describes.
class IniFile {
public:
    /// The value of a key, or `fallback` if the file, the section or the key does not exist. At
    /// most `bufferSize - 1` bytes are returned.
    [[nodiscard]] static OrxString read(const OrxString& fileName, const OrxString& section,
                                        const OrxString& key, const OrxString& fallback,
                                        std::size_t bufferSize);
};

}  // namespace quillmark

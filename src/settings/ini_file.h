#pragma once

#include <cstddef>

#include "foundation/orx_string.h"

namespace quillmark {

/// Reads single values from ini files: the system's private-profile call where it has one.
///
/// Elsewhere a bare file name lies in the user's configuration directory; section and key are
/// matched in any case, blanks around both sides of "=" are trimmed, one pair of quotes around a
/// value is removed, lines beginning with ";" are passed over, the first section of a name counts.
class IniFile {
public:
    /// The value, cut to what a buffer of `bufferSize` bytes holds with its closing zero; the
    /// default when the file, the section or the key is not there.
    [[nodiscard]] static OrxString read(const OrxString& fileName, const OrxString& section,
                                        const OrxString& key, const OrxString& fallback,
                                        std::size_t bufferSize);
};

}  // namespace quillmark

#pragma once

#include <filesystem>
#include <optional>

#include "component/registration/class_key_store.h"

namespace quillmark {

/// The file that replaces the classes root of the registry: "quillmark/classes.ini" in the user's
/// data directory (`XDG_DATA_HOME`, or ".local/share" in the home directory).
///
///     [CLSID\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\InprocServer32]
///     @=/usr/lib/libdochtmlcom.so
///     ThreadingModel=Apartment
///
/// A section is a key, and "@" is its default value. In values "\\" is a backslash and "\n" a line
/// end. Lines that begin with ";" or "#" are comments.
[[nodiscard]] std::filesystem::path classFilePath();

/// The keys in the file; an empty tree when the file does not exist. Ignores malformed lines.
/// Returns nothing when the file exists but cannot be read, or has text but no section, so that no
/// caller mistakes it for an empty file and overwrites it.
[[nodiscard]] std::optional<KeyTree> readClassFile(const std::filesystem::path& file);
/// Replaces the file in one step and keeps its comments. Returns false on failure. The caller must
/// have locked the file before reading it (component/posix/class_file_lock.h).
[[nodiscard]] bool writeClassFile(const std::filesystem::path& file, const KeyTree& root);

/// The key with that path below `root`, or null.
[[nodiscard]] const KeyTree* findKey(const KeyTree& root, std::string_view path);
[[nodiscard]] KeyTree* findKey(KeyTree& root, std::string_view path);
/// The same, but creates missing keys.
KeyTree& makeKey(KeyTree& root, std::string_view path);

}  // namespace quillmark

#pragma once

#include <filesystem>
#include <optional>

#include "component/registration/class_key_store.h"

namespace quillmark {

/// The file that takes the place of the registry's classes root: "quillmark/classes.ini" in the
/// user's data directory (`XDG_DATA_HOME`, or ".local/share" in the home directory).
///
///     [CLSID\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\InprocServer32]
///     @=/usr/lib/libdochtmlcom.so
///     ThreadingModel=Apartment
///
/// Lines that begin with ";" or "#" are comments. A section is a key, "@" its default value. In values "\\" is a backslash and "\n" a line end.
[[nodiscard]] std::filesystem::path classFilePath();

/// What the file holds; an empty tree when there is none. Lines that are nothing are passed over.
/// Nothing when there is one that cannot be read: nobody may take that for an empty one and write
/// another in its place. The same goes for a file that has text, but no section.
[[nodiscard]] std::optional<KeyTree> readClassFile(const std::filesystem::path& file);
/// Puts a new file in the old one's place, in one step, and keeps the comments. False when that
/// failed. Hold the file's
/// lock since before the old one was read (component/posix/class_file_lock.h).
[[nodiscard]] bool writeClassFile(const std::filesystem::path& file, const KeyTree& root);

/// The key of that path below `root`, or null.
[[nodiscard]] const KeyTree* findKey(const KeyTree& root, std::string_view path);
[[nodiscard]] KeyTree* findKey(KeyTree& root, std::string_view path);
/// The same; keys that are missing are made.
KeyTree& makeKey(KeyTree& root, std::string_view path);

}  // namespace quillmark

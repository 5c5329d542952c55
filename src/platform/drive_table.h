#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Where drive letters lie on a system that has none: a name that begins with "X:" is looked for
/// under the directory given for X. The table is process-wide, empty unless set, and has no effect
/// on a system with drives of its own. It may be reached from several threads.
class DriveTable {
public:
    /// `directory` is a name of the system's own (UTF-8, "/"); an empty one removes the letter.
    static void set(char letter, const std::string& directory);
    [[nodiscard]] static std::optional<std::string> find(char letter);
    static void clear();

    /// The system's own name of what a drive that lies under `directory` has under `rest`, the
    /// part of a name behind "X:" (UTF-8, with "\" or "/"). The drive is a root, as it is on a
    /// system with drives: ".." is taken off with the component in front of it, whether that is
    /// there or not, and at the root it leads nowhere.
    [[nodiscard]] static std::string nameUnder(std::string directory, std::string_view rest);
};

/// A driver's name as the system calls take it (for tools that open files themselves). Empty, which
/// is no file's name, for one with a zero inside.
[[nodiscard]] std::string nativePath(const OrxString& name);
/// A name of the system's own (UTF-8) in the driver's form.
[[nodiscard]] OrxString driverPath(const std::string& native);

}  // namespace quillmark

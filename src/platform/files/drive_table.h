#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"

namespace quillmark {

/// Maps drive letters to directories on systems without drives: a name that starts with "X:" refers
/// to a file under the directory given for X.
///
/// The table belongs to the process and is empty at first. It has no effect on systems with drives
/// of their own. Any thread may use it.
///
///     DriveTable::set('C', "/srv/reports");
///     nativePath("C:\\out\\a.htm");   // "/srv/reports/out/a.htm"
class DriveTable {
public:
    /// Maps a letter of either case to `directory`, which is in the system's own form (UTF-8, "/").
    /// An empty directory removes the letter. Anything but a letter is ignored.
    static void set(char letter, const std::string& directory);
    /// The directory of a letter of either case, or nothing.
    [[nodiscard]] static std::optional<std::string> find(char letter);
    static void clear();

    /// The system's own name of a file on a drive that is mapped to `directory`. `rest` is the part
    /// of the driver's name after "X:" (UTF-8, with "\" or "/"). The drive is a root directory, as
    /// on a system with drives: ".." removes the component before it, whether that exists or not,
    /// and has no effect at the root.
    [[nodiscard]] static std::string nameUnder(std::string directory, std::string_view rest);
};

/// Converts a name from the driver's form to the one that system calls take, for tools that open
/// files themselves. A name with a zero byte becomes empty, which is not the name of any file.
[[nodiscard]] std::string nativePath(const OrxString& name);
/// Converts a name from the system's own form (UTF-8) to the driver's form.
[[nodiscard]] OrxString driverPath(const std::string& native);

}  // namespace quillmark

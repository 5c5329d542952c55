#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/files/file_system.h"

namespace quillmark {

/// What a confined file system refuses.
enum class RefusedAccess { read, write, start };

/// The files that a confined file system may use. Names are the system's own. A directory stands
/// for everything below it, another name for that file alone. Both are looked up once, when the
/// file system is made: a name that is missing then is a file.
struct Confinement {
    std::vector<std::string> writable;
    std::vector<std::string> readable;
    /// Hears of each access that is refused, once per name and kind. Files that do not exist are
    /// not read, so nothing is refused then.
    std::function<void(const std::string& name, RefusedAccess access)> refused;
};

/// Makes a file system that uses no other files than these. It writes below the writable names and
/// reads below the readable ones, and it can tell whether a file below either exists. It starts no
/// programs. Below a directory it follows no symbolic link, wherever that leads, not even one that
/// appears between a look-up and the use of a file. Null on systems that cannot do this.
[[nodiscard]] std::unique_ptr<FileSystem> makeConfinedFileSystem(Confinement confinement);

}  // namespace quillmark

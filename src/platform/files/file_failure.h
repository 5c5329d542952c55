#pragma once

#include <string>

namespace quillmark {

/// Why a file operation of this thread failed. The operations of `FileSystem` return only whether
/// they succeeded; the native one notes the system's reason here for whoever reports the failure.
///
///     FileFailure::forget();
///     if (!files.copyFile(source, target)) {
///         report(FileFailure::reason());   // "Permission denied", or empty
///     }
class FileFailure {
public:
    static void forget() noexcept;
    /// Notes the system's number of an error (`errno` or `GetLastError()`). Only the first one
    /// counts until `forget`, since those that follow are mostly its consequences.
    static void note(int systemError) noexcept;
    /// Notes that a name is that of a pipe, a device or a directory where a file is needed.
    static void noteNotRegular() noexcept;

    [[nodiscard]] static bool isNoted() noexcept;
    /// True if what was noted only says that there is no such file.
    [[nodiscard]] static bool isMissingFile() noexcept;
    /// The reason in the system's words, without a line end. Empty if none is noted.
    [[nodiscard]] static std::string reason();

    /// True for the error of a name that no file has.
    [[nodiscard]] static bool meansMissing(int systemError) noexcept;
};

}  // namespace quillmark

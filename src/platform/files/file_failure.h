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
    /// Notes that a confined file system refuses a file.
    static void noteRefused() noexcept;

    [[nodiscard]] static bool isNoted() noexcept;
    /// True if what was noted only says that there is no such file.
    [[nodiscard]] static bool isMissingFile() noexcept;
    /// The reason in the system's words, without a line end. Empty if none is noted.
    [[nodiscard]] static std::string reason();
    /// The reason after `noteRefused`. A host was told of the refusal itself.
    static constexpr const char* refusal = "Refused";
    /// Passes the system's number on to a caller outside of this module, in the system's own place
    /// for it (`errno` or `GetLastError()`). 0 if none is noted.
    static void passOn() noexcept;

    /// True for the error of a name that no file has.
    [[nodiscard]] static bool meansMissing(int systemError) noexcept;

private:
    static void setSystemError(int systemError) noexcept;
};

}  // namespace quillmark

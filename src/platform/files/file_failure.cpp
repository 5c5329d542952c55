#include "platform/files/file_failure.h"

#include <algorithm>
#include <system_error>

namespace quillmark {

namespace {

constexpr int nothing = 0;
constexpr int notRegular = -1;
constexpr int refused = -2;

thread_local int firstReason = nothing;

}  // namespace

void FileFailure::forget() noexcept {
    firstReason = nothing;
}

void FileFailure::note(int systemError) noexcept {
    if (firstReason == nothing) {
        firstReason = systemError;
    }
}

void FileFailure::noteNotRegular() noexcept {
    note(notRegular);
}

void FileFailure::noteRefused() noexcept {
    note(refused);
}

void FileFailure::passOn() noexcept {
    setSystemError(std::max(firstReason, nothing));
}

bool FileFailure::isNoted() noexcept {
    return firstReason != nothing;
}

bool FileFailure::isMissingFile() noexcept {
    return isNoted() && meansMissing(firstReason);
}

std::string FileFailure::reason() {
    if (firstReason == nothing) {
        return {};
    }
    if (firstReason == notRegular) {
        return "Not a regular file";
    }
    if (firstReason == refused) {
        return refusal;
    }
    std::string text = std::system_category().message(firstReason);
    text.erase(text.find_last_not_of(" \r\n.") + 1);
    return text;
}

}  // namespace quillmark

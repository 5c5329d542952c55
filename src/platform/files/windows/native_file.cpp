#include "platform/files/windows/native_file.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files/file_failure.h"

namespace quillmark {

namespace {

/// The largest number of bytes to move with one system call.
constexpr std::size_t portion = std::size_t{1} << 26U;

class NativeInputFile final : public InputFile {
public:
    explicit NativeInputFile(Handle file) noexcept : file_(std::move(file)) {}

    std::size_t read(std::span<char> buffer) override {
        const auto size = static_cast<DWORD>(std::min(buffer.size(), portion));
        DWORD taken = 0;
        if (ReadFile(file_.get(), buffer.data(), size, &taken, nullptr) != FALSE) {
            return taken;
        }
        // The end of a pipe is reported as an error.
        if (GetLastError() != ERROR_BROKEN_PIPE) {
            FileFailure::note(static_cast<int>(GetLastError()));
            failed_ = true;
        }
        return 0;
    }
    bool failed() const override { return failed_; }

private:
    Handle file_;
    bool failed_ = false;
};

class NativeOutputFile final : public OutputFile {
public:
    explicit NativeOutputFile(Handle file) noexcept : file_(std::move(file)) {}

    bool write(std::span<const std::string_view> pieces) override {
        if (pieces.size() == 1) {
            return writeAll(pieces.front());
        }
        // The system writes one buffer at a time, and a call costs more than joining the pieces.
        std::size_t size = 0;
        for (const std::string_view piece : pieces) {
            size += piece.size();
        }
        std::string joined;
        joined.reserve(size);
        for (const std::string_view piece : pieces) {
            joined.append(piece);
        }
        return writeAll(joined);
    }

    bool close() override { return file_.close(); }

private:
    [[nodiscard]] bool writeAll(std::string_view text) const noexcept {
        while (!text.empty()) {
            const auto size = static_cast<DWORD>(std::min(text.size(), portion));
            DWORD written = 0;
            if (WriteFile(file_.get(), text.data(), size, &written, nullptr) == FALSE ||
                written == 0) {
                return false;
            }
            text.remove_prefix(written);
        }
        return true;
    }

    Handle file_;
};

}  // namespace

std::unique_ptr<InputFile> makeInputFile(Handle file) {
    return file.isOpen() ? std::make_unique<NativeInputFile>(std::move(file)) : nullptr;
}

std::unique_ptr<OutputFile> makeOutputFile(Handle file) {
    return file.isOpen() ? std::make_unique<NativeOutputFile>(std::move(file)) : nullptr;
}

}  // namespace quillmark

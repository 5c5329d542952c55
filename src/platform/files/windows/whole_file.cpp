#include "platform/files/windows/whole_file.h"

#include <atomic>
#include <utility>

#include "platform/files/file_failure.h"
#include "platform/files/windows/handle.h"
#include "platform/files/windows/native_file.h"

namespace quillmark {

namespace {

bool noted(bool done) noexcept {
    if (!done) {
        FileFailure::note(static_cast<int>(GetLastError()));
    }
    return done;
}

Handle openOutput(const std::wstring& name, DWORD disposition) noexcept {
    constexpr DWORD shareWithEverybody = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    return Handle(CreateFileW(name.c_str(), GENERIC_WRITE, shareWithEverybody, nullptr, disposition,
                              FILE_ATTRIBUTE_NORMAL, nullptr));
}

/// A name in the directory of `target` that no other process or thread uses.
std::wstring temporaryNameBeside(const std::wstring& target) {
    static std::atomic<unsigned> counter{0};
    return target.substr(0, target.find_last_of(L"\\:") + 1) + L".dochtml" +
           std::to_wstring(GetCurrentProcessId()) + L'-' + std::to_wstring(counter++) + L".tmp";
}

/// Another file in its place would not be what this one is.
bool cannotBeReplaced(const std::wstring& name) noexcept {
    const DWORD attributes = GetFileAttributesW(name.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        return true;
    }
    constexpr DWORD noAccess = 0;
    const Handle file(CreateFileW(name.c_str(), noAccess, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    BY_HANDLE_FILE_INFORMATION information{};
    return !file.isOpen() || GetFileInformationByHandle(file.get(), &information) == FALSE ||
           information.nNumberOfLinks > 1;
}

/// Puts `temporary` in the place of `target`. If somebody holds that file open, its content is
/// overwritten instead.
bool replace(const std::wstring& temporary, const std::wstring& target) noexcept {
    if (ReplaceFileW(target.c_str(), temporary.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                     nullptr, nullptr) != FALSE) {
        return true;
    }
    const bool done = noted(CopyFileW(temporary.c_str(), target.c_str(), FALSE) != FALSE);
    DeleteFileW(temporary.c_str());
    return done;
}

/// Takes its name whole or not at all.
class WholeOutputFile final : public OutputFile {
public:
    /// `target` is empty for a file that is written under its own name.
    WholeOutputFile(Handle file, std::wstring written, std::wstring target)
        : file_(makeOutputFile(std::move(file))),
          written_(std::move(written)),
          target_(std::move(target)) {}
    ~WholeOutputFile() override { discard(); }
    WholeOutputFile(const WholeOutputFile&) = delete;
    WholeOutputFile& operator=(const WholeOutputFile&) = delete;

    bool write(std::span<const std::string_view> pieces) override {
        failed_ = !noted(file_->write(pieces)) || failed_;
        return !failed_;
    }

    bool close() override {
        if (!noted(file_->close()) || failed_) {
            discard();
            return false;
        }
        file_ = nullptr;
        return target_.empty() || replace(written_, target_);
    }

private:
    void discard() noexcept {
        if (std::exchange(file_, nullptr) != nullptr) {
            DeleteFileW(written_.c_str());
        }
    }

    std::unique_ptr<OutputFile> file_;
    std::wstring written_;
    std::wstring target_;
    bool failed_ = false;
};

std::unique_ptr<OutputFile> opened(Handle file, std::wstring written, std::wstring target) {
    return noted(file.isOpen()) ? std::make_unique<WholeOutputFile>(
                                      std::move(file), std::move(written), std::move(target))
                                : nullptr;
}

bool isReadOnly(const std::wstring& name) noexcept {
    const DWORD attributes = GetFileAttributesW(name.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
}

/// A copy of a read-only file is read-only as well. The next copy must be able to replace it.
void makeWritable(const std::wstring& name) noexcept {
    if (isReadOnly(name)) {
        const DWORD attributes = GetFileAttributesW(name.c_str());
        SetFileAttributesW(name.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
    }
}

bool copyTo(const std::wstring& source, const std::wstring& target) noexcept {
    if (noted(CopyFileW(source.c_str(), target.c_str(), FALSE) != FALSE)) {
        makeWritable(target);
        return true;
    }
    return false;
}

}  // namespace

std::unique_ptr<OutputFile> openWholeFile(const std::wstring& name) {
    Handle fresh = openOutput(name, CREATE_NEW);
    if (fresh.isOpen() || GetLastError() != ERROR_FILE_EXISTS) {
        return opened(std::move(fresh), name, {});
    }
    if (isReadOnly(name)) {
        FileFailure::note(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    if (!cannotBeReplaced(name)) {
        std::wstring temporary = temporaryNameBeside(name);
        Handle beside = openOutput(temporary, CREATE_NEW);
        if (beside.isOpen() || GetLastError() != ERROR_ACCESS_DENIED) {
            return opened(std::move(beside), std::move(temporary), name);
        }
    }
    return opened(openOutput(name, CREATE_ALWAYS), name, {});
}

bool copyWholeFile(const std::wstring& source, const std::wstring& target) {
    if (GetFileAttributesW(target.c_str()) == INVALID_FILE_ATTRIBUTES) {
        const bool done = copyTo(source, target);
        if (!done) {
            DeleteFileW(target.c_str());
        }
        return done;
    }
    if (isReadOnly(target) || cannotBeReplaced(target)) {
        return copyTo(source, target);
    }
    const std::wstring temporary = temporaryNameBeside(target);
    if (!copyTo(source, temporary)) {
        DeleteFileW(temporary.c_str());
        return false;
    }
    return replace(temporary, target);
}

}  // namespace quillmark

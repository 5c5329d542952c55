#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/drive_table.h"
#include "platform/file_system.h"
#include "platform/sys_file.h"
#include "platform/system_facts.h"

namespace quillmark {

/// A fresh directory on the disk, gone with all that is in it when the test ends.
class TempDir {
public:
    TempDir() {
        static std::atomic<int> counter{0};
        const std::string own = "dochtml-test-" + std::to_string(system_facts::processId()) + "-" +
                                std::to_string(counter++);
        path_ = SysFile::appendToDir(system_facts::temporaryDirectory(), own);
        remove();
        FileSystem::native().makeDirectories(path_);
    }
    ~TempDir() { remove(); }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    /// In the driver's form.
    [[nodiscard]] const OrxString& path() const noexcept { return path_; }
    [[nodiscard]] OrxString file(const OrxString& name) const {
        return SysFile::appendToDir(path_, name);
    }
    /// The same as the system has it.
    [[nodiscard]] std::string native() const { return nativePath(path_); }
    [[nodiscard]] std::string nativeFile(const OrxString& name) const {
        return nativePath(file(name));
    }

    void put(const OrxString& name, std::string_view bytes) const {
        std::ofstream stream(nativeFile(name), std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    /// The bytes of a file, or nothing when it is not there.
    [[nodiscard]] std::optional<std::string> content(const OrxString& name) const {
        std::ifstream stream(nativeFile(name), std::ios::binary);
        if (!stream) {
            return std::nullopt;
        }
        return std::string(std::istreambuf_iterator<char>(stream), {});
    }

private:
    void remove() const {
        std::error_code ignored;
        std::filesystem::remove_all(native(), ignored);
    }

    OrxString path_;
};

}  // namespace quillmark

#pragma once

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/files/drive_table.h"
#include "platform/files/file_system.h"
#include "platform/files/sys_file.h"
#include "platform/system_facts.h"

namespace quillmark {

/// A new directory on the disk. The destructor removes it with its content.
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

    /// The path in the driver's form.
    [[nodiscard]] const OrxString& path() const noexcept { return path_; }
    [[nodiscard]] OrxString file(const OrxString& name) const {
        return SysFile::appendToDir(path_, name);
    }
    /// The path in the system's own form.
    [[nodiscard]] std::string native() const { return nativePath(path_); }
    [[nodiscard]] std::string nativeFile(const OrxString& name) const {
        return nativePath(file(name));
    }

    void put(const OrxString& name, std::string_view bytes) const {
        std::ofstream stream(nativeFile(name), std::ios::binary | std::ios::trunc);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    /// The content of a file, or nothing if there is none.
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

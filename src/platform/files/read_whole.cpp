#include "platform/files/read_whole.h"

#include <array>
#include <cstddef>
#include <memory>
#include <utility>

#include "platform/files/file_system.h"

namespace quillmark {

std::optional<std::string> readWhole(const OrxString& fileName) {
    const std::unique_ptr<InputFile> file = FileSystem::current().openForReading(fileName);
    if (file == nullptr) {
        return std::nullopt;
    }
    std::string bytes;
    std::array<char, 4096> buffer{};
    while (const std::size_t taken = file->read(buffer)) {
        bytes.append(buffer.data(), taken);
    }
    return file->failed() ? std::nullopt : std::optional(std::move(bytes));
}

}  // namespace quillmark

#include "platform/files/drive_table.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <mutex>
#include <shared_mutex>

#include "foundation/ascii.h"
#include "foundation/module_lifetime.h"

namespace quillmark {

namespace {

constexpr std::size_t letterCount = 26;

struct Table {
    std::shared_mutex mutex;
    std::array<std::string, letterCount> directories;
    /// One bit per letter, so that a search in an empty table takes no lock.
    std::atomic<std::uint32_t> used{0};
};

Table& table() {
    static ModuleLifetime<Table> instance;
    return *instance;
}

std::optional<std::size_t> indexOf(char letter) noexcept {
    if (!ascii::isLetter(letter)) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(ascii::toUpper(letter) - 'A');
}

/// Resolves the components "." and ".." of a name that starts with "/".
std::string withoutDots(const std::string& name) {
    const std::u8string plain = std::filesystem::path(std::u8string(name.begin(), name.end()))
                                    .lexically_normal()
                                    .generic_u8string();
    return {plain.begin(), plain.end()};
}

}  // namespace

void DriveTable::set(char letter, const std::string& directory) {
    const std::optional<std::size_t> index = indexOf(letter);
    if (!index) {
        return;
    }
    const std::uint32_t bit = 1U << *index;
    const std::unique_lock lock(table().mutex);
    table().directories.at(*index) = directory;
    if (directory.empty()) {
        table().used.fetch_and(~bit);
    } else {
        table().used.fetch_or(bit);
    }
}

std::optional<std::string> DriveTable::find(char letter) {
    const std::optional<std::size_t> index = indexOf(letter);
    const std::uint32_t used = table().used.load(std::memory_order_acquire);
    if (!index || (used & (1U << *index)) == 0) {
        return std::nullopt;
    }
    const std::shared_lock lock(table().mutex);
    const std::string& directory = table().directories.at(*index);
    return directory.empty() ? std::nullopt : std::optional(directory);
}

void DriveTable::clear() {
    const std::unique_lock lock(table().mutex);
    table().directories.fill({});
    table().used.store(0);
}

std::string DriveTable::nameUnder(std::string directory, std::string_view rest) {
    if (rest.empty()) {
        return directory;
    }
    std::string name(rest);
    std::replace(name.begin(), name.end(), '\\', '/');
    if (name.front() != '/') {
        name.insert(0, "/");
    }
    if (name.find("..") != std::string::npos) {
        name = withoutDots(name);
    }
    if (directory.ends_with('/')) {
        directory.pop_back();
    }
    return directory + name;
}

}  // namespace quillmark

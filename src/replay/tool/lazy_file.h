#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

namespace quillmark::replay {

/// A file that is created, with its directories, by the first write.
class LazyFile {
public:
    explicit LazyFile(std::filesystem::path name) : name_(std::move(name)) {}

    /// False for the first write that fails, true for all others: a failure is reported once.
    [[nodiscard]] bool write(std::string_view text);

private:
    std::filesystem::path name_;
    std::ofstream file_;
    bool reported_ = false;
};

}  // namespace quillmark::replay

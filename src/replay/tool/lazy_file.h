#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

namespace quillmark::replay {

/// A file that is created, with its directories, by the first write.
class LazyFile {
public:
    explicit LazyFile(std::filesystem::path name) : name_(std::move(name)) {}

    /// False for the first write that fails, true for all others: a failure is reported once.
    [[nodiscard]] bool write(std::string_view text);

    /// Closes the file. False if that loses what was written.
    [[nodiscard]] bool close();
    /// Why the last call failed; empty if the system does not say.
    [[nodiscard]] std::string reason() const;

private:
    std::filesystem::path name_;
    std::ofstream file_;
    bool reported_ = false;
    int reason_ = 0;
};

}  // namespace quillmark::replay

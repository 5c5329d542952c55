#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "foundation/orx_string.h"
#include "replay/tool/option_files.h"

namespace quillmark::replay {

/// Shows file names of the driver as the system writes them.
class ShownNames {
public:
    /// Names below `start` are shown relative to it. `files` stays the caller's.
    ShownNames(const OptionFiles& files, std::filesystem::path start)
        : files_(files), start_(std::move(start)) {}

    /// The system's form of a name, in UTF-8.
    [[nodiscard]] std::string path(const OrxString& driverName) const;
    /// A message of the driver, in UTF-8: the file names in it are in the system's form, and the
    /// system's reason follows, if there is one.
    [[nodiscard]] std::string message(std::string_view driverText, std::string_view reason) const;

private:
    [[nodiscard]] std::string withNames(std::string_view driverText) const;

    const OptionFiles& files_;
    std::filesystem::path start_;
};

}  // namespace quillmark::replay

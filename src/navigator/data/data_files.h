#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// Writes the navigator's files into its directory. A file that cannot be written goes to the
/// exception log; the others are written all the same.
class DataFiles {
public:
    /// The trace gets the reason why a file could not be written.
    explicit DataFiles(OrxString directory, const Trace& trace = {})
        : directory_(std::move(directory)), trace_(trace) {}

    /// Writes `name`.js, which hands the JSON text over to the script.
    void write(std::string_view name, std::string_view json) const;
    /// The same with a number behind the name.
    void write(std::string_view kind, std::size_t number, std::string_view json) const;
    /// Writes a file as it is. False when that fails.
    bool writePlain(std::string_view name, std::span<const std::string_view> pieces) const;

    [[nodiscard]] const OrxString& directory() const noexcept { return directory_; }

private:
    OrxString directory_;
    Trace trace_;
};

}  // namespace quillmark

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quillmark::manual {

/// An entry of a data file: a line `@keyword value` and the lines below it, up to the next entry.
struct DataEntry {
    std::string keyword;
    std::string value;
    std::vector<std::string> lines;
    /// "file:line" of the entry, for messages.
    std::string place;
};

/// Reads a data file. Throws `std::runtime_error` when it cannot be read or begins with anything
/// but an entry. Blank lines at the end of an entry are dropped.
[[nodiscard]] std::vector<DataEntry> readDataFile(const std::filesystem::path& file);

/// The data files of a directory, in the order of their names.
[[nodiscard]] std::vector<DataEntry> readDataFiles(const std::filesystem::path& directory);

}  // namespace quillmark::manual

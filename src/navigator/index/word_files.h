#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "navigator/data/data_files.h"

namespace quillmark {

/// Writes the files of words, and "index", which has the first word of each.
class WordFiles {
public:
    /// A file ends before its text would be longer.
    static constexpr std::size_t largestText = 32768;

    explicit WordFiles(const DataFiles& files) noexcept : files_(files) {}

    /// Adds a word (in UTF-8) with the numbers of its entries and pages, both ascending. Words
    /// come in the order of their bytes.
    void add(std::string_view word, std::span<const std::uint32_t> entries,
             std::span<const std::uint32_t> pages);
    /// Writes the last file and "index". An index without words has an empty one.
    void finish();

private:
    [[nodiscard]] std::size_t sharedWithLast(std::u16string_view word) const noexcept;
    void startRecord(std::u16string_view word, std::size_t shared);
    void writeFile();

    const DataFiles& files_;
    std::size_t written_ = 0;
    std::string firstWords_;
    std::string text_;
    std::u16string last_;
    std::string record_;
    std::string lists_;
};

}  // namespace quillmark

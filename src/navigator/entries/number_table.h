#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "navigator/data/data_files.h"

namespace quillmark {

/// A table from numbers, counted from 1, to entries, in files of 1024.
class NumberTable {
public:
    static constexpr std::size_t numbersPerFile = 1024;
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    [[nodiscard]] bool has(std::uint32_t number) const noexcept {
        return number <= entries_.size() && entries_[number - 1] != none;
    }
    void set(std::uint32_t number, std::uint32_t entry);
    /// The highest number with an entry.
    [[nodiscard]] std::size_t size() const noexcept { return entries_.size(); }
    /// Writes `kind`0, `kind`1, ...
    void write(std::string_view kind, const DataFiles& files) const;

private:
    std::vector<std::uint32_t> entries_;
};

}  // namespace quillmark

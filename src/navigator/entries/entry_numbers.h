#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "contents/entries/contents_entry_list.h"

namespace quillmark {

/// Numbers the entries of the contents level by level, so that the children of an entry have
/// consecutive numbers. Levels are put right first.
class EntryNumbers {
public:
    static constexpr std::uint32_t deepestLevel = 32;
    static constexpr std::uint32_t none = 0xFFFFFFFF;

    struct Node {
        /// Its place in the list of entries.
        std::uint32_t index = 0;
        std::uint32_t parent = none;
        std::uint32_t firstChild = 0;
        std::uint32_t children = 0;
    };

    explicit EntryNumbers(const ContentsEntryList& entries);

    /// By number.
    [[nodiscard]] const std::vector<Node>& nodes() const noexcept { return nodes_; }
    /// The number of the entry at that place in the list.
    [[nodiscard]] std::uint32_t numberOf(std::size_t index) const noexcept {
        return numbers_[index];
    }
    [[nodiscard]] std::uint32_t levelOf(std::size_t index) const noexcept { return levels_[index]; }
    /// How many entries a level has, from 1 on.
    [[nodiscard]] std::uint32_t countOfLevel(std::uint32_t level) const {
        return counts_.at(level);
    }

private:
    void readLevels(const ContentsEntryList& entries);
    void assignNumbers();

    std::vector<std::uint8_t> levels_;
    std::array<std::uint32_t, deepestLevel + 1> counts_{};
    std::vector<std::uint32_t> numbers_;
    std::vector<Node> nodes_;
};

}  // namespace quillmark

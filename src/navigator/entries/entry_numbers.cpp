#include "navigator/entries/entry_numbers.h"

#include <algorithm>

namespace quillmark {

EntryNumbers::EntryNumbers(const ContentsEntryList& entries) {
    readLevels(entries);
    assignNumbers();
}

void EntryNumbers::readLevels(const ContentsEntryList& entries) {
    levels_.reserve(entries.size());
    std::uint32_t before = 0;
    for (const ContentsEntryView entry : entries) {
        const std::uint32_t wanted = entry.level < 1 ? 1U : static_cast<std::uint32_t>(entry.level);
        before = std::min({wanted, before + 1, deepestLevel});
        levels_.push_back(static_cast<std::uint8_t>(before));
        ++counts_.at(before);
    }
}

void EntryNumbers::assignNumbers() {
    std::array<std::uint32_t, deepestLevel + 1> next{};
    for (std::uint32_t level = 1; level < deepestLevel; ++level) {
        next.at(level + 1) = next.at(level) + counts_.at(level);
    }
    // The entry that is open at each level; `none` above the first.
    std::array<std::uint32_t, deepestLevel + 1> open{};
    open.front() = none;
    numbers_.resize(levels_.size());
    nodes_.resize(levels_.size());
    for (std::size_t index = 0; index < levels_.size(); ++index) {
        const std::uint32_t level = levels_[index];
        const std::uint32_t number = next.at(level)++;
        const std::uint32_t parent = open.at(level - 1);
        numbers_[index] = number;
        nodes_[number].index = static_cast<std::uint32_t>(index);
        nodes_[number].parent = parent;
        if (parent != none && nodes_[parent].children++ == 0) {
            nodes_[parent].firstChild = number;
        }
        open.at(level) = number;
    }
}

}  // namespace quillmark

#include "navigator/index/word_table.h"

#include <cstring>
#include <utility>

namespace quillmark {

namespace {

constexpr std::size_t firstTableSize = 1024;

std::uint64_t blockOf(const FoldedWord& word, std::size_t index) noexcept {
    std::uint64_t block = 0;
    std::memcpy(&block, word.block(index), sizeof block);
    return block;
}

}  // namespace

WordTable::WordTable() : slots_(firstTableSize) {}

std::uint32_t WordTable::hashOf(const FoldedWord& word) noexcept {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = 0;
    for (std::size_t i = 0; i < word.blocks(); ++i) {
        hash = (hash ^ blockOf(word, i)) * factor;
        hash ^= hash >> 32U;
    }
    return static_cast<std::uint32_t>(hash);
}

/// Whether a word with the same first block is the same.
bool WordTable::hasRest(Id id, const FoldedWord& word) const noexcept {
    const std::size_t start = startOf(id);
    if (ends_[id] - start != word.blocks()) {
        return false;
    }
    for (std::size_t i = 1; i < word.blocks(); ++i) {
        if (blocks_[start + i] != blockOf(word, i)) {
            return false;
        }
    }
    return true;
}

WordTable::Id WordTable::add(const FoldedWord& word) {
    const std::uint32_t hash = hashOf(word);
    const std::uint64_t first = blockOf(word, 0);
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = hash & mask;
    for (; slots_[at].id != none; at = (at + 1) & mask) {
        const Slot& slot = slots_[at];
        if (slot.hash == hash && slot.firstBlock == first && hasRest(slot.id, word)) {
            return slot.id;
        }
    }
    if ((size() + 1) * 4 > slots_.size() * 3) {
        grow();
        return add(word);
    }
    const Id id = append(word);
    slots_[at] = {first, hash, id};
    return id;
}

WordTable::Id WordTable::append(const FoldedWord& word) {
    for (std::size_t i = 0; i < word.blocks(); ++i) {
        blocks_.push_back(blockOf(word, i));
    }
    ends_.push_back(static_cast<std::uint32_t>(blocks_.size()));
    return static_cast<Id>(ends_.size() - 1);
}

void WordTable::grow() {
    std::vector<Slot> grown(slots_.size() * 2);
    const std::size_t mask = grown.size() - 1;
    for (const Slot& slot : slots_) {
        if (slot.id == none) {
            continue;
        }
        std::size_t at = slot.hash & mask;
        while (grown[at].id != none) {
            at = (at + 1) & mask;
        }
        grown[at] = slot;
    }
    slots_ = std::move(grown);
}

std::string_view WordTable::word(Id id) const noexcept {
    const std::size_t start = startOf(id);
    const auto* const text = reinterpret_cast<const char*>(blocks_.data() + start);
    const std::string_view padded(text, (ends_[id] - start) * FoldedWord::blockSize);
    return padded.substr(0, padded.find('\0'));
}

}  // namespace quillmark

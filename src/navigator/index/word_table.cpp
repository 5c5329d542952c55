#include "navigator/index/word_table.h"

#include <array>
#include <cstring>
#include <utility>

namespace quillmark {

namespace {

constexpr std::size_t firstTableSize = 1024;
constexpr std::size_t blocksInSlot = 2;

std::uint64_t blockOf(const FoldedWord& word, std::size_t index) noexcept {
    std::uint64_t block = 0;
    std::memcpy(&block, word.block(index), sizeof block);
    return block;
}

}  // namespace

WordTable::WordTable() : slots_(firstTableSize) {}

/// What the slot of a word holds, but for its number.
WordTable::Slot WordTable::slotOf(const FoldedWord& word) noexcept {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = 0;
    for (std::size_t i = 0; i < word.blocks(); ++i) {
        hash = (hash ^ blockOf(word, i)) * factor;
        hash ^= hash >> 32U;
    }
    return {blockOf(word, 0), word.blocks() > 1 ? blockOf(word, 1) : 0,
            static_cast<std::uint32_t>(hash), none};
}

/// The zeros after a word of less than two blocks tell it from a longer one.
bool WordTable::holds(const Slot& slot, const Slot& wanted, const FoldedWord& word) const noexcept {
    return slot.hash == wanted.hash && slot.firstBlock == wanted.firstBlock &&
           slot.secondBlock == wanted.secondBlock && slot.id != none &&
           (word.text().size() < blocksInSlot * FoldedWord::blockSize || hasRest(slot.id, word));
}

/// Whether a word with the same first blocks is the same.
bool WordTable::hasRest(Id id, const FoldedWord& word) const noexcept {
    const std::size_t start = startOf(id);
    if (ends_[id] - start != word.blocks()) {
        return false;
    }
    for (std::size_t i = blocksInSlot; i < word.blocks(); ++i) {
        if (blocks_[start + i] != blockOf(word, i)) {
            return false;
        }
    }
    return true;
}

WordTable::Id WordTable::add(const FoldedWord& word) {
    return add(slotOf(word), word);
}

WordTable::Id WordTable::add(Slot wanted, const FoldedWord& word) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = wanted.hash & mask;
    for (; slots_[at].id != none; at = (at + 1) & mask) {
        if (holds(slots_[at], wanted, word)) {
            return slots_[at].id;
        }
    }
    if ((size() + 1) * 4 > slots_.size() * 3) {
        grow();
        return add(wanted, word);
    }
    wanted.id = append(word);
    slots_[at] = wanted;
    return wanted.id;
}

void WordTable::add(std::span<const FoldedWord> words, std::span<Id> ids) {
    std::array<Slot, WordSink::mostAtOnce> wanted{};
    std::array<Slot, WordSink::mostAtOnce> found{};
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = 0; i < words.size(); ++i) {
        wanted[i] = slotOf(words[i]);
        found[i] = slots_[wanted[i].hash & mask];
    }
    for (std::size_t i = 0; i < words.size(); ++i) {
        ids[i] = holds(found[i], wanted[i], words[i]) ? found[i].id : add(wanted[i], words[i]);
    }
}

WordTable::Id WordTable::append(const FoldedWord& word) {
    // A word for which memory ran out has left blocks.
    blocks_.resize(startOf(static_cast<Id>(size())));
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

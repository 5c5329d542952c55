#include "navigator/index/word_table.h"

#include <algorithm>
#include <array>
#include <functional>
#include <utility>

namespace quillmark {

namespace {

constexpr unsigned hashBits = 64;
constexpr unsigned firstTableBits = 10;

/// The first bytes of a word, so that numbers are in the order of words.
std::uint64_t firstBytes(std::string_view word) noexcept {
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < byte_blocks::size; ++i) {
        bytes = (bytes << 8U) | (i < word.size() ? static_cast<unsigned char>(word[i]) : 0U);
    }
    return bytes;
}

}  // namespace

WordTable::WordTable()
    : slots_(std::size_t{1} << firstTableBits), unusedBits_(hashBits - firstTableBits) {}

/// The key of a long word is none of a short one: in its second half, other bytes follow a zero.
/// Several long words may share a key.
ShortWord WordTable::keyOfLong(std::string_view word) noexcept {
    constexpr std::uint64_t firstByte = 0xFF;
    constexpr std::uint64_t lastByte = std::uint64_t{1} << 63U;
    ShortWord key = ShortWord::of(word.substr(0, ShortWord::longest));
    key.second = (std::uint64_t{std::hash<std::string_view>()(word)} | lastByte) & ~firstByte;
    return key;
}

/// The top bits of a product depend on all bits of the key.
std::size_t WordTable::homeOf(const ShortWord& key) const noexcept {
    constexpr std::uint64_t firstFactor = 0x9E3779B97F4A7C15U;
    constexpr std::uint64_t secondFactor = 0xD6E8FEB86659FD93U;
    const std::uint64_t product = key.first * firstFactor + key.second * secondFactor;
    return static_cast<std::size_t>(product >> unusedBits_);
}

WordTable::Slot& WordTable::freeSlot(const ShortWord& key) noexcept {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = homeOf(key);
    while (slots_[at].id != none) {
        at = (at + 1) & mask;
    }
    return slots_[at];
}

/// The slot with the key for which `isWord` holds, or null.
template <typename IsWord>
WordTable::Slot* WordTable::find(const ShortWord& key, const IsWord& isWord) noexcept {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = homeOf(key); slots_[at].id != none; at = (at + 1) & mask) {
        if (slots_[at].key == key && isWord(slots_[at])) {
            return &slots_[at];
        }
    }
    return nullptr;
}

WordTable::Slot& WordTable::slotOf(const ShortWord& word) {
    Slot* const found = find(word, [](const Slot&) { return true; });
    return found != nullptr ? *found : insert(word, ShortWordText(word).view());
}

WordTable::Slot& WordTable::slotOf(std::string_view word) {
    if (word.size() <= ShortWord::longest) {
        return slotOf(ShortWord::of(word));
    }
    const ShortWord key = keyOfLong(word);
    Slot* const found = find(key, [&](const Slot& slot) { return this->word(slot.id) == word; });
    return found != nullptr ? *found : insert(key, word);
}

WordTable::Slot& WordTable::insert(const ShortWord& key, std::string_view word) {
    const Id id = append(word);
    return freeSlot(key) = {key, id, 0};
}

WordTable::Id WordTable::add(std::string_view word) {
    makeRoomFor(1);
    return slotOf(word).id;
}

/// Writes the number in any case, and returns whether it counts: there is no branch, because
/// nothing predicts it.
std::size_t WordTable::setMark(Slot& slot, Mark mark, Id& id) noexcept {
    const std::size_t count = slot.mark != mark ? 1 : 0;
    slot.mark = mark;
    id = slot.id;
    return count;
}

std::size_t WordTable::addUnmarked(std::span<const ShortWord> words, Mark mark, std::span<Id> ids) {
    makeRoomFor(words.size());
    // First all looks into the table, which do not wait for each other.
    std::array<Look, mostAtOnce> looks{};
    for (std::size_t i = 0; i < words.size(); ++i) {
        Slot& slot = slots_[homeOf(words[i])];
        looks[i] = {&slot, slot.key == words[i]};
    }
    std::size_t count = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        Slot& slot = looks[i].isHit ? *looks[i].slot : slotOf(words[i]);
        count += setMark(slot, mark, ids[count]);
    }
    return count;
}

std::size_t WordTable::addUnmarked(std::string_view word, Mark mark, std::span<Id> ids) {
    makeRoomFor(1);
    return setMark(slotOf(word), mark, ids.front());
}

WordTable::Id WordTable::append(std::string_view word) {
    // A word for which memory ran out has left its text.
    texts_.resize(ends_.empty() ? 0 : ends_.back());
    texts_.append(word);
    ends_.push_back(texts_.size());
    return static_cast<Id>(ends_.size() - 1);
}

void WordTable::makeRoomFor(std::size_t words) {
    while ((size() + words) * 4 > slots_.size() * 3) {
        grow();
    }
}

void WordTable::grow() {
    std::vector<Slot> grown(slots_.size() * 2);
    std::swap(slots_, grown);
    --unusedBits_;
    for (const Slot& slot : grown) {
        if (slot.id != none) {
            freeSlot(slot.key) = slot;
        }
    }
}

std::string_view WordTable::word(Id id) const noexcept {
    const std::size_t start = id == 0 ? 0 : ends_[id - 1];
    return std::string_view(texts_).substr(start, ends_[id] - start);
}

std::vector<WordTable::Id> WordTable::ascending() const {
    struct Ordered {
        std::uint64_t firstBytes;
        Id id;
    };
    std::vector<Ordered> words;
    words.reserve(size());
    for (Id id = 0; id < size(); ++id) {
        words.push_back({firstBytes(word(id)), id});
    }
    std::ranges::sort(words, [this](const Ordered& a, const Ordered& b) {
        return a.firstBytes != b.firstBytes ? a.firstBytes < b.firstBytes : word(a.id) < word(b.id);
    });
    std::vector<Id> ids(words.size());
    std::ranges::transform(words, ids.begin(), &Ordered::id);
    return ids;
}

}  // namespace quillmark

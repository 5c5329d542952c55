#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace quillmark {

/// Any number of linked lists that share one block of memory. An entry costs four bytes besides its
/// value and no allocation of its own, so that hundreds of thousands of one-entry lists stay small.
///
/// The pool owns the entries. A `List` only says where they are, and is of use to its own pool
/// alone.
///
///     PooledLists<int> pool;
///     PooledLists<int>::List odd;
///     pool.append(odd, 1);
///     pool.append(odd, 3);
///     pool.take(odd, [](int number) { use(number); });      // 1, 3; the list is empty again
template <typename Value>
class PooledLists {
public:
    class List {
    public:
        [[nodiscard]] bool isEmpty() const noexcept { return first_ == none; }

    private:
        friend class PooledLists;
        std::uint32_t first_ = none;
        std::uint32_t last_ = none;
    };

    void append(List& list, Value value) {
        const std::uint32_t entry = newEntry(std::move(value));
        (list.isEmpty() ? list.first_ : entries_[list.last_].next) = entry;
        list.last_ = entry;
    }

    /// The first and last value of a list, which must not be empty.
    [[nodiscard]] const Value& first(const List& list) const { return entries_[list.first_].value; }
    [[nodiscard]] const Value& last(const List& list) const { return entries_[list.last_].value; }

    /// Empties the list and calls `each` with every value, first to last. `each` may use the pool,
    /// and append to the same list again. A value for which `each` throws stays in the list, with
    /// those after it, before what was appended.
    template <typename Each>
    void take(List& list, const Each& each) {
        List taken = std::exchange(list, List());
        try {
            while (!taken.isEmpty()) {
                each(Value(entries_[taken.first_].value));
                removeFirst(taken);
            }
        } catch (...) {
            prepend(list, taken);
            throw;
        }
    }

    template <typename Each>
    void forEach(const List& list, const Each& each) const {
        for (std::uint32_t entry = list.first_; entry != none; entry = entries_[entry].next) {
            each(entries_[entry].value);
        }
    }

    /// Releases memory reserved for growth.
    void compact() { entries_.shrink_to_fit(); }

private:
    static constexpr std::uint32_t none = 0xFFFFFFFF;
    struct Entry {
        Value value;
        std::uint32_t next;  // in its list, or in the list of free entries
    };

    /// Puts the entries of `front`, which is not empty, before those of the list.
    void prepend(List& list, const List& front) noexcept {
        entries_[front.last_].next = list.first_;
        list.first_ = front.first_;
        if (list.last_ == none) {
            list.last_ = front.last_;
        }
    }

    void removeFirst(List& list) noexcept {
        const std::uint32_t entry = list.first_;
        entries_[entry].value = Value();
        list.first_ = std::exchange(entries_[entry].next, firstFree_);
        firstFree_ = entry;
        if (list.first_ == none) {
            list.last_ = none;
        }
    }

    std::uint32_t newEntry(Value value) {
        if (firstFree_ == none) {
            entries_.push_back({std::move(value), none});
            return static_cast<std::uint32_t>(entries_.size() - 1);
        }
        const std::uint32_t reused = firstFree_;
        firstFree_ = std::exchange(entries_[reused], {std::move(value), none}).next;
        return reused;
    }

    std::vector<Entry> entries_;
    std::uint32_t firstFree_ = none;
};

}  // namespace quillmark

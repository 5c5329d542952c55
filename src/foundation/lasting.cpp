#include "foundation/lasting.h"

#include <atomic>

namespace quillmark {

/// The module's entries, the latest first.
class LastingList {
public:
    void add(LastingEntry& entry) noexcept {
        entry.next_ = first_.load(std::memory_order_relaxed);
        while (!first_.compare_exchange_weak(entry.next_, &entry, std::memory_order_acq_rel,
                                             std::memory_order_relaxed)) {
        }
    }
    void destroyAll() noexcept {
        for (LastingEntry* entry = first_.exchange(nullptr); entry != nullptr;) {
            LastingEntry* const next = entry->next_;
            entry->destroy_(*entry);
            entry = next;
        }
    }

private:
    std::atomic<LastingEntry*> first_{nullptr};
};

namespace {

constinit LastingList lastingList;

/// Functions of this kind run when the module is unloaded and, at the end of a process, after the
/// destructors of static objects, whichever module those are from.
[[gnu::destructor]] void destroyLasting() noexcept {
    lastingList.destroyAll();
}

}  // namespace

void LastingEntry::enlist(Destroy destroy) noexcept {
    destroy_ = destroy;
    lastingList.add(*this);
}

}  // namespace quillmark

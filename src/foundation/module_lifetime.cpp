#include "foundation/module_lifetime.h"

#include <atomic>

namespace quillmark {

/// The entries of this module, newest first.
class ModuleLifetimeList {
public:
    void add(ModuleLifetimeEntry& entry) noexcept {
        entry.next_ = first_.load(std::memory_order_relaxed);
        while (!first_.compare_exchange_weak(entry.next_, &entry, std::memory_order_acq_rel,
                                             std::memory_order_relaxed)) {
        }
    }
    void destroyAll() noexcept {
        for (ModuleLifetimeEntry* entry = first_.exchange(nullptr); entry != nullptr;) {
            ModuleLifetimeEntry* const next = entry->next_;
            entry->destroy_(*entry);
            entry = next;
        }
    }

private:
    std::atomic<ModuleLifetimeEntry*> first_{nullptr};
};

namespace {

constinit ModuleLifetimeList moduleLifetimeList;

/// The loader calls this when the module is unloaded or, at process exit, after the destructors of
/// the static objects of all modules.
[[gnu::destructor]] void destroyModuleObjects() noexcept {
    moduleLifetimeList.destroyAll();
}

}  // namespace

void ModuleLifetimeEntry::enlist(Destroy destroy) noexcept {
    destroy_ = destroy;
    moduleLifetimeList.add(*this);
}

}  // namespace quillmark

#include "settings/register_base.h"

#include <mutex>
#include <optional>
#include <utility>

#include "foundation/lasting.h"

namespace quillmark {

namespace {

struct StoreSlot {
    std::mutex mutex;
    std::shared_ptr<SettingsStore> store;
};

StoreSlot& storeSlot() {
    static Lasting<StoreSlot> slot;
    return *slot;
}

}  // namespace

std::shared_ptr<SettingsStore> RegisterBase::store() {
    StoreSlot& slot = storeSlot();
    const std::lock_guard lock(slot.mutex);
    if (slot.store == nullptr) {
        slot.store = makeUserSettingsStore();
    }
    return slot.store;
}

void RegisterBase::setStore(std::shared_ptr<SettingsStore> store) {
    StoreSlot& slot = storeSlot();
    const std::lock_guard lock(slot.mutex);
    // The old store goes after the lock is let go: its end is none of the slot's business.
    std::swap(slot.store, store);
}

RegEntry RegisterBase::readStored(const OrxString& group, const OrxString& name,
                                  const RegEntry& fallback) {
    std::optional<OrxString> value = store()->read(group, name);
    return {group, name, value ? *std::move(value) : fallback.asString(), fallback.type()};
}

}  // namespace quillmark

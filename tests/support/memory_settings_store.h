#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

#include "settings/register_base.h"
#include "settings/settings_store.h"

namespace quillmark {

/// A settings store in memory.
class MemorySettingsStore : public SettingsStore {
public:
    std::optional<OrxString> read(const OrxString& group, const OrxString& name) const override {
        const std::lock_guard lock(mutex_);
        const auto entry = values_.find(address(group, name));
        return entry != values_.end() ? std::optional(entry->second) : std::nullopt;
    }
    bool write(const OrxString& group, const OrxString& name, const OrxString& value) override {
        const std::lock_guard lock(mutex_);
        values_[address(group, name)] = value;
        return true;
    }

private:
    using Address = std::pair<OrxString, OrxString>;
    static Address address(OrxString group, OrxString name) {
        return {group.toLower(), name.toLower()};
    }

    mutable std::mutex mutex_;
    std::map<Address, OrxString> values_;
};

/// Installs an empty store during its lifetime, and the user's own afterwards.
class InstalledSettingsStore {
public:
    InstalledSettingsStore() { RegisterBase::setStore(store_); }
    ~InstalledSettingsStore() { RegisterBase::setStore(nullptr); }
    InstalledSettingsStore(const InstalledSettingsStore&) = delete;
    InstalledSettingsStore& operator=(const InstalledSettingsStore&) = delete;

    void set(const OrxString& group, const OrxString& name, const OrxString& value) {
        static_cast<void>(store_->write(group, name, value));
    }
    [[nodiscard]] std::optional<OrxString> get(const OrxString& group,
                                               const OrxString& name) const {
        return store_->read(group, name);
    }

private:
    std::shared_ptr<MemorySettingsStore> store_ = std::make_shared<MemorySettingsStore>();
};

}  // namespace quillmark

#pragma once

#include <memory>

#include "settings/reg_entry.h"
#include "settings/settings_store.h"

namespace quillmark {

/// The common base of the settings library: the store that all readers and writers use.
class RegisterBase {
public:
    /// The current store: the one that the host has installed, or else the user's own.
    [[nodiscard]] static std::shared_ptr<SettingsStore> store();
    /// Installs a store for the whole process. Null stands for the user's own. Any thread may call
    /// this; a store is destroyed when nobody uses it any more.
    static void setStore(std::shared_ptr<SettingsStore> store);

protected:
    /// The stored value of that group and name, or the value of `fallback`.
    [[nodiscard]] static RegEntry readStored(const OrxString& group, const OrxString& name,
                                             const RegEntry& fallback);
};

}  // namespace quillmark

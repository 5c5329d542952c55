#pragma once

#include <memory>

#include "settings/reg_entry.h"
#include "settings/settings_store.h"

namespace quillmark {

/// The settings library's common part: the store that all readers and writers use.
class RegisterBase {
public:
    /// The store in force: the user's own unless the host handed another in.
    [[nodiscard]] static std::shared_ptr<SettingsStore> store();
    /// Puts a store in force; null brings the user's own back.
    static void setStore(std::shared_ptr<SettingsStore> store);

protected:
    /// The stored entry, or the fallback's value under that address.
    [[nodiscard]] static RegEntry readStored(const OrxString& group, const OrxString& name,
                                             const RegEntry& fallback);
};

}  // namespace quillmark

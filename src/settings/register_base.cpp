#include "settings/register_base.h"

#include <optional>
#include <utility>

#include "foundation/module_lifetime.h"
#include "foundation/process_wide.h"

namespace quillmark {

namespace {

ProcessWide<std::shared_ptr<SettingsStore>>& currentStore() {
    static ModuleLifetime<ProcessWide<std::shared_ptr<SettingsStore>>> store;
    return *store;
}

}  // namespace

std::shared_ptr<SettingsStore> RegisterBase::store() {
    return currentStore().getOrMake(makeUserSettingsStore);
}

void RegisterBase::setStore(std::shared_ptr<SettingsStore> store) {
    currentStore().exchange(std::move(store));
}

RegEntry RegisterBase::readStored(const OrxString& group, const OrxString& name,
                                  const RegEntry& fallback) {
    std::optional<OrxString> value = store()->read(group, name);
    return {group, name, value ? *std::move(value) : fallback.asString(), fallback.type()};
}

}  // namespace quillmark

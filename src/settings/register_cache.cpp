#include "settings/register_cache.h"

namespace quillmark {

namespace {

/// Groups and names are found in any case, as in the store.
std::pair<OrxString, OrxString> addressOf(OrxString group, OrxString name) {
    return {group.toLower(), name.toLower()};
}

}  // namespace

RegEntry RegisterCache::read(const OrxString& group, const OrxString& name,
                             const RegEntry& fallback) const {
    const auto found = overrides_.find(addressOf(group, name));
    return found != overrides_.end() ? found->second : readStored(group, name, fallback);
}

void RegisterCache::override(const RegEntry& entry) {
    overrides_.insert_or_assign(addressOf(entry.group(), entry.name()), entry);
}

}  // namespace quillmark

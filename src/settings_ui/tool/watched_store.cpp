#include "settings_ui/tool/watched_store.h"

#include "settings/settings_table.h"

namespace quillmark {

namespace {

bool isInstallDir(const OrxString& group, const OrxString& name) {
    return findSetting(group, name) == findSetting(settingsGroup, "InstallDir");
}

}  // namespace

std::optional<OrxString> WatchedStore::read(const OrxString& group, const OrxString& name) const {
    std::optional<OrxString> stored = store_->read(group, name);
    const bool missing = !stored || stored->isEmpty();
    return missing && isInstallDir(group, name) ? std::optional(installDir_) : stored;
}

bool WatchedStore::write(const OrxString& group, const OrxString& name, const OrxString& value) {
    if (store_->write(group, name, value)) {
        return true;
    }
    failures_.push_back(group + "." + name);
    return false;
}

}  // namespace quillmark

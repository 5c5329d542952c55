#include "replay/services/settings_overlay.h"

namespace quillmark::replay {

namespace {

/// Groups and names are found in any case.
std::pair<OrxString, OrxString> keyOf(OrxString group, OrxString name) {
    return {group.toLower(), name.toLower()};
}

}  // namespace

SettingsOverlay::SettingsOverlay(std::shared_ptr<SettingsStore> store) : store_(std::move(store)) {}

void SettingsOverlay::set(const OrxString& group, const OrxString& name, const OrxString& value) {
    values_[keyOf(group, name)] = value;
}

std::optional<OrxString> SettingsOverlay::read(const OrxString& group,
                                               const OrxString& name) const {
    const auto hit = values_.find(keyOf(group, name));
    return hit != values_.end() ? hit->second : store_->read(group, name);
}

bool SettingsOverlay::write(const OrxString& group, const OrxString& name, const OrxString& value) {
    return store_->write(group, name, value);
}

}  // namespace quillmark::replay

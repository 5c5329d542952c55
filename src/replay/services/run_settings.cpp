#include "replay/services/run_settings.h"

namespace quillmark::replay {

namespace {

/// Names are matched ignoring case.
std::pair<OrxString, OrxString> addressOf(OrxString group, OrxString name) {
    return {group.toLower(), name.toLower()};
}

}  // namespace

RunSettings::RunSettings(std::shared_ptr<SettingsStore> store) : store_(std::move(store)) {}

void RunSettings::set(const OrxString& group, const OrxString& name, const OrxString& value) {
    set_[addressOf(group, name)] = value;
}

void RunSettings::supply(const OrxString& group, const OrxString& name, const OrxString& value) {
    supplied_[addressOf(group, name)] = value;
}

std::optional<OrxString> RunSettings::read(const OrxString& group, const OrxString& name) const {
    const auto address = addressOf(group, name);
    if (const auto hit = set_.find(address); hit != set_.end()) {
        return hit->second;
    }
    std::optional<OrxString> stored = store_->read(group, name);
    const auto stand = supplied_.find(address);
    const bool missing = !stored || stored->isEmpty();
    return missing && stand != supplied_.end() ? std::optional(stand->second) : stored;
}

bool RunSettings::write(const OrxString& group, const OrxString& name, const OrxString& value) {
    return store_->write(group, name, value);
}

}  // namespace quillmark::replay

#pragma once

#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "settings/settings_store.h"

namespace quillmark::replay {

/// A settings store with values laid over it for one run. A value set here hides the stored one.
/// Writes go to the store.
class SettingsOverlay final : public SettingsStore {
public:
    explicit SettingsOverlay(std::shared_ptr<SettingsStore> store);

    void set(const OrxString& group, const OrxString& name, const OrxString& value);

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override;
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override;
    [[nodiscard]] OrxString problem() const override { return store_->problem(); }

private:
    std::shared_ptr<SettingsStore> store_;
    std::map<std::pair<OrxString, OrxString>, OrxString> values_;
};

}  // namespace quillmark::replay

#pragma once

#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "settings/settings_store.h"

namespace quillmark::replay {

/// The settings of one run: what the command line sets stands over the store, and what it
/// supplies stands in for what the store does not have. Writes go to the store.
class RunSettings final : public SettingsStore {
public:
    explicit RunSettings(std::shared_ptr<SettingsStore> store);

    void set(const OrxString& group, const OrxString& name, const OrxString& value);
    /// Answers for a setting that is set nowhere, or set to an empty text.
    void supply(const OrxString& group, const OrxString& name, const OrxString& value);

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override;
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override;
    [[nodiscard]] OrxString problem() const override { return store_->problem(); }

private:
    using Values = std::map<std::pair<OrxString, OrxString>, OrxString>;

    std::shared_ptr<SettingsStore> store_;
    Values set_;
    Values supplied_;
};

}  // namespace quillmark::replay

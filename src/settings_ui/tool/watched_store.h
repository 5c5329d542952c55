#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "settings/settings_store.h"

namespace quillmark {

/// A store that remembers which writes failed: the page looks at none of them. It also answers
/// for the installation directory, when that is set nowhere, with the one given.
class WatchedStore : public SettingsStore {
public:
    WatchedStore(std::shared_ptr<SettingsStore> store, OrxString installDir)
        : store_(std::move(store)), installDir_(std::move(installDir)) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override;
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override;
    [[nodiscard]] OrxString problem() const override { return store_->problem(); }

    /// "GROUP.NAME" of each failed write, in order.
    [[nodiscard]] const std::vector<OrxString>& failures() const noexcept { return failures_; }
    [[nodiscard]] const OrxString& installDir() const noexcept { return installDir_; }

private:
    std::shared_ptr<SettingsStore> store_;
    OrxString installDir_;
    std::vector<OrxString> failures_;
};

}  // namespace quillmark

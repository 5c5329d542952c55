#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "settings/settings_store.h"

namespace quillmark {

/// Passes everything on to another store and records which writes failed, because the settings
/// page ignores failed writes.
class FailureRecordingStore : public SettingsStore {
public:
    explicit FailureRecordingStore(std::shared_ptr<SettingsStore> store)
        : store_(std::move(store)) {}

    [[nodiscard]] std::optional<OrxString> read(const OrxString& group,
                                                const OrxString& name) const override {
        return store_->read(group, name);
    }
    [[nodiscard]] bool write(const OrxString& group, const OrxString& name,
                             const OrxString& value) override;
    [[nodiscard]] OrxString problem() const override { return store_->problem(); }

    struct Failure {
        /// "GROUP.NAME".
        OrxString setting;
        /// The system's reason; empty if it gave none.
        std::string reason;
    };
    /// The failed writes, in order.
    [[nodiscard]] const std::vector<Failure>& failures() const noexcept { return failures_; }

private:
    std::shared_ptr<SettingsStore> store_;
    std::vector<Failure> failures_;
};

}  // namespace quillmark
